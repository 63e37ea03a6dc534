// The tab "Liste" of the recipes window: families, recipes of a family, the text of a recipe. What
// is chosen here is the family and the recipe of the whole window.
#pragma once

#include "controles/ComboListe.h"
#include "controles/ListePartagee.h"
#include "controles/PageOnglet.h"
#include "controles/ZoneTexte.h"
#include "images/Vignette.h"

namespace gastrelle {

class frmRecettesListe final : public PageOnglet {
 public:
  explicit frmRecettesListe(const PlaceOnglet& place);

  ListePartagee familles;  ///< of all tabs
  ComboListe* ComboFamilles;
  ComboListe* ComboRecettes;
  ZoneTexte* txtRecette;
  QLabel* lblLaRecette;  ///< its `Tag` is the complete path of the recipe's picture, or empty
  QPushButton* cmdCameraListe;

  /// Fills the list of families, whose first entry brings its recipes and the first recipe's text.
  void Charge();
  /// Fills the lists of families again. Throws on a failure.
  void RechargeFamilles();
  /// The event of a family's selection: refills the recipes.
  void ChoisitFamille();
  /// Selects a recipe and its family; the working record then holds it. Raises error 53 if a list
  /// doesn't hold one of them; throws on a failure.
  void ChoisitRecette(std::int32_t numero);

  /// Complete path of the picture of the recipe on display, Windows-1252; empty without one.
  [[nodiscard]] std::string Image() const;
  [[nodiscard]] Vue VueCourante() const override;
  /// The entry rule of the tab.
  void Entre() override;

 private:
  void Dispose();
  void DisposeRecette();
  void ChargeRecettes();
  void AfficheRecette();
  void RetientImage(const std::string& chemin);
  void AnnonceImagePerdue(const std::string& chemin);
  /// Shows a picture beside the text; an empty path: none.
  void MontreImage(const std::string& chemin);

  Vignette* imgRecette_;
};

}  // namespace gastrelle
