// What the tabs "Ajouter" and "Modifier" of the wines window have in common: the name of a region,
// or the name, the region and the note of a wine.
#pragma once

#include <array>
#include <vector>

#include "controles/BoitesTexte.h"
#include "controles/ComboListe.h"
#include "controles/PageOnglet.h"
#include "vins/CatalogueVins.h"

namespace gastrelle {

class frmVinsListe;

/// The controls of a page by their names, and the words in which the two pages differ.
struct DescriptionSaisieVin {
  const char* options;  ///< the pair, without the index
  const char16_t* optionVin;
  const char* nomRegion;
  const char16_t* legendeRegion;
  const char* nom;
  const char* regions;
  const char* notes;
};

class frmVinsSaisie : public PageOnglet {
 protected:
  frmVinsSaisie(const PlaceOnglet& place, frmVinsListe& laListe, const DescriptionSaisieVin& noms);

  /// Puts the controls on the page, each beside its caption, behind those that are there.
  void Dispose();
  /// The controls that a wine has and a region hasn't.
  [[nodiscard]] std::vector<QWidget*> PourVin() const { return {nom, regions, notes}; }
  /// Trims the note in its box; answers the wine as it stands in the controls.
  [[nodiscard]] VinSaisi Saisie();

  frmVinsListe& liste;
  std::array<QRadioButton*, 2> options;
  LigneTexte* nomRegion;
  LigneTexte* nom;
  ComboListe* regions;  ///< where the wine's own is chosen
  ZoneTexte* notes;

 private:
  QString legendeRegion_;
};

}  // namespace gastrelle
