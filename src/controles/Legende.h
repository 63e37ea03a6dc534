// The caption of a control.
#pragma once

#include "controles/Etiquette.h"

namespace gastrelle {

/// A caption above or beside a control, which its access key and screen readers follow.
inline QLabel* Legende(QString texte, QWidget* pour) {
  auto* legende = new Etiquette(texte, pour->parentWidget());
  legende->setBuddy(pour);
  pour->setAccessibleName(texte.remove(u'&'));
  return legende;
}

}  // namespace gastrelle
