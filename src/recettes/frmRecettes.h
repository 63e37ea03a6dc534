// The recipes window: the host of its five pages, and what they share.
#pragma once

#include <vector>

#include "controles/ComboListe.h"
#include "controles/FenetreOnglets.h"

namespace gastrelle {

class frmRecettesListe;

class frmRecettes final : public FenetreOnglets {
 public:
  /// Fills the list of families, whose first entry brings its recipes and the first recipe's text.
  frmRecettes(Module1& module, Cadre& cadre);

  /// The tab on which the recipe and the family of the whole window are selected.
  [[nodiscard]] frmRecettesListe& liste() { return liste_; }
  /// From now on a page's list of families holds what the window's others hold.
  void SuitFamilles(ComboListe& combo);
  /// Empties the lists of families and fills them again.
  void RechargeFamilles();
  /// The test of a chosen picture's extension. A refused one is told, and False is answered; one
  /// that the viewer can't show is told and accepted.
  [[nodiscard]] bool AccepteImage(std::string_view chemin);

 protected:
  [[nodiscard]] std::string Annonce() override;

 private:
  void ChargeFamilles();

  std::vector<ComboListe*> familles_;
  frmRecettesListe& liste_;
};

}  // namespace gastrelle
