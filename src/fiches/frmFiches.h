// The window of a catalogue of titled texts: what the two windows above it share over their pages.
#pragma once

#include "controles/FenetreOnglets.h"
#include "fiches/frmFichesListe.h"

namespace gastrelle {

class frmFiches : public FenetreOnglets {
 public:
  /// Fills the list and shows its first entry.
  frmFiches(Module1& module, Cadre& cadre, const DescriptionFenetre& description,
            const JeuOnglets& jeu);

  /// The tab on which the record of the whole window is selected.
  [[nodiscard]] frmFichesListe& liste();

  void MontreEnregistrement(std::int32_t numero) override;

 protected:
  [[nodiscard]] std::string Annonce() override;
};

/// How a window's table names its list page, the one that is told which catalogue it shows.
template <const DescriptionFiches& description>
Onglet& CreeListe(const PlaceOnglet& place) {
  return *new frmFichesListe(place, description);
}

}  // namespace gastrelle
