// The tab "Supprimer" of the recipes window: deletes the family on display with its recipes, or the
// recipe. The first family and the first recipe of the files are protected.
#pragma once

#include "controles/PageOnglet.h"
#include "controles/ZoneTexte.h"

namespace gastrelle {

class frmRecettes;

class frmRecettesSupprimer final : public PageOnglet {
 public:
  explicit frmRecettesSupprimer(frmRecettes& hote);

  /// The entry rule of the tab: what would be deleted, and whether it may be.
  void Entre() override;

 private:
  void Dispose();
  void MontreFamille();
  void MontreRecette();
  void Supprime();
  void SupprimeFamilleAffichee();
  void SupprimeRecetteAffichee();

  frmRecettes& hote_;
  QRadioButton* optionFamille_;
  QRadioButton* optionRecette_;
  QLabel* lblFamilleSupprimer_;
  QLabel* lblFamilleRecetteSupprimer_;
  QLabel* lblTitreRecetteSupprimer_;
  ZoneTexte* txtTexteRecetteSupprimer_;
  QPushButton* cmdSupprimer_;
};

}  // namespace gastrelle
