// The cheeses window: the table of its five tabs.
#pragma once

#include "controles/FenetreOnglets.h"

namespace gastrelle {

class frmFromagesListe;

class frmFromages final : public FenetreOnglets {
 public:
  /// Fills the list of cheeses and shows the first one.
  frmFromages(Module1& module, Cadre& cadre);

  /// The tab on which the cheese of the whole window is selected.
  [[nodiscard]] frmFromagesListe& liste();

  void MontreEnregistrement(std::int32_t numero) override;

 protected:
  [[nodiscard]] std::string Annonce() override;
};

}  // namespace gastrelle
