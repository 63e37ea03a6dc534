// The tab "Ajouter" of the recipes window: a new family, or a new recipe with its text and picture.
#pragma once

#include "controles/ComboListe.h"
#include "controles/PageOnglet.h"
#include "controles/ZoneTexte.h"

namespace gastrelle {

class frmRecettes;

class frmRecettesAjouter final : public PageOnglet {
 public:
  explicit frmRecettesAjouter(frmRecettes& hote);

  ComboListe* ComboFamillesAjouter;

  /// The entry rule of the tab: the boxes are emptied, all but the picture's path.
  void Entre() override;

 private:
  void Dispose();
  void Branche();
  void ChoisitOptionFamille();
  void ChoisitOptionRecette();
  void Valide();
  void ValideFamille();
  void ValideRecette();
  void EnregistreRecette();
  void Efface();
  void ChangeImage();
  void CopieIndiceFamille();
  void FocusSelonOption();

  frmRecettes& hote_;
  QRadioButton* optionFamille_;
  QRadioButton* optionRecette_;
  LigneTexte* txtSaisieFamille_;
  LigneTexte* txtSaisieNomRecette_;
  ZoneTexte* txtSaisieRecetteAjouter_;
  LigneTexte* txtImageAjouter_;
  QPushButton* cmdImageAjouter_;
  QPushButton* cmdValideAjouter_;
  QPushButton* cmdEffacerAjouter_;
  QPushButton* PictureWeb_;
};

}  // namespace gastrelle
