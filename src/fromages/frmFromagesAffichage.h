// A page of the cheeses window that shows a cheese: boxes that can be read and copied, not changed.
#pragma once

#include "controles/BoitesTexte.h"
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
  /// `suffixe` ends the names of the boxes.
  frmFromagesAffichage(const PlaceOnglet& place, const QString& suffixe);

  /// Lays the boxes out behind `nom`, the control that tells the cheese.
  void DisposeSous(QWidget* nom);
  /// Shows all but the name.
  void Montre(const VueFromage& fromage);
};

}  // namespace gastrelle
