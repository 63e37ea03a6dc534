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
  frmFichesListe(const PlaceOnglet& place, const DescriptionFiches& description);

  ComboListe* combo;
  ZoneTexte* texte;

  [[nodiscard]] const DescriptionFiches& description() const { return description_; }
  /// Title of the record on display, trimmed; empty without one.
  [[nodiscard]] std::string Titre() const;

  /// Fills the list and shows its first entry.
  void Charge();
  /// Empties the list and fills it again.
  void Recharge();
  /// The entry rule of the tab.
  void Entre() override;
  [[nodiscard]] Vue VueCourante() const override;

 private:
  void Affiche();

  const DescriptionFiches& description_;
};

}  // namespace gastrelle
