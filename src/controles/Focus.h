// Where the keyboard is, and the way it takes.
#pragma once

#include <initializer_list>

#include <QWidget>

namespace gastrelle {

/// Gives the focus if the control can take it, at once or when its window is shown; otherwise
/// nothing happens.
void DonneFocus(QWidget* controle);

/// The Tab key goes through the controls in this order, whatever the order of their making.
void OrdonneClavier(std::initializer_list<QWidget*> controles);

}  // namespace gastrelle
