// Notes and shopping list inside the real frame: what it shows and allows while they are active,
// how they are hidden, minimised and unloaded, what the end of the program writes.

#include "doublures/CadreVrai.h"

namespace gastrelle::essai {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

constexpr const char* motifDesListes = "+++++----";
constexpr const char* motifDeSortie = "---------";

class ListesDansLeCadre : public CadreVrai {
 protected:
  void OuvreLesNotes() { Choisit("mnuViewMesNotes"); }
  void OuvreLesCourses() { Choisit("mnuViewMesCourses"); }
  /// The close box of a child window.
  void Ferme(const char* nom) {
    Sous(nom).close();
    Attend();
  }
  void Reduit(const char* nom) {
    Sous(nom).showMinimized();
    Attend();
  }
  static void Attend() {
    QApplication::processEvents();
    QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QApplication::processEvents();
  }
  void FermeTout() {
    Choisit("mnuWindowClose");
    Attend();
  }
  bool EstLa(const char* nom) { return cadre->findChild<QWidget*>(QLatin1String(nom)) != nullptr; }
  bool Coche(const char* entree) { return Entree(entree).isChecked(); }
  /// The calls of the disk on the notes since the frame was opened.
  std::vector<std::string> SurLesNotes() const {
    std::vector<std::string> lignes;
    for (const std::string& ligne : b.disque.journal()) {
      if (ligne.find("MesNotes.txt") != std::string::npos) {
        lignes.push_back(ligne);
      }
    }
    return lignes;
  }
};

TEST_F(ListesDansLeCadre, LesNotesPosentLeurCodeEtLeurMotif) {
  Ouvre();
  OuvreLesNotes();
  EXPECT_EQ(b.module->contexteActif, 90);
  EXPECT_EQ(Motif(), motifDesListes);
  EXPECT_TRUE(Coche("mnuViewMesNotes"));
  EXPECT_FALSE(Coche("mnuViewRecettes"));
  EXPECT_FALSE(b.pointeur.sablier);
}

TEST_F(ListesDansLeCadre, LesCoursesPosentLeurCodeEtLeurMotif) {
  Ouvre();
  OuvreLesCourses();
  EXPECT_EQ(b.module->contexteActif, 100);
  EXPECT_EQ(Motif(), motifDesListes);
  EXPECT_TRUE(Coche("mnuViewMesCourses"));
}

TEST_F(ListesDansLeCadre, LesCommandesDEditionAgissentDansLesNotes) {
  Ouvre();
  OuvreLesNotes();
  Tape(Le("txtSaisie"), "Un");
  Choisit("mnuEditSelect");
  Clique(BoutonBarre("Couper"));
  Clique(BoutonBarre("Coller"));
  Clique(BoutonBarre("Coller"));
  EXPECT_EQ(Texte(Le("txtSaisie")), "UnUn");
}

TEST_F(ListesDansLeCadre, LaCroixDesNotesLesCacheEtEteintLeCadre) {
  Ouvre();
  FermeTout();
  OuvreLesNotes();
  Tape(Le("txtSaisie"), "Un");
  b.disque.OublieJournal();
  Ferme("frmMesNotes");
  EXPECT_TRUE(EstLa("frmMesNotes"));
  EXPECT_FALSE(Sous("frmMesNotes").isVisible());
  EXPECT_EQ(b.module->contexteActif, 0);
  EXPECT_EQ(Motif(), motifDeSortie);
  EXPECT_FALSE(Coche("mnuViewMesNotes"));
  EXPECT_THAT(b.disque.journal(), IsEmpty());
}

TEST_F(ListesDansLeCadre, LEntreeRemontreLesNotesCacheesAvecLeurTexte) {
  Ouvre();
  OuvreLesNotes();
  Tape(Le("txtSaisie"), "Un");
  b.disque.OublieJournal();
  Ferme("frmMesNotes");
  EXPECT_EQ(b.module->contexteActif, 11);
  OuvreLesNotes();
  EXPECT_TRUE(Sous("frmMesNotes").isVisible());
  EXPECT_EQ(enfants().activeSubWindow(), &Sous("frmMesNotes"));
  EXPECT_EQ(b.module->contexteActif, 90);
  EXPECT_EQ(Texte(Le("txtSaisie")), "Un");
  EXPECT_THAT(b.disque.journal(), IsEmpty());
  EXPECT_FALSE(b.dossier.A("MesNotes.txt"));
}

TEST_F(ListesDansLeCadre, LesNotesReduitesPuisCacheesReviennentEnTailleNormale) {
  Ouvre();
  OuvreLesNotes();
  Reduit("frmMesNotes");
  Ferme("frmMesNotes");
  EXPECT_FALSE(Sous("frmMesNotes").isVisible());
  OuvreLesNotes();
  EXPECT_TRUE(Sous("frmMesNotes").isVisible());
  EXPECT_FALSE(Sous("frmMesNotes").isMinimized());
  EXPECT_EQ(b.module->contexteActif, 90);
}

TEST_F(ListesDansLeCadre, UneFenetreReduiteLaisseLeCadreCommeIlEst) {
  Ouvre();
  FermeTout();
  for (const auto& [entree, nom, code] : {std::tuple("mnuViewMesNotes", "frmMesNotes", 90),
                                          {"mnuViewMesCourses", "frmCourses", 100}}) {
    Choisit(entree);
    Reduit(nom);
    EXPECT_EQ(b.module->contexteActif, code);
    EXPECT_EQ(Motif(), motifDesListes);
    EXPECT_TRUE(Coche(entree));
    Choisit(entree);  // its code still stands: the entry has nothing to do
    EXPECT_TRUE(Sous(nom).isMinimized());
    FermeTout();
  }
}

TEST_F(ListesDansLeCadre, LEntreeRetablitUneFenetreReduite) {
  Ouvre();
  for (const auto& [entree, nom] :
       {std::pair("mnuViewMesNotes", "frmMesNotes"), {"mnuViewMesCourses", "frmCourses"}}) {
    Choisit(entree);
    Reduit(nom);
    Choisit("mnuViewRecettes");
    EXPECT_EQ(b.module->contexteActif, 11);
    Choisit(entree);
    EXPECT_FALSE(Sous(nom).isMinimized());
    EXPECT_EQ(enfants().activeSubWindow(), &Sous(nom));
    EXPECT_TRUE(Coche(entree));
  }
}

TEST_F(ListesDansLeCadre, QuitterLesCoursesDecocheAussiLesNotes) {
  Ouvre();
  OuvreLesNotes();
  Reduit("frmMesNotes");  // which leaves their mark
  OuvreLesCourses();
  EXPECT_TRUE(Coche("mnuViewMesNotes"));
  EXPECT_TRUE(Coche("mnuViewMesCourses"));
  Choisit("mnuViewRecettes");
  EXPECT_FALSE(Coche("mnuViewMesNotes"));
  EXPECT_FALSE(Coche("mnuViewMesCourses"));
  EXPECT_EQ(b.module->contexteActif, 11);
}

TEST_F(ListesDansLeCadre, QuitterLesNotesLaisseLaMarqueDesCourses) {
  Ouvre();
  OuvreLesCourses();
  Reduit("frmCourses");
  OuvreLesNotes();
  Choisit("mnuViewRecettes");
  EXPECT_TRUE(Coche("mnuViewMesCourses"));
  EXPECT_FALSE(Coche("mnuViewMesNotes"));
}

TEST_F(ListesDansLeCadre, LaCroixDesCoursesLesDecharge) {
  Ouvre();
  OuvreLesCourses();
  Tape(Le("txtDetail"), " porc ");
  Ferme("frmCourses");
  EXPECT_FALSE(EstLa("frmCourses"));
  EXPECT_EQ(b.module->texteRayon[0], "porc");
  EXPECT_FALSE(Coche("mnuViewMesCourses"));
  OuvreLesCourses();
  EXPECT_EQ(Texte(Le("txtDetail")), "porc");
}

TEST_F(ListesDansLeCadre, ChangerDeFenetreRangeLeRayonOuvert) {
  Ouvre();
  OuvreLesCourses();
  Tape(Le("txtDetail"), "porc ");
  Choisit("mnuViewRecettes");
  EXPECT_EQ(b.module->texteRayon[0], "porc");
  EXPECT_EQ(Texte(Le("txtDetail")), "porc");
}

TEST_F(ListesDansLeCadre, ReduireLesCoursesNeRangeRienMaisLaFinLeFait) {
  Ouvre();
  OuvreLesCourses();
  Tape(Le("txtDetail"), "porc ");
  Reduit("frmCourses");
  EXPECT_EQ(b.module->texteRayon[0], "");
  cadre->close();
  EXPECT_EQ(b.dossier.Lit("GLMCN.DAT"), "GLMCN.DATporc");
}

TEST_F(ListesDansLeCadre, LaFenetreCacheeCompteParmiLesOuvertes) {
  Ouvre();
  FermeTout();
  b.module->prefs[0].fenetreNormale = -1;
  OuvreLesNotes();
  EXPECT_FALSE(Sous("frmMesNotes").isMaximized());
  Ferme("frmMesNotes");
  b.module->prefs[0].fenetreNormale = 0;
  OuvreLesCourses();
  EXPECT_FALSE(Sous("frmCourses").isMaximized());
}

TEST_F(ListesDansLeCadre, ToutFermerEcritLesNotesMemeCacheesEtLesDecharge) {
  Ouvre();
  OuvreLesNotes();
  Tape(Le("txtSaisie"), "Un");
  Ferme("frmMesNotes");
  FermeTout();
  EXPECT_FALSE(EstLa("frmMesNotes"));
  EXPECT_EQ(b.dossier.Lit("MesNotes.txt"), "Un\r\n");
  b.dossier.Ecrit("MesNotes.txt", "Ailleurs\r\n");
  OuvreLesNotes();  // read anew
  EXPECT_EQ(Texte(Le("txtSaisie")), "Ailleurs");
}

TEST_F(ListesDansLeCadre, LaFinEcritLesNotesCachees) {
  Ouvre();
  OuvreLesNotes();
  Tape(Le("txtSaisie"), "Un");
  Ferme("frmMesNotes");
  cadre->close();
  EXPECT_EQ(b.dossier.Lit("MesNotes.txt"), "Un\r\n");
}

TEST_F(ListesDansLeCadre, LaFinEcritLesNotesPuisLesRayons) {
  Ouvre();
  OuvreLesCourses();
  Tape(Le("txtDetail"), "porc");
  OuvreLesNotes();
  Tape(Le("txtSaisie"), "Un");
  b.disque.OublieJournal();
  cadre->close();
  const std::vector<std::string> changements = b.disque.changements();
  ASSERT_GE(changements.size(), 6U);
  EXPECT_THAT(std::vector(changements.begin(), changements.begin() + 6),
              ElementsAre("supprime MesNotes.txt", "crée MesNotes.txt", "écrit MesNotes.txt 0+4",
                          "supprime GLMCN.DAT", "écrit GLMCN.DAT 0+9", "écrit GLMCN.DAT 9+4"));
}

TEST_F(ListesDansLeCadre, DesNotesJamaisOuvertesNeSontPasTouchees) {
  b.dossier.Ecrit("MesNotes.txt", "\r\n  Comme un autre l'a fait\n");
  Ouvre();
  OuvreLesCourses();
  FermeTout();
  cadre->close();
  EXPECT_THAT(SurLesNotes(), IsEmpty());
  EXPECT_EQ(b.dossier.Lit("MesNotes.txt"), "\r\n  Comme un autre l'a fait\n");
}

TEST_F(ListesDansLeCadre, DesNotesSeulementOuvertesReviennentAuMeme) {
  b.dossier.Ecrit("MesNotes.txt", "Un\r\n\r\nDeux\r\n");
  Ouvre();
  OuvreLesNotes();
  cadre->close();
  EXPECT_EQ(b.dossier.Lit("MesNotes.txt"), "Un\r\n\r\nDeux\r\n");
}

TEST_F(ListesDansLeCadre, UneErreurFataleLaisseLesNotesDuFichier) {
  b.dossier.Ecrit("MesNotes.txt", "Vieux\r\n");
  Ouvre();
  OuvreLesNotes();
  Tape(Le("txtSaisie"), "Neuf");
  b.module->erreurFatale = true;
  FermeTout();
  EXPECT_EQ(b.dossier.Lit("MesNotes.txt"), "Vieux\r\n");
}

TEST_F(ListesDansLeCadre, DesNotesQuiNeSEcriventPasNArretentPasLaFin) {
  Ouvre();
  OuvreLesCourses();
  Tape(Le("txtDetail"), "porc");
  OuvreLesNotes();
  Tape(Le("txtSaisie"), "Un");
  b.disque.EchoueSur("crée MesNotes.txt", Panne::disquePlein);
  cadre->close();
  EXPECT_THAT(b.messages.vus, IsEmpty());
  EXPECT_FALSE(FinVue());
  EXPECT_EQ(b.dossier.Lit("GLMCN.DAT"), "GLMCN.DATporc");
}

TEST_F(ListesDansLeCadre, UnDepartDePlusMontreCeQuiEtaitTape) {
  Ouvre();
  OuvreLesCourses();
  Tape(Le("txtDetail"), "porc\nveau");
  OuvreLesNotes();
  Tape(Le("txtSaisie"), "Un\nDeux\nTrois");
  cadre->close();
  cadre.reset();
  b.module = std::make_unique<Module1>(b.module->services, b.module->chemins);
  Ouvre();
  EXPECT_EQ(b.module->texteRayon[0], "porc\r\nveau");
  OuvreLesCourses();
  EXPECT_EQ(Texte(Le("txtDetail")), "porc\nveau");
  OuvreLesNotes();
  EXPECT_EQ(Texte(Le("txtSaisie")), "Un\nDeux\nTrois");
}

TEST_F(ListesDansLeCadre, SansLaFinDuCadreLesRayonsDAvantRestent) {
  b.AjouteCourses(0, "porc");
  Ouvre();
  OuvreLesCourses();
  Tape(Le("txtDetail"), ", veau");
  Ferme("frmCourses");
  EXPECT_EQ(b.dossier.Lit("GLMCN.DAT"), "GLMCN.DATporc");
}

TEST_F(ListesDansLeCadre, LeMenuFenetreNeListePasDesNotesCachees) {
  Ouvre();
  OuvreLesNotes();
  Ferme("frmMesNotes");
  emit Le<QMenu>("mnuWindow").aboutToShow();
  for (const QAction* action : Le<QMenu>("mnuWindow").actions()) {
    EXPECT_THAT(action->text().toStdString(), Not(HasSubstr("Mes notes")));
  }
}

}  // namespace
}  // namespace gastrelle::essai
