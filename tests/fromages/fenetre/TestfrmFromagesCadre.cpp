// The cheeses window inside the real frame: its entry and its button, what each tab allows, what
// becomes of the frame when the window is minimised and restored.

#include "doublures/CadreVrai.h"

namespace gastrelle::essai {
namespace {

using testing::IsEmpty;

class FromagesDansLeCadre : public CadreVrai {
 protected:
  FromagesDansLeCadre() { b.GarnitFromages(); }

  void OuvreLesFromages() {
    Ouvre();
    Choisit("mnuViewFromages");
  }
  void Reduit() {
    Sous("frmFromages").showMinimized();
    QApplication::processEvents();
  }
  void AttendLaListeActive() {
    EXPECT_EQ(b.module->contexteActif, 21);
    EXPECT_TRUE(Entree("mnuViewFromages").isChecked());
    EXPECT_EQ(Motif(), "+-+-+-++-");
  }
};

TEST_F(FromagesDansLeCadre, LEntreeDuMenuLesOuvreALaPlaceDesRecettes) {
  OuvreLesFromages();
  AttendLaListeActive();
  EXPECT_FALSE(Entree("mnuViewRecettes").isChecked());
  EXPECT_FALSE(b.pointeur.sablier);
}

TEST_F(FromagesDansLeCadre, LeBoutonDeLaBarreLesOuvreAussi) {
  Ouvre();
  Clique(BoutonBarre("Fromage"));
  QApplication::processEvents();
  AttendLaListeActive();
}

TEST_F(FromagesDansLeCadre, ChaqueOngletPoseSonCodeEtSonMotif) {
  OuvreLesFromages();
  int onglet = 1;
  for (const char* motif : {"+-+-+-++-", "-++++----", "-++++----", "---------", "+-----++-"}) {
    CliqueOnglet(Le("frmFromages"), onglet);
    EXPECT_EQ(b.module->contexteActif, 20 + onglet);
    EXPECT_EQ(Motif(), motif) << onglet;
    ++onglet;
  }
  CliqueOnglet(Le("frmFromages"), 1);
  AttendLaListeActive();
}

TEST_F(FromagesDansLeCadre, LesRechoisirLesLaisseTelsQuIlsSontJusquAuPointeur) {
  OuvreLesFromages();
  CliqueOnglet(Le("frmFromages"), 2);
  Tape(Le("txtFromageAjouter"), "Brie");
  b.disque.OublieJournal();
  Choisit("mnuViewFromages");
  EXPECT_FALSE(b.pointeur.sablier);
  b.pointeur.Sablier();
  Clique(BoutonBarre("Fromage"));
  QApplication::processEvents();
  EXPECT_EQ(Texte(Le("txtFromageAjouter")), "Brie");
  EXPECT_EQ(b.module->contexteActif, 22);
  EXPECT_TRUE(Entree("mnuViewFromages").isChecked());
  EXPECT_TRUE(b.pointeur.sablier);
  EXPECT_THAT(b.disque.journal(), IsEmpty());
}

TEST_F(FromagesDansLeCadre, ReduitsIlsEteignentLeCadre) {
  OuvreLesFromages();
  Reduit();
  EXPECT_EQ(b.module->contexteActif, 0);
  EXPECT_FALSE(Entree("mnuViewFromages").isChecked());
  EXPECT_EQ(Motif(), "---------");
}

TEST_F(FromagesDansLeCadre, RetablisIlsRallumentLeCadre) {
  OuvreLesFromages();
  Reduit();
  Sous("frmFromages").showNormal();
  QApplication::processEvents();
  AttendLaListeActive();
}

TEST_F(FromagesDansLeCadre, ReduitsIlsSeRetablissentParLeurEntree) {
  OuvreLesFromages();
  Reduit();
  Choisit("mnuViewFromages");
  EXPECT_FALSE(Sous("frmFromages").isMinimized());
  AttendLaListeActive();
}

TEST_F(FromagesDansLeCadre, PasserAuxRecettesPuisRevenirDeplaceLaCoche) {
  OuvreLesFromages();
  Choisit("mnuViewRecettes");
  EXPECT_FALSE(Entree("mnuViewFromages").isChecked());
  EXPECT_EQ(b.module->contexteActif, 11);
  Choisit("mnuViewFromages");
  EXPECT_FALSE(Entree("mnuViewRecettes").isChecked());
  AttendLaListeActive();
}

TEST_F(FromagesDansLeCadre, FermesIlsEteignentLeCadre) {
  Ouvre();
  recettes().close();
  Choisit("mnuViewFromages");
  Sous("frmFromages").close();
  QApplication::processEvents();
  EXPECT_EQ(b.module->contexteActif, 0);
  EXPECT_FALSE(Entree("mnuViewFromages").isChecked());
  EXPECT_EQ(Motif(), "---------");
}

}  // namespace
}  // namespace gastrelle::essai
