// The tab "Modifier" of the cheeses window: the cheese on display, to be changed.
#pragma once

#include "fromages/frmFromagesSaisie.h"

namespace gastrelle {

class frmFromagesListe;

class frmFromagesModifier final : public frmFromagesSaisie {
 public:
  frmFromagesModifier(const PlaceOnglet& place, frmFromagesListe& liste);

  /// The entry rule of the tab: the fields take the cheese on display.
  void Entre() override;

 private:
  void Valide();
  [[nodiscard]] bool NomDejaDonne(const std::string& nom);

  frmFromagesListe& liste_;
};

}  // namespace gastrelle
