// The tab "Ma cave" of the wines window: the report of all bottles, wine by wine, with their
// totals.
#pragma once

#include "controles/ListeChoix.h"
#include "controles/ListeLignes.h"
#include "controles/PageOnglet.h"

namespace gastrelle {

class frmVinsListe;

class frmVinsTouteCave final : public PageOnglet {
 public:
  frmVinsTouteCave(const PlaceOnglet& place, frmVinsListe& liste);

  [[nodiscard]] Vue VueCourante() const override;
  /// The entry rule of the tab: the report is made anew.
  void Entre() override;

 private:
  frmVinsListe& liste_;
  ListeLignes* List1_;
  ListeChoix* List2_;  ///< hidden: puts the wines in their order
};

}  // namespace gastrelle
