// The tab "Liste" of the wines window: the wine of the whole window, its region and its note.
#pragma once

#include <string>

#include "controles/BoitesTexte.h"
#include "controles/ListePartagee.h"
#include "controles/PageOnglet.h"

namespace gastrelle {

/// The tab on which the bottles of the wine on display are counted.
inline constexpr int ongletCaveDuVin = 6;

class frmVinsListe final : public PageOnglet {
 public:
  explicit frmVinsListe(const PlaceOnglet& place);

  ListePartagee regions;  ///< of all tabs
  ComboListe* ComboVins;
  LigneTexte* txtRegion;
  ZoneTexte* txtNotes;
  std::string notesCave;  ///< the note on the cellar of the wine on display, as it is stored

  /// Fills the lists of regions and wines and shows the first wine.
  void Charge();
  /// Empties the lists of regions and fills them again. Throws on a failure.
  void RechargeRegions();
  /// Adds all wines to those that the list holds. Throws on a failure.
  void ChargeVins();
  /// The same once the list is emptied.
  void RechargeVins();
  /// The list on display, with the keyboard on it.
  void Montre();
  [[nodiscard]] Vue VueCourante() const override;
  /// The entry rule of the tab.
  void Entre() override;

 private:
  void AfficheVin();
};

}  // namespace gastrelle
