// Tells the child windows when the user or the program switches between them, and only then: a
// modal dialog, another program in front, a maximised or restored window are no switch.
#pragma once

#include <QMdiArea>
#include <QMdiSubWindow>
#include <QPointer>

#include "controles/FenetreEnfant.h"

namespace gastrelle {

class SuiviFenetres final : public QObject {
 public:
  explicit SuiviFenetres(QMdiArea& enfants);

  /// Follows a child window from now on.
  void Suit(QMdiSubWindow& fenetre);
  /// The child window that is active, or null.
  [[nodiscard]] FenetreEnfant* active() const;

 protected:
  bool eventFilter(QObject* objet, QEvent* evenement) override;

 private:
  void DonneLaMain(QMdiSubWindow* vers);
  void Regarde();

  QMdiArea& enfants_;
  QPointer<QWidget> derniere_;  // a window on its way out is no child window any more
  bool regardPrevu_ = false;
};

}  // namespace gastrelle
