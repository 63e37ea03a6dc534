// The window of the shopping list: an aisle and its text, the text that is put away, the clearing
// of all of them, the keyboard.

#include <QClipboard>
#include <QListView>

#include "data/Courses.h"
#include "doublures/FenetreEssai.h"
#include "listes/frmCourses.h"

namespace gastrelle::essai {
namespace {

using testing::Each;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr const char* question = "Voulez-vous vraiment effacer toutes vos courses ?";

class MesCourses : public FenetreEssai<frmCourses> {
 protected:
  void OuvreActive() {
    Ouvre();
    fenetre->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(fenetre.get()));
  }
  QListView& rayons() { return Le<QListView>("lstRayons"); }
  QPlainTextEdit& detail() { return Le<QPlainTextEdit>("txtDetail"); }
  std::string Detail() { return Texte(detail()).toStdString(); }
  std::string& Rayon(std::size_t i) { return b.module->texteRayon.at(i); }
  bool PeutToutEffacer() { return Le("cmdNouveau").isVisible(); }
  int RayonChoisi() { return rayons().currentIndex().row(); }

  QPoint MilieuDe(int rayon) {
    const QModelIndex entree = rayons().model()->index(rayon, 0);
    rayons().scrollTo(entree);
    return rayons().visualRect(entree).center();
  }
  void CliqueRayon(int rayon) {
    QTest::mouseClick(rayons().viewport(), Qt::LeftButton, {}, MilieuDe(rayon));
  }
  /// The window once more, as it is when it was closed and opened again.
  void Rouvre() {
    fenetre->close();
    fenetre = Cree();
    fenetre->show();
    fenetre->Active();
  }
};

TEST_F(MesCourses, ALesTextesQuIlFaut) {
  Ouvre();
  EXPECT_EQ(fenetre->objectName(), "frmCourses");
  EXPECT_EQ(fenetre->windowTitle(), "Mes courses");
  EXPECT_EQ(Texte(Le("Label1")), "Mes courses");
  EXPECT_EQ(Le("Image1").toolTip(), "La liste de mes courses par rayon");
  EXPECT_EQ(rayons().toolTip(), "Choisir un rayon dans la liste");
  EXPECT_EQ(rayons().accessibleName(), "Les rayons");
  EXPECT_EQ(detail().toolTip(), Fr("Tapez ici les achats à effectuer dans le rayon ci-contre"));
  EXPECT_EQ(detail().accessibleName(), Fr("Achats à effectuer au rayon ci-contre"));
  EXPECT_EQ(detail().property("maxLength").toInt(), 0);
  EXPECT_EQ(Le("cmdNouveau").toolTip(), "Effacer toutes les saisies");
  EXPECT_EQ(Le("cmdAide").toolTip(), "Aide");
}

TEST_F(MesCourses, ALesQuinzeRayonsDansLeurOrdre) {
  Ouvre();
  EXPECT_EQ(
      Textes(rayons()),
      (QStringList{"Boucherie", "Charcuterie", "Triperie", "Poissonnerie", Fr("Légumes"), "Fruits",
                   "Beurre/Oeufs/Fromages", "Lait", "Epicerie", "Conserves", Fr("Surgelés"),
                   "Boulangerie/Viennoiserie", Fr("Pâtisserie"), "Boissons", "Divers"}));
}

TEST_F(MesCourses, SOuvreSurLePremierRayonEtSonTexte) {
  b.AjouteCourses(0, "r\xF4ti\r\nporc");
  b.AjouteCourses(14, "sel");
  Ouvre();
  EXPECT_EQ(RayonChoisi(), 0);
  EXPECT_EQ(b.module->rayonCourant, 0);
  EXPECT_EQ(Detail(), "rôti\nporc");
  EXPECT_EQ(Rayon(0), "r\xF4ti\r\nporc");  // its own first choice put nothing away
  EXPECT_TRUE(PeutToutEffacer());
}

TEST_F(MesCourses, CacheToutEffacerTantQueToutEstVide) {
  OuvreActive();
  EXPECT_FALSE(PeutToutEffacer());
  CliqueRayon(3);
  EXPECT_FALSE(PeutToutEffacer());  // an empty text over an empty one is no change
  Frappe(Qt::Key_Plus, Qt::ControlModifier);
  Frappe(Qt::Key_0, Qt::ControlModifier);
  EXPECT_FALSE(PeutToutEffacer());
}

TEST_F(MesCourses, MontreToutEffacerAuPremierCaractereEtPourDeBon) {
  Ouvre();
  Tape(detail(), "s");
  EXPECT_TRUE(PeutToutEffacer());
  QTest::keyClick(&detail(), Qt::Key_Backspace);
  EXPECT_EQ(Detail(), "");
  EXPECT_TRUE(PeutToutEffacer());
}

TEST_F(MesCourses, ToutEffacerSansRienNeDemandeEtNeChangeRien) {
  Ouvre();
  Tape(detail(), "s");
  QTest::keyClick(&detail(), Qt::Key_Backspace);
  Clique(Le("cmdNouveau"));
  EXPECT_THAT(b.messages.questions, IsEmpty());
  EXPECT_TRUE(PeutToutEffacer());
}

TEST_F(MesCourses, DesBlancsSeulsNeSontRienPourToutEffacer) {
  Ouvre();
  Tape(detail(), "   ");
  Clique(Le("cmdNouveau"));
  EXPECT_THAT(b.messages.questions, IsEmpty());
  EXPECT_EQ(Detail(), "   ");
}

TEST_F(MesCourses, ChoisirUnRayonRangeLeTexteDuPrecedent) {
  b.AjouteCourses(3, "truite");
  Ouvre();
  Tape(detail(), "  porc \n ");
  CliqueRayon(3);
  EXPECT_EQ(Rayon(0), "porc \r\n");
  EXPECT_EQ(b.module->rayonCourant, 3);
  EXPECT_EQ(Detail(), "truite");
  CliqueRayon(0);
  EXPECT_EQ(Detail(), "porc \n");
  EXPECT_EQ(Rayon(3), "truite");
}

TEST_F(MesCourses, NeRogneQueLesBlancsPasLesFinsDeLigne) {
  Ouvre();
  Tape(detail(), "\n porc\n\n");
  CliqueRayon(1);
  EXPECT_EQ(Rayon(0), "\r\n porc\r\n\r\n");
}

TEST_F(MesCourses, DesBlancsSeulsSontUnRayonVide) {
  Ouvre();
  Tape(detail(), "   ");
  CliqueRayon(1);
  EXPECT_EQ(Rayon(0), "");
  SauveCourses(*b.module);
  EXPECT_EQ(b.dossier.Lit("GLMC.DAT"), std::string(120, '\0'));
  EXPECT_EQ(b.dossier.Lit("GLMCN.DAT"), "GLMCN.DAT");
}

TEST_F(MesCourses, RangeCeQuiEstTapeQuandOnLaQuitte) {
  Ouvre();
  Tape(detail(), "porc ");
  fenetre->Desactive();
  EXPECT_EQ(Rayon(0), "porc");
  EXPECT_EQ(Detail(), "porc");
  EXPECT_THAT(cadre->quittes, ElementsAre(EntreeVue::mesCourses));
  Tape(detail(), " et boeuf");  // one goes on where one was
  EXPECT_EQ(Detail(), "porc et boeuf");
}

TEST_F(MesCourses, LaisseLeCurseurOuIlEstQuandIlNYARienARogner) {
  Ouvre();
  Tape(detail(), "porc");
  QTest::keyClick(&detail(), Qt::Key_Left);
  fenetre->Desactive();
  fenetre->Desactive();
  Tape(detail(), "-");
  EXPECT_EQ(Detail(), "por-c");
}

TEST_F(MesCourses, LaisseLeCurseurDansLeTexteQuElleRogne) {
  Ouvre();
  detail().setPlainText("  porc\nveau ");
  QTextCursor curseur = detail().textCursor();
  curseur.setPosition(4);  // behind "po"
  detail().setTextCursor(curseur);
  fenetre->Desactive();
  EXPECT_EQ(Detail(), "porc\nveau");
  EXPECT_EQ(detail().textCursor().position(), 2);
}

TEST_F(MesCourses, DonneSonTexteALaFinDeLaSessionSansTroublerLaFrappe) {
  Ouvre();
  detail().setFocus();
  QTest::keyClicks(&detail(), "porc ");
  fenetre->EnregistreSaisie();
  EXPECT_EQ(Rayon(0), "porc");
  QTest::keyClicks(&detail(), "et veau");
  EXPECT_EQ(Detail(), "porc et veau");
}

/// Text from elsewhere that costs more than a box may hold.
TEST_F(MesCourses, UnTexteQueLaBoiteNeTientPasSeDitEtNeSePerdPas) {
  Ouvre();
  std::string demesure;
  for (int ligne = 0; ligne < 200'000; ++ligne) {
    demesure += "\r\n";
  }
  Rayon(1) = demesure;
  CliqueRayon(1);
  AttendMessage("Mémoire insuffisante", Icone::aucune);
  EXPECT_FALSE(detail().isEnabled());
  EXPECT_EQ(Detail(), "");
  fenetre->Desactive();
  EXPECT_EQ(Rayon(1), demesure);
  CliqueRayon(2);
  EXPECT_TRUE(detail().isEnabled());
  EXPECT_EQ(Rayon(1), demesure);
}

TEST_F(MesCourses, FermeeRangeEtSeDecharge) {
  Ouvre();
  CliqueRayon(2);
  Tape(detail(), " tripes ");
  EXPECT_TRUE(fenetre->close());
  EXPECT_EQ(Rayon(2), "tripes");
  EXPECT_THAT(b.disque.journal(), IsEmpty());
}

TEST_F(MesCourses, RouverteElleEstAuPremierRayonEtNARienOublie) {
  Ouvre();
  Tape(detail(), "porc");
  CliqueRayon(9);
  Tape(detail(), "thon");
  Rouvre();
  EXPECT_EQ(RayonChoisi(), 0);
  EXPECT_EQ(b.module->rayonCourant, 0);
  EXPECT_EQ(Detail(), "porc");
  EXPECT_EQ(Rayon(0), "porc");
  EXPECT_EQ(Rayon(9), "thon");
  EXPECT_TRUE(PeutToutEffacer());
}

TEST_F(MesCourses, ToutEffacerDemandeEtEffaceLesQuinzeRayons) {
  b.AjouteCourses(14, "sel");
  OuvreActive();
  CliqueRayon(3);
  Tape(detail(), "truite");
  b.messages.reponses = {Reponse::oui};
  Clique(Le("cmdNouveau"));
  EXPECT_THAT(b.messages.questions, ElementsAre(question));
  EXPECT_EQ(b.messages.choix, Choix::ouiNonAnnuler);
  EXPECT_THAT(b.module->texteRayon, Each(""));
  EXPECT_EQ(Detail(), "");
  EXPECT_FALSE(PeutToutEffacer());
  EXPECT_EQ(RayonChoisi(), 0);
  EXPECT_EQ(b.module->rayonCourant, 0);
  EXPECT_TRUE(aLeFocus("lstRayons"));
  EXPECT_THAT(b.disque.journal(), IsEmpty());
  QTest::keyClick(&detail(), Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(Detail(), "");  // the fish would come back to the butcher's
}

TEST_F(MesCourses, ToutEffacerDepuisLePremierRayonLeVideAussi) {
  Ouvre();
  Tape(detail(), "porc");
  b.messages.reponses = {Reponse::oui};
  Clique(Le("cmdNouveau"));
  EXPECT_THAT(b.module->texteRayon, Each(""));
  EXPECT_EQ(Detail(), "");
  EXPECT_FALSE(PeutToutEffacer());
  QTest::keyClick(&detail(), Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(Detail(), "");
  Tape(detail(), "s");
  EXPECT_TRUE(PeutToutEffacer());
}

TEST_F(MesCourses, NonOuAnnulerGardentToutMaisLeTexteRangeEstRogne) {
  b.AjouteCourses(14, "sel");
  Ouvre();
  Tape(detail(), " porc ");
  b.messages.reponses = {Reponse::non, Reponse::annuler};
  for (int i = 0; i < 2; ++i) {
    Rayon(0) = "?";
    Clique(Le("cmdNouveau"));
    EXPECT_EQ(Rayon(0), "porc");
    EXPECT_EQ(Rayon(14), "sel");
    EXPECT_EQ(Detail(), " porc ");
    EXPECT_TRUE(PeutToutEffacer());
  }
  EXPECT_THAT(b.messages.questions, ElementsAre(question, question));
}

TEST_F(MesCourses, UnRayonALAutreNeSeDefaitPas) {
  Ouvre();
  Tape(detail(), "porc");
  CliqueRayon(1);
  QTest::keyClick(&detail(), Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(Detail(), "");
  CliqueRayon(0);
  EXPECT_EQ(Detail(), "porc");
  QTest::keyClick(&detail(), Qt::Key_A, Qt::ControlModifier);
  QTest::keyClick(&detail(), Qt::Key_Delete);
  CliqueRayon(1);  // both read the same now
  QTest::keyClick(&detail(), Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(Detail(), "");
}

TEST_F(MesCourses, PrendUnTexteSansLimite) {
  Ouvre();
  QApplication::clipboard()->setText(QString(100'000, u'x'));
  detail().paste();
  CliqueRayon(1);
  EXPECT_EQ(Rayon(0).size(), 100'000U);
}

TEST_F(MesCourses, MontreAQuiLImprimeLesRayonsRemplisEtCeQuiSeTape) {
  b.AjouteCourses(4, "navets");
  b.AjouteCourses(14, "sel");
  Ouvre();
  CliqueRayon(4);
  Remplace(detail(), " pois ");
  const auto vue = std::get<VueCourses>(fenetre->VueCourante());
  ASSERT_EQ(vue.rayons.size(), 2U);
  EXPECT_EQ(vue.rayons[0].rayon, DepuisUtf8("Légumes"));
  EXPECT_EQ(vue.rayons[0].texte, " pois ");
  EXPECT_EQ(vue.rayons[1].rayon, "Divers");
  EXPECT_EQ(vue.rayons[1].texte, "sel");
  Remplace(detail(), "");
  EXPECT_EQ(std::get<VueCourses>(fenetre->VueCourante()).rayons.size(), 1U);
}

// The list without the mouse.

class CoursesAuClavier : public MesCourses {
 protected:
  void SetUp() override {
    b.AjouteCourses(13, "cidre");
    OuvreActive();
  }
};

TEST_F(CoursesAuClavier, CommenceParLesRayonsEtLesLettresEnTrouventUn) {
  EXPECT_TRUE(rayons().hasFocus());
  Frappe(QStringLiteral("pat"));
  EXPECT_EQ(RayonChoisi(), 12);
  EXPECT_EQ(b.module->rayonCourant, 12);
}

TEST_F(CoursesAuClavier, LesFlechesChoisissentEtEntreeMeneAuTexte) {
  Frappe(Qt::Key_Down);
  Frappe(Qt::Key_Down);
  EXPECT_EQ(b.module->rayonCourant, 2);
  Frappe(Qt::Key_Return);
  EXPECT_TRUE(detail().hasFocus());
  Frappe(QStringLiteral("foie"));
  EXPECT_EQ(Detail(), "foie");
}

TEST_F(CoursesAuClavier, OnContinueAuBoutDeCeQuiEstDejaLa) {
  Frappe(QStringLiteral("boi"));
  Frappe(Qt::Key_Return);
  Frappe(QStringLiteral(", vin"));
  EXPECT_EQ(Detail(), "cidre, vin");
}

TEST_F(CoursesAuClavier, UnDoubleClicMeneAuTexte) {
  CliqueRayon(3);
  EXPECT_TRUE(rayons().hasFocus());
  QTest::mouseDClick(rayons().viewport(), Qt::LeftButton, {}, MilieuDe(3));
  EXPECT_TRUE(detail().hasFocus());
}

TEST_F(CoursesAuClavier, AltFlecheChangeDeRayonSansQuitterLeTexte) {
  detail().setFocus();
  Frappe(QStringLiteral("porc"));
  Frappe(Qt::Key_Down, Qt::AltModifier);
  EXPECT_TRUE(detail().hasFocus());
  EXPECT_EQ(RayonChoisi(), 1);
  EXPECT_EQ(b.module->rayonCourant, 1);
  EXPECT_EQ(Detail(), "");
  Frappe(QStringLiteral("jambon"));
  Frappe(Qt::Key_Up, Qt::AltModifier);
  Frappe(Qt::Key_Up, Qt::AltModifier);  // there is none before the first
  EXPECT_EQ(Detail(), "porc");
  EXPECT_EQ(Rayon(1), "jambon");
  Frappe(QStringLiteral(" et veau"));
  EXPECT_EQ(Detail(), "porc et veau");
}

TEST_F(CoursesAuClavier, AltFlecheSArreteAuDernierRayon) {
  detail().setFocus();
  for (int i = 0; i < 20; ++i) {
    Frappe(Qt::Key_Down, Qt::AltModifier);
  }
  EXPECT_EQ(RayonChoisi(), 14);
  EXPECT_TRUE(detail().hasFocus());
}

TEST_F(CoursesAuClavier, AltFlecheVaAussiDansLaListe) {
  Frappe(Qt::Key_Down, Qt::AltModifier);
  EXPECT_EQ(b.module->rayonCourant, 1);
  EXPECT_TRUE(rayons().hasFocus());
}

}  // namespace
}  // namespace gastrelle::essai
