// The tab "Liste" of the recipes window: families, recipes of a family, the text of a recipe.
#pragma once

#include "controles/ComboListe.h"
#include "controles/PageOnglet.h"
#include "controles/ZoneTexte.h"

namespace gastrelle {

class frmRecettes;

class frmRecettesListe final : public PageOnglet {
 public:
  explicit frmRecettesListe(frmRecettes& hote);

  ComboListe* ComboFamilles;
  ComboListe* ComboRecettes;
  ZoneTexte* txtRecette;
  QLabel* lblLaRecette;  ///< its `Tag` is the complete path of the recipe's picture, or empty
  QPushButton* cmdCameraListe;

  /// The event of a family's selection: refills the recipes.
  void ChoisitFamille();
  /// Complete path of the picture of the recipe on display, Windows-1252; empty without one.
  [[nodiscard]] std::string Image() const;
  [[nodiscard]] Vue VueCourante() const override;
  /// The entry rule of the tab.
  void Entre() override;

 private:
  void Dispose();
  void ChargeRecettes();
  void AfficheRecette();
  void PoseImage(const std::string& chemin);
  void AnnonceImagePerdue(const std::string& chemin);

  frmRecettes& hote_;
};

}  // namespace gastrelle
