// The tab "Modifier" of the vintage chart: the chosen year, to be graded again.
#pragma once

#include "vins/frmMillesimeSaisie.h"

namespace gastrelle {

class frmMillesimeListe;

class frmMillesimeModifier final : public frmMillesimeSaisie {
 public:
  frmMillesimeModifier(const PlaceOnglet& place, frmMillesimeListe& liste);

  /// The entry rule of the tab: the grades are those on file.
  void Entre() override;

 private:
  /// Sets the buttons as the working record has it.
  void AfficheClassement();
  void Valide();

  frmMillesimeListe& liste_;
};

}  // namespace gastrelle
