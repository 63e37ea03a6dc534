// The tab "Ajouter" of the vintage chart: the year behind the last one.
#pragma once

#include "vins/frmMillesimeSaisie.h"

namespace gastrelle {

class frmMillesimeListe;

class frmMillesimeAjouter final : public frmMillesimeSaisie {
 public:
  frmMillesimeAjouter(const PlaceOnglet& place, frmMillesimeListe& liste);

  /// The entry rule of the tab: no area is graded yet.
  void Entre() override;

 private:
  void Valide();

  frmMillesimeListe& liste_;
};

}  // namespace gastrelle
