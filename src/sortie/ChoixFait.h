// What the sorted tabs ask for before they put anything out.
#pragma once

#include "data/Vues.h"

namespace gastrelle {

/// False on a sorted tab where no milk, region or category is chosen.
[[nodiscard]] bool ChoixFait(const Vue& vue);

}  // namespace gastrelle
