// The window of the frame around a child window: it keeps the keyboard where it is, and tells when
// it has been closed.
#pragma once

#include <functional>

#include <QMdiSubWindow>
#include <QPointer>

namespace gastrelle {

class ContourFenetre final : public QMdiSubWindow {
 public:
  ContourFenetre();

  /// Gives the focus back to the control inside that had it last, unless another one inside has it.
  void RendClavier();

  /// Called as soon as the window has been closed, or hidden in the place of that.
  std::function<void()> surFermeture;

 protected:
  bool focusNextPrevChild(bool suivant) override;
  void closeEvent(QCloseEvent* evenement) override;

 private:
  QPointer<QWidget> dernierControle_;  // the toolkit forgets it, or keeps one of before
};

}  // namespace gastrelle
