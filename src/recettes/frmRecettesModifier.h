// The tab "Modifier" of the recipes window: the name of the family on display, or the recipe.
#pragma once

#include "controles/ComboListe.h"
#include "controles/PageOnglet.h"
#include "controles/ZoneTexte.h"

namespace gastrelle {

class frmRecettes;

class frmRecettesModifier final : public PageOnglet {
 public:
  explicit frmRecettesModifier(frmRecettes& hote);

  ComboListe* ComboFamillesModifier;

  /// The entry rule of the tab: the boxes take the family and the recipe on display.
  void Entre() override;

 private:
  void Dispose();
  void Branche();
  void ReprendFamille();
  void ReprendRecette();
  void PermetRecette(bool permise);
  void ChoisitOptionFamille();
  void ChoisitOptionRecette();
  void Reinitialise();
  void Valide();
  void ValideFamille();
  void EnregistreFamille(const std::string& nom);
  void ValideRecette();
  [[nodiscard]] bool TitreDejaDonne(const std::string& titre);
  [[nodiscard]] bool ImageRefusee();
  void EnregistreRecette();

  frmRecettes& hote_;
  QRadioButton* optionFamille_;
  QRadioButton* optionRecette_;
  LigneTexte* txtSaisieFamilleModifier_;
  LigneTexte* txtSaisieNomRecetteModifier_;
  ZoneTexte* txtSaisieRecetteModifier_;
  LigneTexte* txtImageModifier_;
  QPushButton* cmdImageModifier_;
  QPushButton* cmdValideModifier_;
  QPushButton* cmdEffacerModifier_;
};

}  // namespace gastrelle
