// The tab "Supprimer" of the favourites' window: deletes a category with its favourites, or the
// favourite on display. Those of the factory are protected.
#pragma once

#include <QRadioButton>

#include "controles/ComboListe.h"
#include "controles/DeuxModes.h"
#include "favoris/frmFavorisFiche.h"

namespace gastrelle {

class frmFavorisListe;

class frmFavorisSupprimer final : public frmFavorisFiche {
 public:
  frmFavorisSupprimer(const PlaceOnglet& place, frmFavorisListe& liste);

  /// The entry rule of the tab: the favourite on display is what would be deleted.
  void Entre() override;

 private:
  [[nodiscard]] bool EstProtege();
  void Supprime();

  frmFavorisListe& liste_;
  std::array<QRadioButton*, 2> options_;
  ComboListe* ComboCategorieSupprimer_;
  LigneTexte* txtCategorieFavoriSupprimer_;
  LigneTexte* txtNomFavoriSupprimer_;
  DeuxModes modes_;
};

}  // namespace gastrelle
