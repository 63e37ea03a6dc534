// The wines window inside the real frame: its entry and its button, what each tab allows, what
// becomes of the frame when the window is minimised and restored.

#include <utility>
#include <vector>

#include "doublures/CadreVrai.h"

namespace gastrelle::essai {
namespace {

using testing::IsEmpty;

class VinsDansLeCadre : public CadreVrai {
 protected:
  VinsDansLeCadre() { b.GarnitVins(); }

  void OuvreLesVins() {
    Ouvre();
    Choisit("mnuViewVins");
  }
  void Reduit() {
    Sous("frmVins").showMinimized();
    QApplication::processEvents();
  }
  void AttendLaListeActive() {
    EXPECT_EQ(b.module->contexteActif, 41);
    EXPECT_TRUE(Entree("mnuViewVins").isChecked());
    EXPECT_EQ(Motif(), "+-+-+-++-");
    EXPECT_FALSE(b.pointeur.sablier);
  }
  void AttendCadreEteint() {
    EXPECT_EQ(b.module->contexteActif, 0);
    EXPECT_FALSE(Entree("mnuViewVins").isChecked());
    EXPECT_EQ(Motif(), "---------");
  }
};

TEST_F(VinsDansLeCadre, LEntreeDuMenuLesOuvreALaPlaceDesRecettes) {
  OuvreLesVins();
  AttendLaListeActive();
  EXPECT_FALSE(Entree("mnuViewRecettes").isChecked());
}

TEST_F(VinsDansLeCadre, LeBoutonDeLaBarreLesOuvreAussi) {
  Ouvre();
  Clique(BoutonBarre("Vin"));
  QApplication::processEvents();
  AttendLaListeActive();
}

TEST_F(VinsDansLeCadre, ChaqueOngletPoseSonCodeEtSonMotif) {
  OuvreLesVins();
  // By ways that no tab refuses.
  const std::vector<std::pair<int, const char*>> motifs{
      {2, "-++++----"}, {3, "-++++----"}, {4, "---------"}, {6, "+++++----"},
      {7, "+-----++-"}, {5, "+-----++-"}, {1, "+-+-+-++-"}};
  for (const auto& [onglet, motif] : motifs) {
    CliqueOnglet(Le("frmVins"), onglet);
    EXPECT_EQ(b.module->contexteActif, 40 + onglet);
    EXPECT_EQ(Motif(), motif) << onglet;
  }
  AttendLaListeActive();
}

TEST_F(VinsDansLeCadre, UnOngletRefuseLaisseLeCadreALOngletDuTri) {
  OuvreLesVins();
  CliqueOnglet(Le("frmVins"), 5);
  CliqueOnglet(Le("frmVins"), 6);
  EXPECT_EQ(b.module->contexteActif, 45);
  EXPECT_EQ(Motif(), "+-----++-");
}

TEST_F(VinsDansLeCadre, LesRechoisirLesLaisseTelsQuIlsSontJusquAuPointeur) {
  OuvreLesVins();
  CliqueOnglet(Le("frmVins"), 2);
  Tape(Le("txtSaisieNomVin"), "Chignin");
  b.disque.OublieJournal();
  Choisit("mnuViewVins");
  EXPECT_FALSE(b.pointeur.sablier);
  b.pointeur.Sablier();
  Clique(BoutonBarre("Vin"));
  QApplication::processEvents();
  EXPECT_EQ(Texte(Le("txtSaisieNomVin")), "Chignin");
  EXPECT_EQ(b.module->contexteActif, 42);
  EXPECT_TRUE(Entree("mnuViewVins").isChecked());
  EXPECT_TRUE(b.pointeur.sablier);
  EXPECT_THAT(b.disque.journal(), IsEmpty());
}

TEST_F(VinsDansLeCadre, ReduitsIlsEteignentLeCadre) {
  OuvreLesVins();
  Reduit();
  AttendCadreEteint();
}

TEST_F(VinsDansLeCadre, ReduitsIlsNEteignentPasLaFenetreQuOnChoisit) {
  OuvreLesVins();
  Reduit();
  Choisit("mnuViewRecettes");
  EXPECT_EQ(b.module->contexteActif, 11);
  EXPECT_TRUE(Entree("mnuViewRecettes").isChecked());
}

TEST_F(VinsDansLeCadre, RetablisIlsRallumentLeCadre) {
  OuvreLesVins();
  Reduit();
  Sous("frmVins").showNormal();
  QApplication::processEvents();
  AttendLaListeActive();
}

TEST_F(VinsDansLeCadre, ReduitsIlsSeRetablissentParLeurEntree) {
  OuvreLesVins();
  Reduit();
  Choisit("mnuViewVins");
  EXPECT_FALSE(Sous("frmVins").isMinimized());
  AttendLaListeActive();
}

TEST_F(VinsDansLeCadre, PasserAuxRecettesPuisRevenirDeplaceLaCoche) {
  OuvreLesVins();
  Choisit("mnuViewRecettes");
  EXPECT_FALSE(Entree("mnuViewVins").isChecked());
  EXPECT_EQ(b.module->contexteActif, 11);
  Choisit("mnuViewVins");
  EXPECT_FALSE(Entree("mnuViewRecettes").isChecked());
  AttendLaListeActive();
}

TEST_F(VinsDansLeCadre, FermesIlsEteignentLeCadre) {
  Ouvre();
  recettes().close();
  Choisit("mnuViewVins");
  Sous("frmVins").close();
  QApplication::processEvents();
  AttendCadreEteint();
}

TEST_F(VinsDansLeCadre, SeulsIlsSOuvrentALaTailleDesPreferences) {
  for (const std::int16_t normale : {std::int16_t{0}, std::int16_t{1}}) {
    SCOPED_TRACE(normale);
    Ouvre({normale, 0, 1});
    recettes().close();
    QApplication::processEvents();
    Choisit("mnuViewVins");
    EXPECT_EQ(Sous("frmVins").isMaximized(), normale == 0);
    cadre.reset();
  }
}

}  // namespace
}  // namespace gastrelle::essai
