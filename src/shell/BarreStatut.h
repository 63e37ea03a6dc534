// The status bar: a wide empty panel, and two that show the keyboard's locks.
#pragma once

#include <QLabel>
#include <QStatusBar>

#include "plateforme/Clavier.h"

namespace gastrelle {

class BarreStatut final : public QStatusBar {
 public:
  BarreStatut(Clavier& clavier, QWidget* parent);

  /// Asks the keyboard and shows what it tells.
  void Rafraichit();

 protected:
  /// Watches the keys that switch the locks, wherever the focus is.
  bool eventFilter(QObject* objet, QEvent* evenement) override;

 private:
  void Montre(Verrous verrous);

  Clavier& clavier_;
  QLabel* majuscules_;
  QLabel* numerique_;
};

}  // namespace gastrelle
