// What the tabs "Ajouter", "Modifier" and "Supprimer" have in common: a box for the title over a
// box for the text.
#pragma once

#include "controles/PageOnglet.h"
#include "controles/ZoneTexte.h"
#include "fiches/frmFichesDescription.h"

namespace gastrelle {

class frmFichesListe;

class frmFichesSaisie : public PageOnglet {
 protected:
  /// `controles`: the part of the description that tells this page's boxes.
  frmFichesSaisie(const PlaceOnglet& place, frmFichesListe& liste,
                  DescriptionSaisie DescriptionFiches::*controles);

  /// Both boxes take the record on display, their cursors at the start.
  void Reprend();
  void Vide();
  /// Takes the blanks off both ends of the title, which stays so in its box.
  [[nodiscard]] std::string TitreRogne();
  [[nodiscard]] std::string TexteRogne();

  [[nodiscard]] frmFichesListe& liste() const { return liste_; }
  [[nodiscard]] const DescriptionFiches& description() const;
  [[nodiscard]] LigneTexte& titre() { return *titre_; }
  [[nodiscard]] ZoneTexte& texte() { return *texte_; }

 private:
  frmFichesListe& liste_;
  LigneTexte* titre_;
  ZoneTexte* texte_;
};

}  // namespace gastrelle
