// The tab "Ajouter" of the recipes window, through its controls.

#include "recettes/fenetre/FenetreEssai.h"

namespace gastrelle::essai {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

class Ajouter : public FenetreRecettes {
 protected:
  void OuvreFamille() {
    Ouvre(2);
    Clique(Le("Option1(0)"));
    b.disque.OublieJournal();
  }
  /// What the file dialog does with a chosen path.
  void ChoisitImage(const std::string& chemin) {
    Le<QLineEdit>("txtImageAjouter").setText(VersQt(chemin));
  }
  void Efface(Reponse reponse) {
    b.messages.reponses = {reponse};
    Clique(Le("cmdEffacerAjouter"));
    EXPECT_THAT(b.messages.questions, SizeIs(1));
    b.messages.questions.clear();
  }
  void Valide() { Clique(Le("cmdValideAjouter")); }
};

TEST_F(Ajouter, SOuvreSurUneRecetteLeFocusSurSaFamille) {
  b.AjouteFamille("Desserts");
  Ouvre();
  Choisit(familles(), Fr("Potages"));
  CliqueOnglet(*fenetre, 2);
  EXPECT_EQ(onglet(), 2);
  EXPECT_EQ(cadre->contextes.back(), 12);
  EXPECT_TRUE(Le<QRadioButton>("Option1(1)").isChecked());
  EXPECT_EQ(Le<QComboBox>("ComboFamillesAjouter").currentText(), "Potages");
  EXPECT_TRUE(aLeFocus("ComboFamillesAjouter"));
  EXPECT_FALSE(Le("txtSaisieFamille").isEnabled());
}

TEST_F(Ajouter, LOptionFamilleVideEtDesactiveLaRecette) {
  Ouvre(2);
  Tape(Le("txtSaisieNomRecette"), "Soupe");
  Clique(Le("Option1(0)"));
  EXPECT_EQ(Texte(Le("txtSaisieNomRecette")), "");
  for (const char* nom : {"ComboFamillesAjouter", "txtSaisieNomRecette", "txtSaisieRecetteAjouter",
                          "txtImageAjouter", "cmdImageAjouter"}) {
    EXPECT_FALSE(Le(nom).isEnabled()) << nom;
  }
  EXPECT_TRUE(aLeFocus("txtSaisieFamille"));
}

TEST_F(Ajouter, LOptionFamilleRemetLaFamilleAfficheeEtVideTexteEtImage) {
  b.AjouteFamille("Desserts");
  Ouvre(2);
  Choisit(Le<QComboBox>("ComboFamillesAjouter"), Fr("Potages"));
  Tape(Le("txtSaisieRecetteAjouter"), "Du texte.");
  ChoisitImage("/tmp/a.jpg");
  Clique(Le("Option1(0)"));
  EXPECT_EQ(Le<QComboBox>("ComboFamillesAjouter").currentText(), "Desserts");
  EXPECT_EQ(Texte(Le("txtSaisieRecetteAjouter")), "");
  EXPECT_EQ(Texte(Le("txtImageAjouter")), "");
}

TEST_F(Ajouter, CeQuUnChangementDOngletVideRevientParCtrlZ) {
  Ouvre(2);
  Tape(Le("txtSaisieNomRecette"), "Soupe");
  Tape(Le("txtSaisieRecetteAjouter"), "De l'eau\net du sel");
  CliqueOnglet(*fenetre, 1);
  CliqueOnglet(*fenetre, 2);
  for (const char* nom : {"txtSaisieNomRecette", "txtSaisieRecetteAjouter"}) {
    EXPECT_EQ(Texte(Le(nom)), "");
    QTest::keyClick(&Le(nom), Qt::Key_Z, Qt::ControlModifier);
  }
  EXPECT_EQ(Texte(Le("txtSaisieNomRecette")), "Soupe");
  EXPECT_EQ(Texte(Le("txtSaisieRecetteAjouter")), "De l'eau\net du sel");
}

TEST_F(Ajouter, CeQueLOptionFamilleVideRevientAvecLOptionRecette) {
  Ouvre(2);
  Tape(Le("txtSaisieNomRecette"), "Soupe");
  Clique(Le("Option1(0)"));
  Tape(Le("txtSaisieFamille"), "Poissons");
  Clique(Le("Option1(1)"));
  QTest::keyClick(&Le("txtSaisieNomRecette"), Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(Texte(Le("txtSaisieNomRecette")), "Soupe");
  Clique(Le("Option1(0)"));
  QTest::keyClick(&Le("txtSaisieFamille"), Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(Texte(Le("txtSaisieFamille")), "Poissons");
}

TEST_F(Ajouter, CeQueLeBoutonEffaceRevientParCtrlZ) {
  Ouvre(2);
  Tape(Le("txtSaisieRecetteAjouter"), "De l'eau");
  Efface(Reponse::oui);
  EXPECT_EQ(Texte(Le("txtSaisieRecetteAjouter")), "");
  QTest::keyClick(&Le("txtSaisieRecetteAjouter"), Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(Texte(Le("txtSaisieRecetteAjouter")), "De l'eau");
}

TEST_F(Ajouter, UneValidationRefuseeLaisseAnnulerLaSaisie) {
  Ouvre(2);
  Tape(Le("txtSaisieNomRecette"), "   ");
  Valide();
  EXPECT_EQ(Texte(Le("txtSaisieNomRecette")), "");
  QTest::keyClick(&Le("txtSaisieNomRecette"), Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(Texte(Le("txtSaisieNomRecette")), "   ");
}

TEST_F(Ajouter, LeRetourSurLOngletGardeLOptionFamilleEtLuiDonneLeFocus) {
  OuvreFamille();
  Tape(Le("txtSaisieFamille"), "Poissons");
  CliqueOnglet(*fenetre, 1);
  CliqueOnglet(*fenetre, 2);
  EXPECT_TRUE(Le<QRadioButton>("Option1(0)").isChecked());
  EXPECT_EQ(Texte(Le("txtSaisieFamille")), "");
  EXPECT_TRUE(aLeFocus("txtSaisieFamille"));
  EXPECT_FALSE(Le("ComboFamillesAjouter").isEnabled());
}

TEST_F(Ajouter, LOptionRecetteVideEtDesactiveLaFamille) {
  OuvreFamille();
  Tape(Le("txtSaisieFamille"), "Poissons");
  Clique(Le("Option1(1)"));
  EXPECT_EQ(Texte(Le("txtSaisieFamille")), "");
  EXPECT_FALSE(Le("txtSaisieFamille").isEnabled());
  for (const char* nom : {"ComboFamillesAjouter", "txtSaisieNomRecette", "txtSaisieRecetteAjouter",
                          "txtImageAjouter", "cmdImageAjouter"}) {
    EXPECT_TRUE(Le(nom).isEnabled()) << nom;
  }
  EXPECT_TRUE(aLeFocus("ComboFamillesAjouter"));
}

TEST_F(Ajouter, UneFamilleEntreDansLesTroisListesEtSAffiche) {
  OuvreEtParcourt();
  CliqueOnglet(*fenetre, 2);
  Clique(Le("Option1(0)"));
  Tape(Le("txtSaisieFamille"), "  Poissons ");
  Valide();
  for (const char* nom : {"ComboFamilles", "ComboFamillesAjouter", "ComboFamillesModifier"}) {
    EXPECT_EQ(Textes(Le<QComboBox>(nom)), (QStringList{"Poissons", "Potages"})) << nom;
  }
  EXPECT_EQ(NomFamille(3), "Poissons");
  EXPECT_EQ(onglet(), 1);
  EXPECT_EQ(familles().currentText(), "Poissons");
  EXPECT_EQ(familles().currentData().toInt(), 3);
  EXPECT_FALSE(recettes().isEnabled());
}

TEST_F(Ajouter, UneFamilleDeBlancsEstUnNomVide) {
  OuvreFamille();
  Tape(Le("txtSaisieFamille"), "   ");
  Valide();
  AttendMessage("Il faut saisir le nom de la nouvelle famille de recettes.");
  EXPECT_EQ(Texte(Le("txtSaisieFamille")), "");
  EXPECT_TRUE(aLeFocus("txtSaisieFamille"));
  EXPECT_THAT(b.disque.changements(), IsEmpty());
}

TEST_F(Ajouter, UneFamilleQuiExisteEnAutreCasseEstRefusee) {
  b.AjouteFamille("Légumes"_1252);
  OuvreFamille();
  Tape(Le("txtSaisieFamille"), Fr("LÉGUMES"));
  Valide();
  AttendMessage("Cette famille de recettes existe déjà !");
  EXPECT_EQ(b.messages.bips, 1);
  EXPECT_EQ(Texte(Le("txtSaisieFamille")), Fr("LÉGUMES"));
  EXPECT_TRUE(aLeFocus("txtSaisieFamille"));
  EXPECT_THAT(b.disque.changements(), IsEmpty());
}

TEST_F(Ajouter, UneRecetteEcritReserveFicheEnteteEtSAffiche) {
  Ouvre(2);
  Tape(Le("txtSaisieNomRecette"), " Soupe ");
  Tape(Le("txtSaisieRecetteAjouter"), Fr(" De l'eau.\nDu sel. "));
  Valide();
  EXPECT_THAT(b.disque.changements(), ElementsAre("écrit GLR3.DAT 19+18", "écrit GLR2.DAT 300+150",
                                                  "écrit GLR2.DAT 0+150"));
  EXPECT_EQ(b.dossier.Lit("GLR3.DAT").substr(19), "De l'eau.\r\nDu sel.");
  EXPECT_EQ(onglet(), 1);
  EXPECT_EQ(recettes().currentText(), "Soupe");
  EXPECT_EQ(recettes().currentData().toInt(), 3);
  EXPECT_EQ(Texte(Le("txtRecette")), "De l'eau.\nDu sel.");
}

TEST_F(Ajouter, LeRetourSurLOngletTrouveLesSaisiesVidesEtLOptionGardee) {
  Ouvre(2);
  Tape(Le("txtSaisieNomRecette"), "Soupe");
  CliqueOnglet(*fenetre, 1);
  CliqueOnglet(*fenetre, 2);
  EXPECT_EQ(Texte(Le("txtSaisieNomRecette")), "");
  EXPECT_TRUE(Le<QRadioButton>("Option1(1)").isChecked());
}

TEST_F(Ajouter, UnTitreVideEstRefuseLeFocusSurLeTitre) {
  Ouvre(2);
  Tape(Le("txtSaisieRecetteAjouter"), "Du texte.");
  Valide();
  AttendMessage("Il faut donner un titre à la nouvelle recette.");
  EXPECT_EQ(b.messages.bips, 0);
  EXPECT_TRUE(aLeFocus("txtSaisieNomRecette"));
  EXPECT_THAT(b.disque.changements(), IsEmpty());
}

TEST_F(Ajouter, UnTitreDejaDonneEstAccepte) {
  Ouvre(2);
  Tape(Le("txtSaisieNomRecette"), Fr("Velouté"));
  Valide();
  EXPECT_THAT(b.messages.vus, IsEmpty());
  EXPECT_EQ(recettes().count(), 2);
  EXPECT_EQ(recettes().currentData().toInt(), 3);
}

TEST_F(Ajouter, UneImageDuDossierSEcritEnFormeCourteEtSurvitAuChangementDOnglet) {
  Ouvre(2);
  ChoisitImage(PoseImage("soupe.jpg"));
  CliqueOnglet(*fenetre, 1);
  CliqueOnglet(*fenetre, 2);
  EXPECT_NE(Texte(Le("txtImageAjouter")), "");
  Tape(Le("txtSaisieNomRecette"), "Soupe");
  Valide();
  EXPECT_EQ(b.dossier.Lit("GLR4.DAT"), "GLR4.DAT/soupe.jpg");
  EXPECT_EQ(image(), VersQt(b.module->chemins.De("IMAGE/soupe.jpg")));
  CliqueOnglet(*fenetre, 2);
  EXPECT_EQ(Texte(Le("txtImageAjouter")), "");
}

TEST_F(Ajouter, UneImageDUnSousDossierGardeSonCheminEntier) {
  Ouvre(2);
  std::filesystem::create_directories(b.dossier.chemin() / "IMAGE/ete");
  b.dossier.Ecrit("IMAGE/ete/a.jpg", "x");
  const std::string chemin = b.module->chemins.De("IMAGE/ete/a.jpg");
  ChoisitImage(chemin);
  Tape(Le("txtSaisieNomRecette"), "Soupe");
  Valide();
  EXPECT_EQ(b.dossier.Lit("GLR4.DAT"), "GLR4.DAT" + chemin);
}

TEST_F(Ajouter, UnFichierRefuseVideLeChampDesLeChoix) {
  Ouvre(2);
  for (const char* chemin : {"/tmp/programme.EXE", "/tmp/sans", "sans"}) {
    SCOPED_TRACE(chemin);
    b.messages.vus.clear();
    b.messages.bips = 0;
    ChoisitImage(chemin);
    AttendMessage("Ce fichier n'est pas un fichier image.");
    EXPECT_EQ(b.messages.bips, 1);
    EXPECT_EQ(Texte(Le("txtImageAjouter")), "");
  }
}

TEST_F(Ajouter, UnCheminQuiFinitParUnPointNEstRefuseQuALaValidation) {
  Ouvre(2);
  ChoisitImage("/tmp/image.");
  EXPECT_THAT(b.messages.vus, IsEmpty());
  Tape(Le("txtSaisieNomRecette"), "Soupe");
  Valide();
  AttendMessage("Ce fichier n'est pas un fichier image.");
  EXPECT_EQ(Texte(Le("txtImageAjouter")), "");
  EXPECT_TRUE(aLeFocus("cmdImageAjouter"));
  EXPECT_THAT(b.disque.changements(), IsEmpty());
}

TEST_F(Ajouter, UneImageQueLeVisualisateurNeMontrePasEstDiteEtAcceptee) {
  Ouvre(2);
  ChoisitImage(PoseImage("a.png"));
  Tape(Le("txtSaisieNomRecette"), "Soupe");
  Valide();
  AttendMessage("Ce type de fichier ne sera pas affichable par le visualisateur interne d'images.");
  EXPECT_EQ(Fiche(3).lgImage, 6);
}

TEST_F(Ajouter, LeCheminDeLImageNeSeTapePas) {
  Ouvre(2);
  Tape(Le("txtImageAjouter"), "a.jpg");
  EXPECT_EQ(Texte(Le("txtImageAjouter")), "");
}

TEST_F(Ajouter, EffacerDemandePuisVideTout) {
  Ouvre(2);
  Tape(Le("txtSaisieNomRecette"), "Soupe");
  b.messages.reponses = {Reponse::oui};
  Clique(Le("cmdEffacerAjouter"));
  EXPECT_THAT(b.messages.questions, ElementsAre(DepuisUtf8("Effacer la saisie : êtes-sur sûr ?")));
  EXPECT_EQ(Texte(Le("txtSaisieNomRecette")), "");
  EXPECT_TRUE(aLeFocus("ComboFamillesAjouter"));
}

TEST_F(Ajouter, EffacerGardeToutSurUnNon) {
  OuvreFamille();
  Tape(Le("txtSaisieFamille"), "Poissons");
  b.messages.reponses = {Reponse::non};
  Clique(Le("cmdEffacerAjouter"));
  EXPECT_EQ(Texte(Le("txtSaisieFamille")), "Poissons");
  EXPECT_TRUE(aLeFocus("txtSaisieFamille"));
}

TEST_F(Ajouter, EffacerDemandeAussiPourUnTexteSeulOuUneImageSeule) {
  Ouvre(2);
  Tape(Le("txtSaisieRecetteAjouter"), "Du texte.");
  Efface(Reponse::non);
  EXPECT_EQ(Texte(Le("txtSaisieRecetteAjouter")), "Du texte.");
  Efface(Reponse::oui);
  EXPECT_EQ(Texte(Le("txtSaisieRecetteAjouter")), "");
  ChoisitImage("/tmp/a.jpg");
  Efface(Reponse::non);
  EXPECT_EQ(Texte(Le("txtImageAjouter")), "/tmp/a.jpg");
  Efface(Reponse::oui);
  EXPECT_EQ(Texte(Le("txtImageAjouter")), "");
}

TEST_F(Ajouter, EffacerNeDemandeRienQuandToutEstVide) {
  Ouvre(2);
  Clique(Le("cmdEffacerAjouter"));
  EXPECT_THAT(b.messages.questions, IsEmpty());
}

TEST_F(Ajouter, EffacerRemetLaFamilleAffichee) {
  b.AjouteFamille("Desserts");
  Ouvre();
  Choisit(familles(), Fr("Potages"));
  CliqueOnglet(*fenetre, 2);
  Choisit(Le<QComboBox>("ComboFamillesAjouter"), Fr("Desserts"));
  Clique(Le("cmdEffacerAjouter"));
  EXPECT_EQ(Le<QComboBox>("ComboFamillesAjouter").currentText(), "Potages");
}

TEST_F(Ajouter, UneFamilleChoisieRecoitLaRecetteEtSAffiche) {
  b.AjouteFamille("Desserts");
  Ouvre(2);
  Choisit(Le<QComboBox>("ComboFamillesAjouter"), Fr("Potages"));
  Tape(Le("txtSaisieNomRecette"), "Soupe");
  Valide();
  EXPECT_EQ(Fiche(3).idFamille, 2);
  EXPECT_EQ(familles().currentText(), "Potages");
}

TEST_F(Ajouter, UneFamilleDontLeFichierDisparaitNeSEcritPas) {
  OuvreFamille();
  Tape(Le("txtSaisieFamille"), "Poissons");
  b.dossier.Supprime("GLR1.DAT");
  Valide();
  AttendFinFatale(Donnees::GLR1);
}

TEST_F(Ajouter, UneRecetteDontUnFichierDisparaitNEcritRien) {
  for (const Donnees disparu : {Donnees::GLR2, Donnees::GLR3, Donnees::GLR4}) {
    SCOPED_TRACE(Nom(disparu));
    Ouvre(2);
    Tape(Le("txtSaisieNomRecette"), "Soupe");
    Tape(Le("txtSaisieRecetteAjouter"), "Texte.");
    ChoisitImage("/ailleurs/a.jpg");
    const std::string octets = b.dossier.Lit(Nom(disparu));
    b.dossier.Supprime(Nom(disparu));
    Valide();
    AttendFinFatale(disparu);
    fenetre.reset();
    b.dossier.Ecrit(Nom(disparu), octets);
    b.messages.vus.clear();
    b.Redemarre();
  }
}

TEST_F(Ajouter, UneRecetteSansTexteNiImageNeCherchePasLesReserves) {
  Ouvre(2);
  Tape(Le("txtSaisieNomRecette"), "Soupe");
  b.disque.OublieJournal();
  Valide();
  EXPECT_THAT(b.disque.journal().front(), "existe GLR2.DAT");
  EXPECT_THAT(b.disque.journal()[1], "longueur GLR2.DAT");
}

TEST_F(Ajouter, UneRecetteFinitLeProgrammeAChaqueEcritureQuiEchoue) {
  FinitAChaqueEcriture(
      4, 2,
      [](QWidget& uneFenetre) {
        Tape(Trouve(uneFenetre, "txtSaisieNomRecette"), "Soupe");
        Tape(Trouve(uneFenetre, "txtSaisieRecetteAjouter"), "Texte.");
        Trouve<QLineEdit>(uneFenetre, "txtImageAjouter").setText("/ailleurs/a.jpg");
        Clique(Trouve(uneFenetre, "cmdValideAjouter"));
      },
      [](const Bibliotheque& autre, std::size_t n) {
        EXPECT_EQ(autre.dossier.Lit("GLR2.DAT").size(), n == 4 ? 450U : 300U);
        EXPECT_EQ(Enregistrement<RecRecette>(autre.dossier, "GLR2.DAT", 1).actif, 1);
      });
}

TEST_F(Ajouter, UneFamilleFinitLeProgrammeAChaqueEcritureQuiEchoue) {
  FinitAChaqueEcriture(
      2, 2,
      [](QWidget& uneFenetre) {
        Clique(Trouve(uneFenetre, "Option1(0)"));
        Tape(Trouve(uneFenetre, "txtSaisieFamille"), "Poissons");
        Clique(Trouve(uneFenetre, "cmdValideAjouter"));
      },
      [](const Bibliotheque& autre, std::size_t n) {
        EXPECT_EQ(autre.dossier.Lit("GLR1.DAT").size(), n == 2 ? 390U : 260U);
        EXPECT_EQ(Enregistrement<RecFamille>(autre.dossier, "GLR1.DAT", 1).actif, 1);
      });
}

TEST_F(Ajouter, LesLimitesDesBoitesSontCellesDesFiches) {
  Ouvre(2);
  EXPECT_EQ(Le<QLineEdit>("txtSaisieFamille").maxLength(), 128);
  EXPECT_EQ(Le<QLineEdit>("txtSaisieNomRecette").maxLength(), 128);
  EXPECT_EQ(Le("txtSaisieRecetteAjouter").property("maxLength").toInt(), 30000);
}

TEST_F(Ajouter, LImageDuWebOuvreLaPageDesRecettes) {
  Ouvre(2);
  EXPECT_EQ(Le("PictureWeb").toolTip(), "Cliquez ici pour rechercher de nouvelles recettes");
  Clique(Le("PictureWeb"));
  EXPECT_THAT(b.association.cibles, ElementsAre("https://fr.wikibooks.org/wiki/Livre_de_cuisine"));
  EXPECT_THAT(b.messages.vus, IsEmpty());
}

TEST_F(Ajouter, EntreeSurLImageDuWebLOuvreAussi) {
  Ouvre(2);
  QTest::keyClick(&Le("PictureWeb"), Qt::Key_Return);
  EXPECT_THAT(b.association.cibles, testing::SizeIs(1));
}

TEST_F(Ajouter, LImageDuWebEstDansLaRangeeDesBoutonsEtAppelleLeClic) {
  Ouvre(2);
  const auto& web = Le<QPushButton>("PictureWeb");
  const QWidget& valide = Le("cmdValideAjouter");
  EXPECT_EQ(web.iconSize(), QSize(32, 32));
  EXPECT_EQ(web.cursor().shape(), Qt::PointingHandCursor);
  EXPECT_LE(std::abs(web.geometry().center().y() - valide.geometry().center().y()), 1);
  EXPECT_LT(web.x(), valide.x());
  EXPECT_LT(valide.x() - web.geometry().right(), web.width());
}

TEST_F(Ajouter, SansNavigateurLImageDuWebLeDit) {
  Ouvre(2);
  b.association.reponse = Ouverture::aucuneAssociation;
  Clique(Le("PictureWeb"));
  AttendMessage("Aucune association n'est définie pour naviguer sur Internet");
}

}  // namespace
}  // namespace gastrelle::essai
