// The tab "Liste" of a window of titled texts: the titles, the text of the one that is chosen,
// which is the record of the whole window.
#pragma once

#include "controles/ComboListe.h"
#include "controles/PageOnglet.h"
#include "controles/ZoneTexte.h"
#include "fiches/frmFichesDescription.h"

namespace gastrelle {

class frmFichesListe final : public PageOnglet {
 public:
  frmFichesListe(const PlaceOnglet& place, const DescriptionFiches& fiches);

  const DescriptionFiches& description;
  ComboListe* combo;
  ZoneTexte* texte;

  /// Fills the list and shows its first entry.
  void Charge();
  /// Empties the list and fills it again.
  void Recharge();
  /// The entry rule of the tab.
  void Entre() override;
  [[nodiscard]] Vue VueCourante() const override;

 private:
  void Affiche();
};

}  // namespace gastrelle
