// The tab "Alpha" of the recipes window: all recipes in alphabetical order, and the way from there
// to a recipe.
#pragma once

#include "controles/ListeChoix.h"
#include "controles/PageOnglet.h"

namespace gastrelle {

class frmRecettes;

class frmRecettesAlpha final : public PageOnglet {
 public:
  explicit frmRecettesAlpha(frmRecettes& hote);

  /// The entry rule of the tab: builds the classification.
  void Entre() override;

 private:
  void ChargeClassement();
  void AfficheSelection();
  void VaALaRecette(std::int32_t numero);

  frmRecettes& hote_;
  ListeChoix* lstRecettesTri_;
  QLabel* lblNbreRecette_;
  QPushButton* cmdValideTri_;
};

}  // namespace gastrelle
