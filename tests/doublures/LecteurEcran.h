// What a screen reader is told.
#pragma once

#include <QAccessible>
#include <QWidget>

namespace gastrelle::essai {

inline QString Dit(QWidget& controle, QAccessible::Text quoi) {
  return QAccessible::queryAccessibleInterface(&controle)->text(quoi);
}

}  // namespace gastrelle::essai
