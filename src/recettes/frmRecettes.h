// The recipes window: the table of its five tabs.
#pragma once

#include "controles/FenetreOnglets.h"

namespace gastrelle {

class frmRecettesListe;

class frmRecettes final : public FenetreOnglets {
 public:
  /// Fills the lists and shows the first recipe of the first family.
  frmRecettes(Module1& module, Cadre& cadre);

  /// The tab on which the recipe and the family of the whole window are selected.
  [[nodiscard]] frmRecettesListe& liste();

  void MontreEnregistrement(std::int32_t numero) override;

 protected:
  [[nodiscard]] std::string Annonce() override;
};

}  // namespace gastrelle
