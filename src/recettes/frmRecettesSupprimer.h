// The tab "Supprimer" of the recipes window: deletes the family on display with its recipes, or the
// recipe. The first family and the first recipe of the files are protected.
#pragma once

#include "controles/DeuxModes.h"
#include "controles/PageOnglet.h"
#include "controles/ZoneTexte.h"

namespace gastrelle {

class frmRecettesListe;

class frmRecettesSupprimer final : public PageOnglet {
 public:
  frmRecettesSupprimer(const PlaceOnglet& place, frmRecettesListe& liste);

  /// The entry rule of the tab: what would be deleted, and whether it may be.
  void Entre() override;

 private:
  void MontreFamille();
  void MontreRecette();
  void Supprime();
  void SupprimeFamilleAffichee();
  void SupprimeRecetteAffichee();

  frmRecettesListe& liste_;
  std::array<QRadioButton*, 2> options_;
  DeuxModes modes_;
  QLabel* lblFamilleSupprimer_;
  QLabel* lblFamilleRecetteSupprimer_;
  QLabel* lblTitreRecetteSupprimer_;
  ZoneTexte* txtTexteRecetteSupprimer_;
  QPushButton* cmdSupprimer_;
};

}  // namespace gastrelle
