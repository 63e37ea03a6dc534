// A page of the cheeses window that takes a cheese: boxes and lists of codes to fill in.
#pragma once

#include "controles/BoitesTexte.h"
#include "controles/ComboListe.h"
#include "fromages/CatalogueFromages.h"
#include "fromages/frmFromagesPage.h"

namespace gastrelle {

class frmFromagesSaisie : public frmFromagesPage {
 protected:
  /// `suffixe` ends the names of the controls.
  frmFromagesSaisie(const PlaceOnglet& place, const QString& suffixe);

  /// Trims the region and the notes in their boxes; answers all that was entered.
  [[nodiscard]] FromageSaisi Saisie();
  /// Shows the codes of a milk and of two months.
  void MontreCodes(std::int16_t lait, std::int16_t premierMois, std::int16_t dernierMois);

  LigneTexte* txtFromage;
  LigneTexte* txtRegion;
  ComboListe* ComboLait;
  ComboListe* ComboPremierMois;
  ComboListe* ComboDernierMois;
  ZoneTexte* txtNotes;
};

}  // namespace gastrelle
