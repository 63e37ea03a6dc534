// The tab "Liste" of a window of titled texts: the titles, the text of the one that is chosen.
#pragma once

#include "controles/ComboListe.h"
#include "controles/PageOnglet.h"
#include "controles/ZoneTexte.h"

namespace gastrelle {

class frmFiches;

class frmFichesListe final : public PageOnglet {
 public:
  explicit frmFichesListe(frmFiches& hote);

  ComboListe* combo;
  ZoneTexte* texte;

  /// Adds all live records to the list.
  void Charge();
  /// Empties the list and fills it again.
  void Recharge();
  /// The entry rule of the tab.
  void Entre() override;
  [[nodiscard]] Vue VueCourante() const override;

 private:
  void Affiche();

  frmFiches& hote_;
};

}  // namespace gastrelle
