#include "shell/ContourFenetre.h"

#include <QApplication>
#include <QCloseEvent>

#include "controles/Focus.h"

namespace gastrelle {

ContourFenetre::ContourFenetre() {
  connect(qApp, &QApplication::focusChanged, this, [this](QWidget* /*quitte*/, QWidget* pris) {
    if (widget() != nullptr && widget()->isAncestorOf(pris)) {
      dernierControle_ = pris;
    }
  });
}

void ContourFenetre::RendClavier() {
  if (dernierControle_ != nullptr && !widget()->isAncestorOf(QApplication::focusWidget())) {
    DonneFocus(dernierControle_);
  }
}

bool ContourFenetre::focusNextPrevChild(bool suivant) {
  // A window that is hidden, if only to be shown again at another size, would pass the keyboard on
  // to its next control.
  return isVisible() && QMdiSubWindow::focusNextPrevChild(suivant);
}

void ContourFenetre::closeEvent(QCloseEvent* evenement) {
  QMdiSubWindow::closeEvent(evenement);
  if (surFermeture) {
    surFermeture();
  }
}

}  // namespace gastrelle
