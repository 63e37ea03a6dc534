// A text box made for reading: a sheet of paper with margins, in the reading size, its lines no
// longer than the eye can follow, its headings drawn as such.
#pragma once

#include "controles/Surligneur.h"
#include "controles/ZoneTexte.h"

namespace gastrelle {

class FeuilleTexte final : public ZoneTexte {
 public:
  FeuilleTexte(const QString& nom, int limite, QWidget* parent = nullptr);

 protected:
  bool event(QEvent* evenement) override;
  void changeEvent(QEvent* evenement) override;
  void wheelEvent(QWheelEvent* evenement) override;

 private:
  void PrendTaille();
  /// What is beyond the longest line stays paper.
  void RegleColonne();

  /// True for what happens on the paper beside the longest line, which scrolls and takes clicks as
  /// the rest of it does.
  bool SurLaMarge(const QEvent& evenement);

  Surligneur* surligneur_;
  bool pressee_ = false;  ///< a button went down on the paper beside the longest line
  int molette_ = 0;       ///< of a notch that isn't whole yet, in eighths of a degree
};

}  // namespace gastrelle
