// The tab "Trier" of the favourites' window: the favourites of a category, and the way from there
// to one of them.
#pragma once

#include "controles/PageTri.h"

namespace gastrelle {

class frmFavorisListe;

class frmFavorisTrier final : public PageTri {
 public:
  frmFavorisTrier(const PlaceOnglet& place, frmFavorisListe& liste);

  [[nodiscard]] Vue VueCourante() const override;

 protected:
  [[nodiscard]] Liste EntreesDe(std::int32_t categorie) override;
  /// The favourites, or the picture in their place.
  void MontreEntrees(bool montrees, bool utilisables) override;
  void Affiche() override;

 private:
  frmFavorisListe& liste_;
  QWidget* ImageCentre_;
};

}  // namespace gastrelle
