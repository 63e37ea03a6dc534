// A page of the cheeses window that shows a cheese: boxes that can be read and copied, not changed.
#pragma once

#include "controles/ZoneTexte.h"
#include "fromages/CatalogueFromages.h"
#include "fromages/frmFromagesPage.h"

namespace gastrelle {

class frmFromagesAffichage : public frmFromagesPage {
 public:
  LigneTexte* txtRegion;
  LigneTexte* txtLait;
  LigneTexte* txtPremierMois;
  LigneTexte* txtDernierMois;
  ZoneTexte* txtNotes;

 protected:
  /// `suffixe` ends the names of the boxes; `nom` is the control that tells the cheese.
  frmFromagesAffichage(const PlaceOnglet& place, const QString& suffixe, QWidget* nom);

  void Montre(const FromageLu& fromage);
  /// Takes the texts of another page.
  void Reprend(const frmFromagesAffichage& page);
};

}  // namespace gastrelle
