// The tab "Liste" of the cheeses window: the cheese of the whole window, with all that is known of
// it.
#pragma once

#include "controles/ComboListe.h"
#include "data/Vues.h"
#include "fromages/frmFromagesAffichage.h"

namespace gastrelle {

class frmFromagesListe final : public frmFromagesAffichage {
 public:
  explicit frmFromagesListe(const PlaceOnglet& place);

  ComboListe* ComboFromages;
  VueFromage fromage;  ///< on display

  /// Fills the list of cheeses and shows the first one.
  void Charge();
  /// Empties the list of cheeses and fills it again. Throws on a failure.
  void Recharge();
  [[nodiscard]] Vue VueCourante() const override { return fromage; }
  /// The entry rule of the tab: the focus to the first box that holds something.
  void Entre() override;

 private:
  void AfficheFromage();
};

}  // namespace gastrelle
