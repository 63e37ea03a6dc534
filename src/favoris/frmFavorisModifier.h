// The tab "Modifier" of the favourites' window: a category's name, or the favourite on display.
#pragma once

#include "controles/DeuxModes.h"
#include "favoris/frmFavorisSaisie.h"

namespace gastrelle {

class frmFavorisModifier final : public frmFavorisSaisie {
 public:
  frmFavorisModifier(const PlaceOnglet& place, frmFavorisListe& laListe);

  /// The entry rule of the tab: what the option that is set brings when it is clicked.
  void Entre() override;

 private:
  /// The name of the category that is to be renamed.
  void ReprendCategorie();
  /// The favourite on display, its category chosen: none where that was deleted.
  void ReprendFavori();
  /// Its category as it is chosen, or the one it has where none is.
  [[nodiscard]] std::int32_t CategorieChoisie();
  void Reinitialise();
  void ValideCategorie();
  /// Without a guard: a failure ends the program with its own report.
  void ValideFavori();

  ComboListe* renommee_;  ///< the category to rename
  DeuxModes modes_;
};

}  // namespace gastrelle
