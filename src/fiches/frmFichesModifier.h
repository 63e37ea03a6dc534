// The tab "Modifier" of a window of titled texts.
#pragma once

#include "fiches/frmFichesSaisie.h"

namespace gastrelle {

class frmFichesModifier final : public frmFichesSaisie {
 public:
  frmFichesModifier(const PlaceOnglet& place, frmFichesListe& laListe);

  /// The entry rule of the tab: the boxes take the record on display.
  void Entre() override;

 private:
  void Valide();
};

}  // namespace gastrelle
