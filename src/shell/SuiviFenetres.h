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
  /// Looks at once whether the active window is still to be seen, and goes to the one before it if
  /// it isn't. Whoever doesn't ask is told when the event is over.
  void Regarde();
  /// The child window that is active, or null.
  [[nodiscard]] FenetreEnfant* active() const;

 protected:
  bool eventFilter(QObject* objet, QEvent* evenement) override;

 private:
  void DonneLaMain(QMdiSubWindow* vers);
  /// The active window has the keyboard again, and then what its own rules say.
  void Reprend();

  QMdiArea& enfants_;
  QPointer<QWidget> derniere_;  // a window on its way out is no child window any more
  bool regardPrevu_ = false;
};

}  // namespace gastrelle
