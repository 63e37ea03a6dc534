// The recipes window: the host of its five pages, and what they share.
#pragma once

#include "controles/ComboListe.h"
#include "controles/FenetreOnglets.h"

namespace gastrelle {

class frmRecettesListe;
class frmRecettesAjouter;
class frmRecettesModifier;
class frmRecettesSupprimer;
class frmRecettesAlpha;

class frmRecettes final : public FenetreOnglets {
 public:
  static constexpr int ongletListe = 1;

  /// Fills the family lists, whose first entry brings its recipes and the first recipe's text.
  frmRecettes(Module1& module, Cadre& cadre);

  [[nodiscard]] Vue VueCourante() const override;

  /// The tab on which the recipe and the family of the whole window are selected.
  [[nodiscard]] frmRecettesListe& liste() { return *liste_; }
  /// Empties the family lists of the three pages and fills them again.
  void RechargeFamilles();
  /// The test of a chosen picture's extension. A refused one is told, and False is answered; one
  /// that the viewer can't show is told and accepted.
  [[nodiscard]] bool AccepteImage(std::string_view chemin);

 protected:
  [[nodiscard]] std::string Annonce() override;

 private:
  void ChargeFamilles();

  frmRecettesListe* liste_;
  frmRecettesAjouter* ajouter_;
  frmRecettesModifier* modifier_;
  frmRecettesSupprimer* supprimer_;
  frmRecettesAlpha* alpha_;
};

}  // namespace gastrelle
