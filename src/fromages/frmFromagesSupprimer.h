// The tab "Supprimer" of the cheeses window: deletes the cheese on display. Those of the factory
// are protected.
#pragma once

#include "fromages/frmFromagesAffichage.h"

namespace gastrelle {

class frmFromagesListe;

class frmFromagesSupprimer final : public frmFromagesAffichage {
 public:
  frmFromagesSupprimer(const PlaceOnglet& place, frmFromagesListe& liste);

  /// The entry rule of the tab: what would be deleted, and whether it may be.
  void Entre() override;

 private:
  void Protege(bool protege);
  void Supprime();

  frmFromagesListe& liste_;
  LigneTexte* txtFromage_;
  QPushButton* cmdSupprimer_;
  QPushButton* cmdAideSupprimer_;
};

}  // namespace gastrelle
