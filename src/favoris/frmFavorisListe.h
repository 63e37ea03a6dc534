// The tab "Liste" of the favourites' window: the favourite of the whole window, whose e-mail
// address and web site can be clicked.
#pragma once

#include "controles/ComboListe.h"
#include "controles/LienTexte.h"
#include "controles/ListePartagee.h"
#include "favoris/frmFavorisFiche.h"

namespace gastrelle {

class frmFavorisListe final : public frmFavorisFiche {
 public:
  explicit frmFavorisListe(const PlaceOnglet& place);

  ListePartagee categories;  ///< of all tabs
  ComboListe* ComboFavoris;
  LigneTexte* txtCategorie;

  /// Fills the lists of categories and favourites and shows the first favourite.
  void Charge();
  /// Empties the lists of categories and fills them again. Throws on a failure.
  void RechargeCategories();
  /// Empties the list of favourites and fills it again, under a guard of its own.
  void RechargeFavoris();
  /// Fills the list of favourites again, on that tab, and chooses `numero` there; raises error 53
  /// if the list doesn't hold it.
  void Montre(std::int32_t numero);
  [[nodiscard]] Vue VueCourante() const override;
  /// The entry rule of the tab.
  void Entre() override;

 private:
  void AfficheFavori();

  LienTexte* lienEmail_;
  LienTexte* lienWeb_;
};

}  // namespace gastrelle
