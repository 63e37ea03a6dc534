// What each window prints behind the heading.
#pragma once

#include "data/Vues.h"
#include "sortie/LignesTexte.h"

namespace gastrelle {

/// The lines, in their order; none for a view that isn't printed. A line end at the head of a line
/// makes the empty line in front of it.
[[nodiscard]] LignesTexte LignesImprimees(const Vue& vue);

}  // namespace gastrelle
