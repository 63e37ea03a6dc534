// The tab "Liste" of the vintage chart: one area at a time, and the year of the whole window.
#pragma once

#include <cstdint>

#include "controles/ComboListe.h"
#include "controles/PageOnglet.h"
#include "vins/frmMillesimeGrille.h"

namespace gastrelle {

class frmMillesimeListe final : public PageOnglet {
 public:
  explicit frmMillesimeListe(const PlaceOnglet& place);

  ComboListe* ComboCru;
  GrilleMillesimes* MSFlexGrid2;
  /// The chosen year: its row in the grid, and the number of its record. Any change of the grid's
  /// selection overwrites it, the program's included.
  std::int32_t anneeCourante = 1;

  /// Fills the list of areas and shows the first one.
  void Charge();
  /// Reads the chosen area anew and selects its first year.
  void AfficheCru();
  [[nodiscard]] Vue VueCourante() const override;
  /// The entry rule of the tab: the focus to the chart, the chosen year in sight.
  void Entre() override;

 private:
  void Dispose();
};

}  // namespace gastrelle
