// Going through the entries of a list without leaving the text that shows them.
#pragma once

#include "controles/ComboListe.h"

namespace gastrelle {

/// From now on Alt+Up and Alt+Down choose the previous and the next entry of `liste`, wherever the
/// focus is on `page` but on a list, whose own those keys are. At either end, and in a disabled
/// list, nothing happens.
void ParcourtAuClavier(QWidget& page, ComboListe& liste);

}  // namespace gastrelle
