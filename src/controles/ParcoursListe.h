// Going through the entries of a list without going to the list: the keyboard is then where the
// list's own choice puts it.
#pragma once

#include "controles/ComboListe.h"
#include "controles/ListeChoix.h"

namespace gastrelle {

/// From now on Alt+Up and Alt+Down choose the previous and the next entry of `liste`, wherever the
/// focus is on `page` but on a list, whose own those keys are. At either end, and in a disabled
/// list, nothing happens.
void ParcourtAuClavier(QWidget& page, ComboListe& liste);
void ParcourtAuClavier(QWidget& page, ListeChoix& liste);

}  // namespace gastrelle
