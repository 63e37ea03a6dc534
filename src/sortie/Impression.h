// Printing what a window shows, straight to the default printer.
#pragma once

#include "data/Module1.h"
#include "data/Vues.h"

namespace gastrelle {

/// Prints a view, under the hourglass; a view that isn't printed does nothing. The user is told of
/// a choice that misses (by a beep) and of notes and lists that are empty. A printing that fails,
/// or has no printer, says nothing: the printer's own queue tells.
void ImprimeVue(Module1& module, const Vue& vue);

}  // namespace gastrelle
