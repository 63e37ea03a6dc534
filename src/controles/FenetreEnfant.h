// A child window of the frame, as the frame sees it.
#pragma once

#include <QWidget>

#include "data/Vues.h"

namespace gastrelle {

class FenetreEnfant : public QWidget {
 public:
  using QWidget::QWidget;

  /// The user or the program has switched to this window. Modal dialogs and other programs in front
  /// don't count as switching.
  virtual void Active() = 0;
  /// The user or the program has switched away from it.
  virtual void Desactive() = 0;
  /// The window has just been minimised in the frame.
  virtual void Reduit() {}
  /// What the tab on display shows.
  [[nodiscard]] virtual Vue VueCourante() const { return {}; }

  /// True if the window sits minimised in the frame.
  [[nodiscard]] bool Reduite() const {
    return parentWidget() != nullptr && parentWidget()->isMinimized();
  }

  /// Unloads the window on the program's own account, as opposed to its close box.
  void Decharge();
  [[nodiscard]] bool dechargee() const { return parProgramme_; }

 private:
  bool parProgramme_ = false;
};

}  // namespace gastrelle
