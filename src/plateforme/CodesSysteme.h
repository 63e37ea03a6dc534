// The operating system's own numbers of its errors, and the failures that stand for them.
#pragma once

#include <span>

#include "plateforme/ErreurExecution.h"

namespace gastrelle {

struct CodeSysteme {
  int code;
  Panne panne;
};

/// Of this system. What isn't in the table is a failed access to a file.
std::span<const CodeSysteme> CodesDuSysteme();

}  // namespace gastrelle
