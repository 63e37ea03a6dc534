// The help as the user sees it.
#pragma once

#include <QApplication>
#include <QTextBrowser>

#include "doublures/Ecran.h"
#include "shell/FichierAide.h"

namespace gastrelle::essai {

/// The help window, or null if there is none.
inline QWidget* FenetreAide() {
  for (QWidget* fenetre : QApplication::topLevelWidgets()) {
    if (fenetre->objectName() == QLatin1String("frmAide")) {
      return fenetre;
    }
  }
  return nullptr;
}

/// The topic on display; empty if no help is on the screen.
inline QString SujetAide() {
  const QWidget* fenetre = FenetreAide();
  return fenetre == nullptr || !fenetre->isVisible()
             ? QString()
             : FichierAide::Sujet(Trouve<QTextBrowser>(*fenetre, "txtPage").source());
}

}  // namespace gastrelle::essai
