// A piece of a test in a process of its own, which may end in any way.
#pragma once

#include <functional>
#include <sys/wait.h>
#include <unistd.h>

namespace gastrelle::essai {

/// How a child process that does this ends: its status, or minus the signal that ended it.
inline int Enfant(const std::function<int()>& fait) {
  const pid_t enfant = ::fork();
  if (enfant == 0) {
    ::_exit(fait());
  }
  int statut = 0;
  ::waitpid(enfant, &statut, 0);
  return WIFEXITED(statut) ? WEXITSTATUS(statut) : -WTERMSIG(statut);
}

}  // namespace gastrelle::essai
