// Counts the presses of the help key that reach the control in focus.
#pragma once

#include <QApplication>
#include <QKeyEvent>
#include <QObject>

namespace gastrelle::essai {

class EcouteF1 final : public QObject {
 public:
  EcouteF1() { qApp->installEventFilter(this); }

  int appuis = 0;

  bool eventFilter(QObject* objet, QEvent* evenement) override {
    const auto* touche = evenement->type() == QEvent::KeyPress && objet->isWidgetType()
                             ? static_cast<QKeyEvent*>(evenement)
                             : nullptr;
    appuis += touche != nullptr && touche->key() == Qt::Key_F1 && objet == qApp->focusWidget();
    return false;
  }
};

}  // namespace gastrelle::essai
