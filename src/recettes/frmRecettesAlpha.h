// The tab "Alpha" of the recipes window: all recipes in alphabetical order, and the way from there
// to a recipe.
#pragma once

#include "controles/ListeChoix.h"
#include "controles/PageOnglet.h"

namespace gastrelle {

class frmRecettesListe;

class frmRecettesAlpha final : public PageOnglet {
 public:
  frmRecettesAlpha(const PlaceOnglet& place, frmRecettesListe& liste);

  /// The entry rule of the tab: builds the classification.
  void Entre() override;

 private:
  void AfficheSelection();

  frmRecettesListe& liste_;
  ListeChoix* lstRecettesTri_;
  QLabel* lblNbreRecette_;
};

}  // namespace gastrelle
