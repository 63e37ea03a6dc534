// What the tabs "Ajouter", "Modifier" and "Supprimer" have in common: a box for the title over a
// box for the text.
#pragma once

#include "controles/BoitesTexte.h"
#include "controles/PageOnglet.h"
#include "fiches/frmFichesDescription.h"

namespace gastrelle {

class frmFichesListe;

class frmFichesSaisie : public PageOnglet {
 protected:
  /// `controles`: the part of the description that tells this page's boxes.
  frmFichesSaisie(const PlaceOnglet& place, frmFichesListe& laListe,
                  DescriptionSaisie DescriptionFiches::*controles);

  /// Both boxes take the record on display, their cursors at the start.
  void Reprend();

  frmFichesListe& liste;
  const DescriptionFiches& description;
  LigneTexte* titre;
  ZoneTexte* texte;
};

}  // namespace gastrelle
