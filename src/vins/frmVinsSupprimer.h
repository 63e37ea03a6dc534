// The tab "Supprimer" of the wines window: deletes a region with its wines, or the wine on display.
// Those of the factory are protected.
#pragma once

#include "controles/BoitesTexte.h"
#include "controles/ComboListe.h"
#include "controles/DeuxModes.h"
#include "controles/PageOnglet.h"

namespace gastrelle {

class frmVinsListe;

class frmVinsSupprimer final : public PageOnglet {
 public:
  frmVinsSupprimer(const PlaceOnglet& place, frmVinsListe& liste);

  /// The entry rule of the tab: the wine on display is what would be deleted.
  void Entre() override;

 private:
  [[nodiscard]] bool EstProtege();
  void Supprime();
  void SupprimeRegionChoisie();
  void SupprimeVinAffiche();

  frmVinsListe& liste_;
  std::array<QRadioButton*, 2> options_;
  ComboListe* ComboRegionSupprimer_;
  LigneTexte* txNomVinSupprimer_;
  LigneTexte* txtRegionVinSupprimer_;
  ZoneTexte* txtNoteVinSupprimer_;
  DeuxModes modes_;
};

}  // namespace gastrelle
