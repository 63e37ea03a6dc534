// The tab "Ajouter" of the wines window: a new region or a new wine.
#pragma once

#include "controles/DeuxModes.h"
#include "vins/frmVinsSaisie.h"

namespace gastrelle {

class frmVinsAjouter final : public frmVinsSaisie {
 public:
  frmVinsAjouter(const PlaceOnglet& place, frmVinsListe& laListe);

  /// The entry rule of the tab: nothing is entered yet.
  void Entre() override;

 private:
  void ValideRegion();
  void ValideVin();
  void EnregistreVin();
  void Efface();

  DeuxModes modes_;
};

}  // namespace gastrelle
