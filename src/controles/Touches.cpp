#include "controles/Touches.h"

#include <QApplication>
#include <QKeyEvent>
#include <QWidget>

namespace gastrelle {

void EnvoieF1() {
  QWidget* vers = QApplication::focusWidget();
  if (vers == nullptr) {
    vers = QApplication::activeWindow();
  }
  if (vers != nullptr) {
    QKeyEvent appui(QEvent::KeyPress, Qt::Key_F1, Qt::NoModifier);
    QApplication::sendEvent(vers, &appui);
    QKeyEvent relache(QEvent::KeyRelease, Qt::Key_F1, Qt::NoModifier);
    QApplication::sendEvent(vers, &relache);
  }
}

}  // namespace gastrelle
