// The tab "Modifier" of the recipes window: the name of the family on display, or the recipe.
#pragma once

#include "controles/DeuxModes.h"
#include "recettes/frmRecettesSaisie.h"

namespace gastrelle {

class frmRecettesModifier final : public frmRecettesSaisie {
 public:
  frmRecettesModifier(const PlaceOnglet& place, frmRecettesListe& laListe);

  /// The entry rule of the tab: the boxes take the family and the recipe on display.
  void Entre() override;

 private:
  void ReprendFamille();
  void ReprendRecette();
  void Reinitialise();
  void ValideFamille();
  void EnregistreFamille(const std::string& nom);
  void ValideRecette();
  [[nodiscard]] bool TitreDejaDonne();
  [[nodiscard]] bool ImageRefusee();
  void EnregistreRecette();
  void VaALaListe();

  DeuxModes modes_;
};

}  // namespace gastrelle
