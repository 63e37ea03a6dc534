// The limits that the system sets to a process.
#pragma once

#include <sys/resource.h>

namespace gastrelle::essai {

using Ressource = decltype(RLIMIT_FSIZE);

/// Sets a limit of this process: the one in force, and the one up to which it may be raised.
inline void PoseLimite(Ressource ressource, rlim_t souple, rlim_t dure) {
  const rlimit limite{souple, dure};
  ::setrlimit(ressource, &limite);
}

inline rlimit LimiteEnVigueur(Ressource ressource) {
  rlimit limite{};
  ::getrlimit(ressource, &limite);
  return limite;
}

}  // namespace gastrelle::essai
