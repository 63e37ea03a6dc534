// The tab "Trier" of the wines window: the wines of a region, the map of the regions, and the way
// from there to a wine and to its bottles.
#pragma once

#include "controles/PageTri.h"

namespace gastrelle {

class CarteVignobles;
class frmVinsListe;

class frmVinsTrier final : public PageTri {
 public:
  frmVinsTrier(const PlaceOnglet& place, frmVinsListe& liste);

  [[nodiscard]] Vue VueCourante() const override;

 protected:
  [[nodiscard]] Liste EntreesDe(std::int32_t region) override;
  /// The wines, and their region on the map; or the map alone.
  void MontreEntrees(bool montrees, bool utilisables) override;
  void Affiche() override;

 private:
  void Dispose();
  /// The wine selected here becomes the wine of the whole window, shown on that tab.
  void AfficheSur(int onglet);

  frmVinsListe& liste_;
  CarteVignobles* PictureCarte_;
  QPushButton* cmdMaCave_;
};

}  // namespace gastrelle
