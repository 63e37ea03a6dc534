// What the tabs "Ajouter", "Modifier" and "Supprimer" have in common: a box for the title over a
// box for the text.
#pragma once

#include "controles/PageOnglet.h"
#include "controles/ZoneTexte.h"
#include "fiches/frmFichesDescription.h"

namespace gastrelle {

class frmFiches;

class frmFichesSaisie : public PageOnglet {
 protected:
  frmFichesSaisie(frmFiches& hote, const DescriptionSaisie& description);

  /// Both boxes take the record on display, their cursors at the start.
  void Reprend();
  void Vide();
  /// Takes the blanks off both ends of the title, which stays so in its box.
  [[nodiscard]] std::string TitreRogne();
  [[nodiscard]] std::string TexteRogne();

  [[nodiscard]] frmFiches& hote() { return hote_; }
  [[nodiscard]] LigneTexte& titre() { return *titre_; }
  [[nodiscard]] ZoneTexte& texte() { return *texte_; }

 private:
  frmFiches& hote_;
  LigneTexte* titre_;
  ZoneTexte* texte_;
};

}  // namespace gastrelle
