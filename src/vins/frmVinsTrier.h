// The tab "Trier" of the wines window: the wines of a region, the map of the regions, and the way
// from there to a wine and to its bottles.
#pragma once

#include "controles/ComboListe.h"
#include "controles/ListeChoix.h"
#include "controles/PageOnglet.h"

namespace gastrelle {

class CarteVignobles;
class frmVinsListe;

class frmVinsTrier final : public PageOnglet {
 public:
  frmVinsTrier(const PlaceOnglet& place, frmVinsListe& liste);

  [[nodiscard]] Vue VueCourante() const override;
  /// The entry rule of the tab: no region is chosen yet, the map stands alone.
  void Entre() override;

 private:
  void Dispose();
  void ChoisitRegion();
  /// The wines with what belongs to them, or the map alone.
  void MontreVins(bool montres);
  void MontreLesSiens();
  /// The wine selected here becomes the wine of the whole window, shown on that tab.
  void Affiche(int onglet);

  frmVinsListe& liste_;
  ComboListe* ComboRegionVinTrier_;
  ListeChoix* lstTriVin_;
  QWidget* colonneVins_;  ///< the list under its caption
  CarteVignobles* PictureCarte_;
  QPushButton* cmdActiver_;
  QPushButton* cmdMaCave_;
};

}  // namespace gastrelle
