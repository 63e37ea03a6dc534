// The tab "Ajouter" of the recipes window: a new family, or a new recipe with its text and picture.
#pragma once

#include "controles/DeuxModes.h"
#include "recettes/frmRecettesSaisie.h"

namespace gastrelle {

class frmRecettesAjouter final : public frmRecettesSaisie {
 public:
  frmRecettesAjouter(const PlaceOnglet& place, frmRecettesListe& laListe);

  /// The entry rule of the tab: the boxes are emptied, all but the picture's path.
  void Entre() override;

 private:
  void PoseBoutons();
  void ChangeImage();
  void ValideFamille();
  void ValideRecette();
  void EnregistreRecette();
  void Efface();

  DeuxModes modes_;
};

}  // namespace gastrelle
