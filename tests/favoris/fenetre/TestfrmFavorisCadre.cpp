// The favourites' window inside the real frame: its entry and its button, what each tab allows,
// what becomes of the frame when the window is minimised and restored.

#include <utility>
#include <vector>

#include "doublures/CadreVrai.h"
#include "favoris/FavorisEssai.h"

namespace gastrelle::essai {
namespace {

using testing::IsEmpty;

class FavorisDansLeCadre : public CadreVrai {
 protected:
  FavorisDansLeCadre() {
    b.GarnitFavoris();
    AjouteAffineur(b);
  }

  void OuvreLesFavoris() {
    Ouvre();
    Choisit("mnuViewFavoris");
  }
  void Reduit() {
    Sous("frmFavoris").showMinimized();
    QApplication::processEvents();
  }
  void AttendLaListeActive() {
    EXPECT_EQ(b.module->contexteActif, 71);
    EXPECT_TRUE(Entree("mnuViewFavoris").isChecked());
    EXPECT_EQ(Motif(), "+-+-+-++-");
    EXPECT_FALSE(b.pointeur.sablier);
  }
  void AttendCadreEteint() {
    EXPECT_EQ(b.module->contexteActif, 0);
    EXPECT_FALSE(Entree("mnuViewFavoris").isChecked());
    EXPECT_EQ(Motif(), "---------");
  }
};

TEST_F(FavorisDansLeCadre, LEntreeDuMenuLesOuvreALaPlaceDesRecettes) {
  OuvreLesFavoris();
  AttendLaListeActive();
  EXPECT_FALSE(Entree("mnuViewRecettes").isChecked());
  EXPECT_EQ(Texte(Le("ComboFavoris")), "Affineur");
}

TEST_F(FavorisDansLeCadre, LeBoutonDeLaBarreLesOuvreAussi) {
  Ouvre();
  Clique(BoutonBarre("Favoris"));
  QApplication::processEvents();
  AttendLaListeActive();
}

TEST_F(FavorisDansLeCadre, ChaqueOngletPoseSonCodeEtSonMotif) {
  OuvreLesFavoris();
  const std::vector<std::pair<int, const char*>> motifs{
      {2, "-++++----"}, {3, "-++++----"}, {4, "---------"}, {5, "+-----++-"}, {1, "+-+-+-++-"}};
  for (const auto& [onglet, motif] : motifs) {
    CliqueOnglet(Le("frmFavoris"), onglet);
    EXPECT_EQ(b.module->contexteActif, 70 + onglet);
    EXPECT_EQ(Motif(), motif) << onglet;
  }
  AttendLaListeActive();
}

TEST_F(FavorisDansLeCadre, UnOngletRefuseLaisseLeCadreALOngletDuTri) {
  OuvreLesFavoris();
  CliqueOnglet(Le("frmFavoris"), 5);
  CliqueOnglet(Le("frmFavoris"), 3);
  EXPECT_EQ(b.module->contexteActif, 75);
  EXPECT_EQ(Motif(), "+-----++-");
}

TEST_F(FavorisDansLeCadre, LesRechoisirLesLaisseTelsQuIlsSontJusquAuPointeur) {
  OuvreLesFavoris();
  CliqueOnglet(Le("frmFavoris"), 2);
  Tape(Le("txtNomFavoriAjouter"), "Zinc");
  b.disque.OublieJournal();
  Choisit("mnuViewFavoris");
  EXPECT_FALSE(b.pointeur.sablier);
  b.pointeur.Sablier();
  Clique(BoutonBarre("Favoris"));
  QApplication::processEvents();
  EXPECT_EQ(Texte(Le("txtNomFavoriAjouter")), "Zinc");
  EXPECT_EQ(b.module->contexteActif, 72);
  EXPECT_TRUE(Entree("mnuViewFavoris").isChecked());
  EXPECT_TRUE(b.pointeur.sablier);
  EXPECT_THAT(b.disque.journal(), IsEmpty());
}

TEST_F(FavorisDansLeCadre, ReduitsIlsLaissentLeCadreTelQuIlEst) {
  Ouvre();
  recettes().close();
  Choisit("mnuViewFavoris");
  CliqueOnglet(Le("frmFavoris"), 5);
  Reduit();
  EXPECT_EQ(b.module->contexteActif, 75);
  EXPECT_TRUE(Entree("mnuViewFavoris").isChecked());
  EXPECT_EQ(Motif(), "+-----++-");
}

TEST_F(FavorisDansLeCadre, ReduitsIlsGardentLeurCocheQuandUneAutrePrendLeCadre) {
  OuvreLesFavoris();
  Reduit();
  Choisit("mnuViewRecettes");
  EXPECT_EQ(b.module->contexteActif, 11);
  EXPECT_TRUE(Entree("mnuViewRecettes").isChecked());
  EXPECT_TRUE(Entree("mnuViewFavoris").isChecked());
}

TEST_F(FavorisDansLeCadre, RetablisIlsRallumentLeCadre) {
  OuvreLesFavoris();
  Reduit();
  Sous("frmFavoris").showNormal();
  QApplication::processEvents();
  AttendLaListeActive();
}

TEST_F(FavorisDansLeCadre, ReduitsIlsSeRetablissentParLeurEntree) {
  OuvreLesFavoris();
  Reduit();
  Choisit("mnuViewRecettes");
  Choisit("mnuViewFavoris");
  EXPECT_FALSE(Sous("frmFavoris").isMinimized());
  AttendLaListeActive();
}

TEST_F(FavorisDansLeCadre, PasserAuxRecettesPuisRevenirDeplaceLaCocheEtVideLAjout) {
  OuvreLesFavoris();
  CliqueOnglet(Le("frmFavoris"), 2);
  Tape(Le("txtNomFavoriAjouter"), "Zinc");
  Choisit("mnuViewRecettes");
  EXPECT_FALSE(Entree("mnuViewFavoris").isChecked());
  EXPECT_EQ(b.module->contexteActif, 11);
  Choisit("mnuViewFavoris");
  EXPECT_FALSE(Entree("mnuViewRecettes").isChecked());
  EXPECT_EQ(b.module->contexteActif, 72);
  EXPECT_EQ(Texte(Le("txtNomFavoriAjouter")), "");
}

TEST_F(FavorisDansLeCadre, FermesIlsEteignentLeCadre) {
  Ouvre();
  recettes().close();
  Choisit("mnuViewFavoris");
  Sous("frmFavoris").close();
  QApplication::processEvents();
  AttendCadreEteint();
}

TEST_F(FavorisDansLeCadre, SeulsIlsSOuvrentALaTailleDesPreferences) {
  for (const std::int16_t normale : {std::int16_t{0}, std::int16_t{1}}) {
    SCOPED_TRACE(normale);
    Ouvre({normale, 0, 1});
    recettes().close();
    QApplication::processEvents();
    Choisit("mnuViewFavoris");
    EXPECT_EQ(Sous("frmFavoris").isMaximized(), normale == 0);
    cadre.reset();
  }
}

}  // namespace
}  // namespace gastrelle::essai
