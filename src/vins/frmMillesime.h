// The window of the vintage chart: the table of its three tabs, and the year that can't be added.
#pragma once

#include "controles/FenetreOnglets.h"

namespace gastrelle {

class frmMillesimeListe;

class frmMillesime final : public FenetreOnglets {
 public:
  /// Shows the first area from its first year on.
  frmMillesime(Module1& module, Cadre& cadre);

  /// The tab on which the year of the whole window is chosen.
  [[nodiscard]] frmMillesimeListe& liste();

 protected:
  [[nodiscard]] std::string Annonce() override;
  /// The year on offer must be over.
  [[nodiscard]] bool PermetOnglet(int vers) override;

 private:
  /// True if the next year of the chart is that of the machine's date, or later.
  [[nodiscard]] bool AnneeOfferteEstEntamee();
};

}  // namespace gastrelle
