// The tab "Modifier" of the wines window: a region's name, or the wine on display.
#pragma once

#include <string>

#include "controles/DeuxModes.h"
#include "vins/frmVinsSaisie.h"

namespace gastrelle {

class frmVinsModifier final : public frmVinsSaisie {
 public:
  frmVinsModifier(const PlaceOnglet& place, frmVinsListe& laListe);

  /// The entry rule of the tab: the first region, and the wine on display, which is to be changed.
  void Entre() override;

 private:
  void ReprendRegion();
  /// Name, region and note of the wine on display; the working record then holds it as stored.
  void ReprendVin();
  /// The first region and the wine on display, over what was typed.
  void ReprendTout();
  /// Reads the wine on display anew and selects its region.
  void PositionneRegionVin();
  void Reinitialise();
  void ValideRegion();
  void EnregistreRegion(const std::string& nouveau);
  void ValideVin();
  void EnregistreVin();

  ComboListe* renommee_;  ///< the region to rename
  DeuxModes modes_;
};

}  // namespace gastrelle
