// The wines window: the table of its seven tabs.
#pragma once

#include "controles/FenetreOnglets.h"

namespace gastrelle {

class frmVinsListe;

class frmVins final : public FenetreOnglets {
 public:
  /// Fills the lists of regions and wines and shows the first wine.
  frmVins(Module1& module, Cadre& cadre);

  /// The tab on which the wine of the whole window is selected.
  [[nodiscard]] frmVinsListe& liste();

  void MontreEnregistrement(std::int32_t numero) override;

 protected:
  [[nodiscard]] std::string Annonce() override;
  [[nodiscard]] bool PermetOnglet(int vers) override;
};

}  // namespace gastrelle
