// Where the keyboard is, and the way it takes.
#pragma once

#include <initializer_list>

#include <QWidget>

namespace gastrelle {

/// Gives the focus if the control can take it, at once or when its window is shown; otherwise
/// nothing happens.
inline void DonneFocus(QWidget* controle) {
  if (controle->isVisibleTo(controle->window()) && controle->isEnabled()) {
    controle->setFocus(Qt::OtherFocusReason);
  }
}

/// The Tab key goes through the controls in this order, whatever the order of their making.
inline void OrdonneClavier(std::initializer_list<QWidget*> controles) {
  for (auto i = controles.begin(); i + 1 < controles.end(); ++i) {
    QWidget::setTabOrder(*i, *(i + 1));
  }
}

}  // namespace gastrelle
