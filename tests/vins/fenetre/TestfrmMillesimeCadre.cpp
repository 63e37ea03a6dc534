// The vintage chart inside the real frame: its entry and its button, what each tab allows, what
// becomes of the frame when the window is minimised and restored.

#include "doublures/CadreVrai.h"

namespace gastrelle::essai {
namespace {

using testing::IsEmpty;

class MillesimesDansLeCadre : public CadreVrai {
 protected:
  MillesimesDansLeCadre() { b.GarnitMillesimes(); }

  void OuvreLesMillesimes() {
    Ouvre();
    Choisit("mnuViewMillesimes");
  }
  void Reduit() {
    Sous("frmMillesime").showMinimized();
    QApplication::processEvents();
  }
  void AttendLaListeActive() {
    EXPECT_EQ(b.module->contexteActif, 51);
    EXPECT_TRUE(Entree("mnuViewMillesimes").isChecked());
    EXPECT_EQ(Motif(), "------++-");
  }
};

TEST_F(MillesimesDansLeCadre, LEntreeDuMenuLesOuvre) {
  OuvreLesMillesimes();
  AttendLaListeActive();
  EXPECT_FALSE(Entree("mnuViewRecettes").isChecked());
  EXPECT_FALSE(b.pointeur.sablier);
}

TEST_F(MillesimesDansLeCadre, LeBoutonDeLaBarreLesOuvreAussi) {
  Ouvre();
  Clique(BoutonBarre("Millesime"));
  QApplication::processEvents();
  AttendLaListeActive();
}

TEST_F(MillesimesDansLeCadre, ChaqueOngletPoseSonCodeEtSonMotif) {
  OuvreLesMillesimes();
  int onglet = 1;
  for (const char* motif : {"------++-", "---------", "---------"}) {
    CliqueOnglet(Le("frmMillesime"), onglet);
    EXPECT_EQ(b.module->contexteActif, 50 + onglet);
    EXPECT_EQ(Motif(), motif) << onglet;
    ++onglet;
  }
  CliqueOnglet(Le("frmMillesime"), 1);
  AttendLaListeActive();
}

TEST_F(MillesimesDansLeCadre, ReduitsIlsEteignentLeCadreEtLeRallumentRetablis) {
  OuvreLesMillesimes();
  Reduit();
  EXPECT_EQ(b.module->contexteActif, 0);
  EXPECT_FALSE(Entree("mnuViewMillesimes").isChecked());
  EXPECT_EQ(Motif(), "---------");
  Choisit("mnuViewMillesimes");
  EXPECT_FALSE(Sous("frmMillesime").isMinimized());
  AttendLaListeActive();
}

TEST_F(MillesimesDansLeCadre, PasserAuxRecettesPuisRevenirDeplaceLaCoche) {
  OuvreLesMillesimes();
  Choisit("mnuViewRecettes");
  EXPECT_FALSE(Entree("mnuViewMillesimes").isChecked());
  EXPECT_EQ(b.module->contexteActif, 11);
  Choisit("mnuViewMillesimes");
  AttendLaListeActive();
}

TEST_F(MillesimesDansLeCadre, FermesIlsEteignentLeCadre) {
  Ouvre();
  recettes().close();
  Choisit("mnuViewMillesimes");
  Sous("frmMillesime").close();
  QApplication::processEvents();
  EXPECT_EQ(b.module->contexteActif, 0);
  EXPECT_FALSE(Entree("mnuViewMillesimes").isChecked());
  EXPECT_EQ(Motif(), "---------");
}

TEST_F(MillesimesDansLeCadre, SeulsIlsSuiventLaPreferenceDeTaille) {
  for (const bool normale : {false, true}) {
    cadre.reset();
    b.Redemarre();
    Ouvre(RecPreferences{static_cast<std::int16_t>(normale ? -1 : 0), 0, 1});
    recettes().close();
    QApplication::processEvents();
    QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    Choisit("mnuViewMillesimes");
    EXPECT_EQ(Sous("frmMillesime").isMaximized(), !normale);
  }
}

TEST_F(MillesimesDansLeCadre, LesRechoisirLesLaisseTelsQuIlsSont) {
  OuvreLesMillesimes();
  CliqueOnglet(Le("frmMillesime"), 2);
  Clique(Le("OptionAlsace(0)"));
  b.disque.OublieJournal();
  Choisit("mnuViewMillesimes");
  EXPECT_TRUE(Le<QAbstractButton>("OptionAlsace(0)").isChecked());
  EXPECT_THAT(b.disque.journal(), IsEmpty());
}

}  // namespace
}  // namespace gastrelle::essai
