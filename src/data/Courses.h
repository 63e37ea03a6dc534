// The aisle texts of the shopping list: read once at the start, rewritten whole at the end.
#pragma once

#include "data/Module1.h"

namespace gastrelle {

/// Fills the aisle texts from the open directory and texts. A row with position 0 is an empty
/// aisle, whatever its length says. Throws on a failure; all texts together are no longer than one
/// text may be (`Reserve::plafond`).
void ChargeCourses(Module1& module);

/// Writes a fresh text file and the fifteen rows that point into it. The first failure abandons the
/// rest without a word.
void SauveCourses(Module1& module);

}  // namespace gastrelle
