// The tab "Ajouter" of the cheeses window: a new cheese.
#pragma once

#include "fromages/frmFromagesSaisie.h"

namespace gastrelle {

class frmFromagesListe;

class frmFromagesAjouter final : public frmFromagesSaisie {
 public:
  frmFromagesAjouter(const PlaceOnglet& place, frmFromagesListe& liste);

  /// The entry rule of the tab: nothing is entered yet.
  void Entre() override;

 private:
  void Valide();
  void Efface();

  frmFromagesListe& liste_;
};

}  // namespace gastrelle
