// The variables of the environment.
#pragma once

#include <cstdlib>

namespace gastrelle::essai {

/// Sets a variable of this process; null takes it away.
inline void PoseVariable(const char* nom, const char* valeur) {
#ifdef _WIN32
  ::_putenv_s(nom, valeur == nullptr ? "" : valeur);
#else
  valeur == nullptr ? ::unsetenv(nom) : ::setenv(nom, valeur, 1);
#endif
}

}  // namespace gastrelle::essai
