// The window of a catalogue of titled texts: the host of its four pages, and what they share.
#pragma once

#include "controles/FenetreOnglets.h"
#include "fiches/CatalogueFiches.h"
#include "fiches/frmFichesDescription.h"

namespace gastrelle {

class frmFichesListe;

class frmFiches : public FenetreOnglets {
 public:
  /// Fills the list and shows its first entry.
  frmFiches(Module1& module, Cadre& cadre, const DescriptionFiches& description);

  [[nodiscard]] const DescriptionFiches& description() const { return description_; }
  [[nodiscard]] CatalogueFiches& catalogue() { return catalogue_; }
  /// The tab on which the record of the whole window is selected.
  [[nodiscard]] frmFichesListe& liste() { return liste_; }

 protected:
  [[nodiscard]] std::string Annonce() override;

 private:
  const DescriptionFiches& description_;
  CatalogueFiches catalogue_;
  frmFichesListe& liste_;
};

}  // namespace gastrelle
