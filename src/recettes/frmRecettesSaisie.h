// What the tabs "Ajouter" and "Modifier" of the recipes window have in common: the name of a
// family, or the family, the title, the text and the picture of a recipe.
#pragma once

#include <array>
#include <string>
#include <vector>

#include "controles/BoitesTexte.h"
#include "controles/ComboListe.h"
#include "controles/PageOnglet.h"
#include "recettes/ChangementRecettes.h"

namespace gastrelle {

class frmRecettesListe;

/// The controls of a page by their names, and the words in which the two pages differ.
struct DescriptionSaisieRecette {
  const char* options;  ///< the pair, without the index
  const char16_t* optionFamille;
  const char16_t* optionRecette;
  const char* famille;
  const char16_t* legendeFamille;
  const char* familles;
  const char* titre;
  const char* texte;
  const char* image;
  const char* cherche;  ///< the button that looks for a picture
};

class frmRecettesSaisie : public PageOnglet {
 protected:
  frmRecettesSaisie(const PlaceOnglet& place, frmRecettesListe& laListe,
                    const DescriptionSaisieRecette& noms);

  /// The controls that a recipe has and a family hasn't.
  [[nodiscard]] std::vector<QWidget*> PourRecette() const;
  /// The list of families on this page shows the family of the window.
  void ReprendIndiceFamille();
  /// The recipe as it stands in the controls, its picture's path as it goes on file.
  [[nodiscard]] RecetteSaisie Saisie() const;
  /// Tells that a file is no picture, with a beep.
  void RefuseImage();
  /// The test of the picture's extension. A refused one is told, and False is answered; one that
  /// the viewer can't show is told and accepted.
  [[nodiscard]] bool AccepteImage();

  frmRecettesListe& liste;
  std::array<QRadioButton*, 2> options;
  LigneTexte* famille;
  ComboListe* familles;
  LigneTexte* titre;
  ZoneTexte* texte;
  LigneTexte* image;
  QPushButton* cherche;
};

}  // namespace gastrelle
