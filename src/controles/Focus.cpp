#include "controles/Focus.h"

namespace gastrelle {

void DonneFocus(QWidget* controle) {
  if (controle->isVisibleTo(controle->window()) && controle->isEnabled()) {
    controle->setFocus(Qt::OtherFocusReason);
  }
}

void OrdonneClavier(std::initializer_list<QWidget*> controles) {
  QWidget* avant = nullptr;
  for (QWidget* controle : controles) {
    if (avant != nullptr) {
      QWidget::setTabOrder(avant, controle);
    }
    avant = controle;
  }
}

}  // namespace gastrelle
