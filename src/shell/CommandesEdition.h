// Cut, copy, paste and select all on the text box in use. Anything else beeps.
#pragma once

#include <QWidget>

#include "data/Messages.h"

namespace gastrelle {

enum class Edition { couper, copier, coller, toutSelectionner };

/// `controle`: the control in use of the active child window, or null. A read-only box can be
/// copied and selected, not changed.
void Edite(Edition commande, QWidget* controle, Messages& messages);

}  // namespace gastrelle
