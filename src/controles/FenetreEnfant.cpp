#include "controles/FenetreEnfant.h"

namespace gastrelle {

void FenetreEnfant::Decharge() {
  parProgramme_ = true;
  QWidget* fenetre = parentWidget() != nullptr ? parentWidget() : this;
  fenetre->close();
}

}  // namespace gastrelle
