// The tab "Ajouter" of the favourites' window: a new category or a new favourite.
#pragma once

#include "controles/DeuxModes.h"
#include "favoris/frmFavorisSaisie.h"

namespace gastrelle {

class frmFavorisAjouter final : public frmFavorisSaisie {
 public:
  frmFavorisAjouter(const PlaceOnglet& place, frmFavorisListe& laListe);

  /// The entry rule of the tab: nothing is entered yet.
  void Entre() override;

 private:
  void ValideCategorie();
  /// Without a guard: a failure ends the program with its own report.
  void ValideFavori();
  void Efface();

  DeuxModes modes_;
};

}  // namespace gastrelle
