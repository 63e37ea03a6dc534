// The tab "Liste" of the recipes window, through its controls.

#include "recettes/fenetre/FenetreEssai.h"

namespace gastrelle::essai {
namespace {

using testing::ElementsAre;
using testing::SizeIs;

class Liste : public FenetreRecettes {
 protected:
  QWidget& texte() { return Le("txtRecette"); }
  /// Two recipes, "Avec" (3) on display with its picture and "Velouté" without one.
  void OuvreSurUneImage() {
    b.AjouteRecette(2, "Avec", "Le texte.", "/a.png");
    PoseImage("a.png");
    Ouvre();
    ASSERT_NE(image(), "");
  }
  void AttendSansImage() {
    EXPECT_EQ(image(), "");
    EXPECT_FALSE(Le("cmdCameraListe").isEnabled());
  }
  /// The window's load fails: it ends the program before there is a window.
  void AttendPasDeFenetre(const std::function<void()>& panne) {
    b.Demarre();
    cadre.emplace(*b.module);
    panne();
    EXPECT_THROW(fenetre = Cree(), FinDuProgramme);
    EXPECT_EQ(fenetre, nullptr);
  }
  const MessageVu fatal{DepuisUtf8("Erreur fatale. Impossibilité de continuer."), Icone::critique,
                        "Gastrelle 2005"};
};

TEST_F(Liste, OuvreSurLaPremiereFamilleEtSaPremiereRecette) {
  b.AjouteRecette(b.AjouteFamille("Desserts"), "Tarte", "Une tarte.");
  Ouvre();
  EXPECT_EQ(Textes(familles()), (QStringList{"Desserts", "Potages"}));
  EXPECT_EQ(familles().currentText(), "Desserts");
  EXPECT_EQ(Textes(recettes()), QStringList{"Tarte"});
  EXPECT_EQ(Texte(texte()), "Une tarte.");
}

TEST_F(Liste, ChangeDeFamilleALaSouris) {
  b.AjouteRecette(b.AjouteFamille("Desserts"), "Tarte", "Une tarte.");
  Ouvre();
  Choisit(familles(), Fr("Potages"));
  EXPECT_EQ(Textes(recettes()), QStringList{Fr("Velouté")});
  EXPECT_EQ(Texte(texte()), Fr("Un velouté."));
}

TEST_F(Liste, ClasseSansCasseNiAccentEtGardeLesNumeros) {
  b.AjouteRecette(2, "Écrevisses"_1252);
  b.AjouteRecette(2, "cerises");
  b.AjouteRecette(2, "Œufs"_1252);
  b.AjouteRecette(2, "Zeste");
  Ouvre();
  EXPECT_EQ(Textes(recettes()),
            (QStringList{"cerises", Fr("Écrevisses"), Fr("Œufs"), Fr("Velouté"), "Zeste"}));
  EXPECT_THAT(DonneesDe(recettes()), ElementsAre(4, 3, 5, 2, 6));
}

TEST_F(Liste, DistingueDeuxRecettesDuMemeTitre) {
  b.AjouteRecette(2, "Soupe", "La première."_1252);
  b.AjouteRecette(2, "Soupe", "La seconde.");
  Ouvre();
  Choisit(recettes(), 1);
  EXPECT_EQ(Texte(texte()), "La seconde.");
  EXPECT_EQ(recettes().currentData().toInt(), 4);
}

TEST_F(Liste, UneFamilleVideDesactiveListeEtTexteEtLaisseLImage) {
  b.AjouteFamille("Vide");
  b.AjouteRecette(2, "Avec", "texte", "/a.png");
  PoseImage("a.png");
  Ouvre();
  const QString avant = image();
  Choisit(familles(), Fr("Vide"));
  EXPECT_FALSE(recettes().isEnabled());
  EXPECT_FALSE(texte().isEnabled());
  EXPECT_EQ(recettes().count(), 0);
  EXPECT_EQ(Texte(texte()), "");
  EXPECT_EQ(image(), avant);
  EXPECT_TRUE(Trouve(*fenetre, "cmdCameraListe").isEnabled());
}

TEST_F(Liste, RevientDUneFamilleVide) {
  b.AjouteFamille("Vide");
  Ouvre();
  Choisit(familles(), Fr("Vide"));
  Choisit(familles(), Fr("Potages"));
  EXPECT_TRUE(recettes().isEnabled());
  EXPECT_TRUE(texte().isEnabled());
  EXPECT_EQ(Texte(texte()), Fr("Un velouté."));
}

TEST_F(Liste, LImagePresenteRemplitLaMarqueEtPermetDeLaVoir) {
  b.AjouteRecette(2, "Avec", {}, "/a.png");
  PoseImage("a.png");
  Ouvre();
  EXPECT_EQ(image(), VersQt(b.module->chemins.De("IMAGE/a.png")));
  EXPECT_TRUE(cadre->imagePermise.value());
  EXPECT_TRUE(Trouve(*fenetre, "cmdCameraListe").isEnabled());
  EXPECT_EQ(Texte(texte()), "");
}

TEST_F(Liste, UneImageDisparueEstDiteUneFois) {
  b.AjouteRecette(2, "Avec", "texte", "/a.png");
  Ouvre();
  EXPECT_THAT(b.messages.vus,
              ElementsAre(MessageVu{"Le fichier image\r\n" + b.module->chemins.De("IMAGE/a.png") +
                                        std::string("\r\nn'a pas été trouvé."_1252),
                                    Icone::exclamation, "Gastrelle 2005"}));
  EXPECT_EQ(image(), "");
  EXPECT_FALSE(Trouve(*fenetre, "cmdCameraListe").isEnabled());
  Choisit(recettes(), 0);
  EXPECT_THAT(b.messages.vus, SizeIs(1));
}

TEST_F(Liste, UneImageQuiPartSousUneRecetteRevueLaisseLePermisDuCadre) {
  OuvreSurUneImage();
  b.dossier.Supprime("IMAGE/a.png");
  Choisit(recettes(), Fr("Avec"));
  EXPECT_THAT(b.messages.vus, SizeIs(1));
  AttendSansImage();
  EXPECT_TRUE(cadre->imagePermise.value());
}

TEST_F(Liste, UneRecetteSansImageOteCelleDAvant) {
  OuvreSurUneImage();
  EXPECT_TRUE(cadre->imagePermise.value());
  Choisit(recettes(), Fr("Velouté"));
  AttendSansImage();
  EXPECT_FALSE(cadre->imagePermise.value());
}

TEST_F(Liste, UneImageSansCheminEstDiteEtDelieeSansToucherAuPermisDuCadre) {
  OuvreSurUneImage();
  RecRecette cassee = Fiche(2);
  cassee.posImage = 9;
  b.module->bufRecette.Ecrit(2, cassee);
  b.disque.OublieJournal();
  Choisit(recettes(), Fr("Velouté"));
  AttendMessage("Le fichier image\r\n\r\nn'a pas été trouvé.", Icone::exclamation);
  EXPECT_THAT(b.disque.changements(), ElementsAre("écrit GLR2.DAT 150+150"));
  EXPECT_EQ(Fiche(2).posImage, 0);
  AttendSansImage();
  EXPECT_TRUE(cadre->imagePermise.value());
}

TEST_F(Liste, LePointeurEstUneFlechePendantLeMessageDeLImagePerdue) {
  b.AjouteRecette(2, "Avec", "texte", "/a.png");
  ExigePointeurNormalAuxMessages();
  Ouvre();
  EXPECT_THAT(b.messages.vus, SizeIs(1));
  EXPECT_FALSE(b.pointeur.sablier);
}

TEST_F(Liste, AuClavierUneFamilleSeChercheDansLaListeOuvertePuisSeChoisit) {
  b.AjouteRecette(b.AjouteFamille("Veau"), "Blanquette", "Une blanquette.");
  b.AjouteRecette(b.AjouteFamille("Viandes"), "Gigot", "Un gigot.");
  Ouvre();
  fenetre->activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(fenetre.get()));
  familles().setFocus();
  Frappe("vi");
  EXPECT_EQ(familles().currentText(), "Potages");
  EXPECT_EQ(Texte(texte()), Fr("Un velouté."));
  EXPECT_THAT(b.disque.journal(), testing::IsEmpty());
  Frappe(Qt::Key_Return);
  EXPECT_EQ(familles().currentText(), "Viandes");
  EXPECT_EQ(Texte(texte()), "Un gigot.");
  EXPECT_TRUE(aLeFocus("txtRecette"));
}

TEST_F(Liste, ChaqueChoixDonneLeFocusAuTexte) {
  b.AjouteRecette(b.AjouteFamille("Desserts"), "Tarte");
  Ouvre();
  EXPECT_TRUE(aLeFocus("txtRecette"));
  Choisit(familles(), Fr("Potages"));
  EXPECT_TRUE(aLeFocus("txtRecette"));
  Choisit(recettes(), 0);
  EXPECT_TRUE(aLeFocus("txtRecette"));
}

TEST_F(Liste, LEntreeSurLOngletDonneLeFocusAuTexte) {
  Ouvre(4);
  CliqueOnglet(*fenetre, 1);
  EXPECT_TRUE(aLeFocus("txtRecette"));
}

TEST_F(Liste, UneFamilleVideNeDonnePasLeFocusAuTexte) {
  b.AjouteFamille("Vide");
  Ouvre();
  Choisit(familles(), Fr("Vide"));
  CliqueOnglet(*fenetre, 2);
  CliqueOnglet(*fenetre, 1);
  EXPECT_FALSE(aLeFocus("txtRecette"));
}

TEST_F(Liste, RepareUnCompteTropHautDansLEntete) {
  b.AjouteRecette(2, "Soupe");
  Ouvre();
  b.module->bufRecette.nbActifs() = 5;
  Choisit(familles(), 0);
  EXPECT_EQ(b.module->bufRecette.nbActifs(), 2);
  EXPECT_THAT(b.disque.changements(), ElementsAre("écrit GLR2.DAT 0+150"));
  EXPECT_EQ(Enregistrement<RecRecette>(b.dossier, "GLR2.DAT", 1).actif, 2);
}

TEST_F(Liste, UneReparationQuiEchoueEstIgnoree) {
  Ouvre();
  b.module->bufRecette.nbActifs() = 5;
  b.disque.EchoueSur("écrit GLR2.DAT 0+", Panne::disquePlein);
  Choisit(familles(), 0);
  EXPECT_FALSE(FinVue());
  EXPECT_EQ(Texte(texte()), Fr("Un velouté."));
}

TEST_F(Liste, UnFichierDisparuFinitLeProgrammeParLeMessageFatal) {
  Ouvre();
  b.dossier.Supprime("GLR2.DAT");
  Choisit(familles(), 0);
  AttendFinFatale();
  ASSERT_THAT(b.messages.vus, SizeIs(2));
  EXPECT_EQ(b.messages.vus[1].icone, Icone::critique);
  EXPECT_EQ(b.messages.bips, 1);
}

TEST_F(Liste, UneLectureQuiEchoueFinitLeProgrammeSansAutreMessage) {
  Ouvre();
  b.disque.EchoueSur("lit GLR3.DAT", Panne::entreeSortie);
  Choisit(recettes(), 0);
  EXPECT_EQ(FinVue(), 1);
  EXPECT_THAT(b.messages.vus, SizeIs(1));
}

TEST_F(Liste, SansFichierDesFamillesLaFenetreNeSOuvrePas) {
  AttendPasDeFenetre([this] { b.dossier.Supprime("GLR1.DAT"); });
  EXPECT_THAT(b.messages.vus, ElementsAre(NonTrouve(b, "GLR1.DAT"), fatal));
}

TEST_F(Liste, DesFamillesIllisiblesNOuvrentPasDeFenetre) {
  AttendPasDeFenetre([this] { b.disque.EchoueSur("lit GLR1.DAT", Panne::entreeSortie); });
  EXPECT_THAT(b.messages.vus, ElementsAre(fatal));
  EXPECT_FALSE(b.pointeur.sablier);
}

TEST_F(Liste, LeNombreDeRecettesSeLitAuSingulierPourUneDansTousLesOnglets) {
  OuvreEtParcourt();
  for (int i = 0; i < 5; ++i) {
    EXPECT_EQ(Texte(Le(("txtAnnonce(" + std::to_string(i) + ")").c_str())), "1\nrecette") << i;
  }
}

TEST_F(Liste, LeNombreDeRecettesSeLitAuPluriel) {
  b.AjouteRecette(2, "Soupe");
  Ouvre();
  EXPECT_EQ(Texte(Trouve(*fenetre, "txtAnnonce(0)")), "2\nrecettes");
}

TEST_F(Liste, LePointeurRevientALaFlecheApresChaqueChoix) {
  Ouvre();
  b.pointeur.Sablier();
  Choisit(recettes(), 0);
  EXPECT_FALSE(b.pointeur.sablier);
}

TEST_F(Liste, LeTexteSeLitEtSeCopieMaisNeSeTapePas) {
  Ouvre();
  Tape(texte(), "x");
  EXPECT_EQ(Texte(texte()), Fr("Un velouté."));
  EXPECT_EQ(texte().property("maxLength").toInt(), 30000);
}

TEST_F(Liste, LeBoutonDeLImageDemandeLeVisualisateur) {
  b.AjouteRecette(2, "Avec", {}, "/a.png");
  PoseImage("a.png");
  Ouvre();
  Clique(Le("cmdCameraListe"));
  EXPECT_EQ(cadre->imagesMontrees, 1);
}

TEST_F(Liste, LAffichageDitLaRecetteEtSonImage) {
  b.AjouteRecette(2, "Avec", "Le texte.", "/a.png");
  PoseImage("a.png");
  Ouvre();
  const auto vue = std::get<VueRecette>(fenetre->VueCourante());
  EXPECT_EQ(vue.famille, "Potages");
  EXPECT_EQ(vue.titre, "Avec");
  EXPECT_EQ(vue.texte, "Le texte.");
  EXPECT_EQ(vue.image, b.module->chemins.De("IMAGE/a.png"));
}

}  // namespace
}  // namespace gastrelle::essai
