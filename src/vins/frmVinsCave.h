// The tab "Mes vins" of the wines window: the bottles of the wine on display, and the note on them.
#pragma once

#include "controles/BoitesTexte.h"
#include "controles/PageOnglet.h"

namespace gastrelle {

class frmVinsBouteilles;
class frmVinsListe;

class frmVinsCave final : public PageOnglet {
 public:
  frmVinsCave(const PlaceOnglet& place, frmVinsListe& liste);

  /// True if the box that has the keyboard lets it go.
  [[nodiscard]] bool PermetDeQuitter();
  [[nodiscard]] Vue VueCourante() const override;
  /// The entry rule of the tab: the bottles of the working record, whatever wine it holds, beside
  /// the name of the wine on display.
  void Entre() override;

 private:
  void Valide();

  frmVinsListe& liste_;
  LigneTexte* txtVinCave_;
  LigneTexte* txtRegionCave_;
  frmVinsBouteilles* bouteilles_;
  ZoneTexte* txtNotesCave_;
};

}  // namespace gastrelle
