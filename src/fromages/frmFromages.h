// The cheeses window: the host of its five pages, and what they share.
#pragma once

#include "controles/FenetreOnglets.h"

namespace gastrelle {

class frmFromagesListe;

class frmFromages final : public FenetreOnglets {
 public:
  /// Fills the list of cheeses and shows the first one.
  frmFromages(Module1& module, Cadre& cadre);

  /// The tab on which the cheese of the whole window is selected.
  [[nodiscard]] frmFromagesListe& liste() { return liste_; }
  /// Empties the list of cheeses and fills it again. Throws on a failure.
  void RechargeFromages();
  /// Goes to the list and selects a cheese there; error 53 if the list doesn't hold it.
  void MontreFromage(std::int32_t numero);

 protected:
  [[nodiscard]] std::string Annonce() override;

 private:
  frmFromagesListe& liste_;
};

}  // namespace gastrelle
