// The tab "Ajouter" of a window of titled texts.
#pragma once

#include "fiches/frmFichesSaisie.h"

namespace gastrelle {

class frmFichesAjouter final : public frmFichesSaisie {
 public:
  frmFichesAjouter(const PlaceOnglet& place, frmFichesListe& laListe);

  /// The entry rule of the tab: both boxes are emptied.
  void Entre() override;

 private:
  void Valide();
  void Efface();
};

}  // namespace gastrelle
