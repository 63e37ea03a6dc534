// The tab "Supprimer" of a window of titled texts: deletes the record on display. Those of the
// factory are protected.
#pragma once

#include "fiches/frmFichesSaisie.h"

namespace gastrelle {

class frmFichesSupprimer final : public frmFichesSaisie {
 public:
  frmFichesSupprimer(const PlaceOnglet& place, frmFichesListe& laListe);

  /// The entry rule of the tab: what would be deleted, and whether it may be.
  void Entre() override;

 private:
  void PermetSuppression(bool permise);
  void Supprime();

  QPushButton* cmdSupprimer_;
  QPushButton* cmdAideSupprimer_;
};

}  // namespace gastrelle
