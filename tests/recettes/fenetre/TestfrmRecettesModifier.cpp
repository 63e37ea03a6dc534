// The tab "Modifier" of the recipes window, through its controls.

#include <QClipboard>

#include "recettes/fenetre/FenetreEssai.h"

namespace gastrelle::essai {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

constexpr std::array boitesDeLaRecette{"txtSaisieNomRecetteModifier", "txtSaisieRecetteModifier",
                                       "txtImageModifier"};
constexpr std::array controlesDeLaRecette{"ComboFamillesModifier", "txtSaisieNomRecetteModifier",
                                          "txtSaisieRecetteModifier", "txtImageModifier",
                                          "cmdImageModifier"};
constexpr const char* avis =
    "Ce type de fichier ne sera pas affichable par le visualisateur interne d'images.";

class Modifier : public FenetreRecettes {
 protected:
  /// Opens on "Avec" (3), in "Potages", with its picture; there is a family "Vide" (3) as well.
  void OuvreSurUneImage(int surOnglet = 3) {
    b.AjouteFamille("Vide");
    b.AjouteRecette(2, "Avec", "Le texte.", "/a.jpg");
    PoseImage("a.jpg");
    Ouvre();
    CliqueOnglet(*fenetre, surOnglet);
  }
  /// Changes what the boxes of the recipe hold.
  void ChangeTout() {
    Choisit(Le<QComboBox>("ComboFamillesModifier"), Fr("Vide"));
    for (const char* nom : boitesDeLaRecette) {
      Remplace(Le(nom), "Autre");
    }
  }
  void AttendLesValeurs() {
    EXPECT_EQ(Le<QComboBox>("ComboFamillesModifier").currentText(), "Potages");
    EXPECT_EQ(Texte(Le("txtSaisieFamilleModifier")), "Potages");
    EXPECT_EQ(Texte(Le("txtSaisieNomRecetteModifier")), "Avec");
    EXPECT_EQ(Texte(Le("txtSaisieRecetteModifier")), "Le texte.");
    EXPECT_EQ(Texte(Le("txtImageModifier")), image());
    EXPECT_NE(image(), "");
  }
  void AttendMessages(std::initializer_list<const char*> textes) {
    ASSERT_THAT(b.messages.vus, SizeIs(textes.size()));
    auto vu = b.messages.vus.begin();
    for (const char* texte : textes) {
      EXPECT_EQ(vu->texte, DepuisUtf8(texte));
      EXPECT_EQ((vu++)->icone, Icone::information);
    }
  }
  void Valide() {
    b.disque.OublieJournal();
    Clique(Le("cmdValideModifier"));
  }
};

TEST_F(Modifier, CeQuUnChangementDOngletRemetRevientParCtrlZ) {
  OuvreSurUneImage();
  Remplace(Le("txtSaisieNomRecetteModifier"), "Autre");
  Remplace(Le("txtSaisieRecetteModifier"), "Un autre texte.");
  CliqueOnglet(*fenetre, 1);
  CliqueOnglet(*fenetre, 3);
  AttendLesValeurs();
  QTest::keyClick(&Le("txtSaisieNomRecetteModifier"), Qt::Key_Z, Qt::ControlModifier);
  QTest::keyClick(&Le("txtSaisieRecetteModifier"), Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(Texte(Le("txtSaisieNomRecetteModifier")), "Autre");
  EXPECT_EQ(Texte(Le("txtSaisieRecetteModifier")), "Un autre texte.");
  Clique(Le("cmdEffacerModifier"));
  AttendLesValeurs();
  QTest::keyClick(&Le("txtSaisieRecetteModifier"), Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(Texte(Le("txtSaisieRecetteModifier")), "Un autre texte.");
}

TEST_F(Modifier, CeQuiFutSaisiPourUneRecetteNeVientPasDansUneAutre) {
  b.AjouteRecette(2, "Avant", "Le texte.");
  OuvreSurUneImage();
  Remplace(Le("txtSaisieNomRecetteModifier"), "Autre");
  Remplace(Le("txtSaisieRecetteModifier"), "Un autre texte.");
  CliqueOnglet(*fenetre, 1);
  const int affichee = recettes().currentIndex();
  Choisit(recettes(), affichee == 0 ? 1 : 0);
  CliqueOnglet(*fenetre, 3);
  const QString titre = Texte(Le("txtSaisieNomRecetteModifier"));
  QTest::keyClick(&Le("txtSaisieNomRecetteModifier"), Qt::Key_Z, Qt::ControlModifier);
  QTest::keyClick(&Le("txtSaisieRecetteModifier"), Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(Texte(Le("txtSaisieNomRecetteModifier")), titre);
  EXPECT_EQ(Texte(Le("txtSaisieRecetteModifier")), "Le texte.");
}

TEST_F(Modifier, LeCheminDeLImageNEstPasTranscrit) {
  OuvreSurUneImage();
  auto& chemin = Le<QLineEdit>("txtImageModifier");
  chemin.selectAll();
  QApplication::clipboard()->setText(Fr("/a\u00ADb.jpg"));
  QTest::keyClick(&chemin, Qt::Key_V, Qt::ControlModifier);
  EXPECT_EQ(Texte(chemin), Fr("/a\u00ADb.jpg"));
}

TEST_F(Modifier, SOuvreSurLaRecetteAffichee) {
  b.AjouteRecette(2, "Avec", "Le texte.", "/a.png");
  PoseImage("a.png");
  Ouvre(3);
  EXPECT_EQ(cadre->contextes.back(), 13);
  EXPECT_EQ(Texte(Le("txtSaisieFamilleModifier")), "Potages");
  EXPECT_EQ(Texte(Le("txtSaisieNomRecetteModifier")), "Avec");
  EXPECT_EQ(Texte(Le("txtSaisieRecetteModifier")), "Le texte.");
  EXPECT_EQ(Texte(Le("txtImageModifier")), image());
  EXPECT_TRUE(Le<QRadioButton>("Option2(1)").isChecked());
  EXPECT_FALSE(Le("txtSaisieFamilleModifier").isEnabled());
  EXPECT_TRUE(aLeFocus("ComboFamillesModifier"));
}

TEST_F(Modifier, UneFamilleVideNePermetQueSonNom) {
  b.AjouteFamille("Vide");
  Ouvre();
  Choisit(familles(), Fr("Vide"));
  CliqueOnglet(*fenetre, 3);
  EXPECT_FALSE(Le("Option2(1)").isEnabled());
  EXPECT_TRUE(Le<QRadioButton>("Option2(0)").isChecked());
  for (const char* nom : controlesDeLaRecette) {
    EXPECT_FALSE(Le(nom).isEnabled()) << nom;
  }
  EXPECT_TRUE(aLeFocus("txtSaisieFamilleModifier"));
}

TEST_F(Modifier, ApresUneFamilleVideLaRecetteRevient) {
  b.AjouteFamille("Vide");
  Ouvre();
  Choisit(familles(), Fr("Vide"));
  CliqueOnglet(*fenetre, 3);
  CliqueOnglet(*fenetre, 1);
  Choisit(familles(), Fr("Potages"));
  CliqueOnglet(*fenetre, 3);
  EXPECT_TRUE(Le<QRadioButton>("Option2(1)").isChecked());
  EXPECT_TRUE(Le("txtSaisieNomRecetteModifier").isEnabled());
  EXPECT_FALSE(Le("txtSaisieFamilleModifier").isEnabled());
}

TEST_F(Modifier, UneFamilleVideApresUneImageLaisseLesBoitesVides) {
  OuvreSurUneImage(1);
  Choisit(familles(), Fr("Vide"));
  ASSERT_NE(image(), "");
  CliqueOnglet(*fenetre, 3);
  for (const char* nom : boitesDeLaRecette) {
    EXPECT_EQ(Texte(Le(nom)), "") << nom;
  }
  Remplace(Le("txtSaisieFamilleModifier"), "Autre");
  Clique(Le("cmdEffacerModifier"));
  for (const char* nom : boitesDeLaRecette) {
    EXPECT_EQ(Texte(Le(nom)), "") << nom;
  }
  EXPECT_EQ(Texte(Le("txtSaisieFamilleModifier")), "Vide");
  EXPECT_TRUE(aLeFocus("txtSaisieFamilleModifier"));
}

TEST_F(Modifier, LOptionFamilleRendLesValeursEtDesactiveLaRecette) {
  OuvreSurUneImage();
  ChangeTout();
  Clique(Le("Option2(0)"));
  AttendLesValeurs();
  for (const char* nom : controlesDeLaRecette) {
    EXPECT_FALSE(Le(nom).isEnabled()) << nom;
  }
  EXPECT_TRUE(Le("txtSaisieFamilleModifier").isEnabled());
  EXPECT_TRUE(aLeFocus("txtSaisieFamilleModifier"));
}

TEST_F(Modifier, LOptionRecetteRendLeNomDeLaFamille) {
  Ouvre(3);
  Clique(Le("Option2(0)"));
  Remplace(Le("txtSaisieFamilleModifier"), "Autre");
  Clique(Le("Option2(1)"));
  EXPECT_EQ(Texte(Le("txtSaisieFamilleModifier")), "Potages");
  EXPECT_FALSE(Le("txtSaisieFamilleModifier").isEnabled());
  for (const char* nom : controlesDeLaRecette) {
    EXPECT_TRUE(Le(nom).isEnabled()) << nom;
  }
  EXPECT_TRUE(aLeFocus("ComboFamillesModifier"));
}

TEST_F(Modifier, RenommeLaFamilleEtGardeLaRecette) {
  Ouvre(3);
  Clique(Le("Option2(0)"));
  Remplace(Le("txtSaisieFamilleModifier"), "Soupes");
  Valide();
  EXPECT_THAT(b.disque.changements(), ElementsAre("écrit GLR1.DAT 130+130"));
  EXPECT_EQ(NomFamille(2), "Soupes");
  EXPECT_EQ(onglet(), 1);
  EXPECT_EQ(familles().currentText(), "Soupes");
  EXPECT_EQ(recettes().currentText(), Fr("Velouté"));
  EXPECT_TRUE(aLeFocus("ComboFamilles"));
}

TEST_F(Modifier, UnNomDeFamilleVideEstRefuseEtRendu) {
  Ouvre(3);
  Clique(Le("Option2(0)"));
  Remplace(Le("txtSaisieFamilleModifier"), "  ");
  Valide();
  AttendMessage("Il faut saisir le nouveau nom de la famille de recettes.");
  EXPECT_EQ(Texte(Le("txtSaisieFamilleModifier")), "Potages");
  EXPECT_TRUE(aLeFocus("txtSaisieFamilleModifier"));
}

TEST_F(Modifier, UnNomQuiNeChangeQueDeCasseNEstPasEcrit) {
  Ouvre(3);
  Clique(Le("Option2(0)"));
  Remplace(Le("txtSaisieFamilleModifier"), "POTAGES");
  Valide();
  EXPECT_THAT(b.disque.changements(), IsEmpty());
  EXPECT_THAT(b.messages.vus, IsEmpty());
  EXPECT_EQ(onglet(), 1);
  EXPECT_TRUE(aLeFocus("ComboFamilles"));
}

TEST_F(Modifier, LeNomDUneAutreFamilleEstRefuseEtRendu) {
  b.AjouteFamille("Desserts");
  Ouvre();
  Choisit(familles(), Fr("Potages"));
  CliqueOnglet(*fenetre, 3);
  Clique(Le("Option2(0)"));
  Remplace(Le("txtSaisieFamilleModifier"), "desserts");
  Valide();
  AttendMessage("Cette famille de recettes existe déjà !");
  EXPECT_EQ(b.messages.bips, 1);
  EXPECT_EQ(Texte(Le("txtSaisieFamilleModifier")), "Potages");
}

TEST_F(Modifier, RenommerUneFamilleVideFinitLeProgrammeSansRienEcrire) {
  b.AjouteFamille("Vide");
  Ouvre();
  Choisit(familles(), Fr("Vide"));
  CliqueOnglet(*fenetre, 3);
  Remplace(Le("txtSaisieFamilleModifier"), "Autre");
  Valide();
  AttendFinFatale();
  EXPECT_THAT(b.disque.changements(), IsEmpty());
  EXPECT_EQ(NomFamille(3), "Vide");
}

TEST_F(Modifier, UnNomDeFamilleDontLeFichierDisparaitNeSEcritPas) {
  Ouvre(3);
  Clique(Le("Option2(0)"));
  Remplace(Le("txtSaisieFamilleModifier"), "Soupes");
  b.dossier.Supprime("GLR1.DAT");
  Valide();
  AttendFinFatale(Donnees::GLR1);
}

TEST_F(Modifier, ChangeLeTexteEnPlaceQuandIlNEstPasPlusLong) {
  Ouvre(3);
  Remplace(Le("txtSaisieRecetteModifier"), "Bref.");
  Valide();
  EXPECT_THAT(b.disque.changements(), ElementsAre("écrit GLR3.DAT 8+5", "écrit GLR2.DAT 150+150"));
  EXPECT_EQ(Texte(Le("txtRecette")), "Bref.");
  EXPECT_EQ(onglet(), 1);
  EXPECT_TRUE(aLeFocus("ComboFamilles"));
}

TEST_F(Modifier, PasseUneRecetteDansUneAutreFamille) {
  b.AjouteFamille("Desserts");
  b.AjouteRecette(2, "Soupe");
  Ouvre();
  Choisit(familles(), Fr("Potages"));
  CliqueOnglet(*fenetre, 3);
  Choisit(Le<QComboBox>("ComboFamillesModifier"), Fr("Desserts"));
  Valide();
  EXPECT_EQ(Fiche(3).idFamille, 3);
  EXPECT_EQ(familles().currentText(), "Desserts");
  EXPECT_EQ(recettes().currentData().toInt(), 3);
}

TEST_F(Modifier, UnTitreVideEstRefuseEtRendu) {
  Ouvre(3);
  Remplace(Le("txtSaisieNomRecetteModifier"), " ");
  Valide();
  AttendMessage("Il faut donner un titre à la recette.");
  EXPECT_EQ(Texte(Le("txtSaisieNomRecetteModifier")), Fr("Velouté"));
  EXPECT_TRUE(aLeFocus("txtSaisieNomRecetteModifier"));
}

TEST_F(Modifier, LeTitreDUneAutreRecetteDeLaFamilleEstRefuse) {
  b.AjouteRecette(2, "Soupe");
  Ouvre(3);
  Remplace(Le("txtSaisieNomRecetteModifier"), Fr("VELOUTÉ"));
  Valide();
  AttendMessage("Cette recette existe déjà");
  EXPECT_EQ(Texte(Le("txtSaisieNomRecetteModifier")), Fr("VELOUTÉ"));
  EXPECT_TRUE(aLeFocus("txtSaisieNomRecetteModifier"));
  EXPECT_THAT(b.disque.changements(), IsEmpty());
}

TEST_F(Modifier, DeuxRecettesDuMemeTitreNeSeModifientPlusSansLeChanger) {
  b.AjouteRecette(2, "Soupe");
  b.AjouteRecette(2, "Soupe");
  Ouvre(3);
  Valide();
  AttendMessage("Cette recette existe déjà");
}

TEST_F(Modifier, UneDeDeuxRecettesDuMemeTitrePasseDansUneFamilleQuiNeLAPas) {
  b.AjouteFamille("Vide");
  b.AjouteRecette(2, "Soupe");
  b.AjouteRecette(2, "Soupe");
  Ouvre(3);
  Choisit(Le<QComboBox>("ComboFamillesModifier"), Fr("Vide"));
  Valide();
  EXPECT_THAT(b.messages.vus, IsEmpty());
  EXPECT_EQ(Fiche(3).idFamille, 3);
  EXPECT_EQ(Fiche(4).idFamille, 2);
  EXPECT_EQ(Textes(recettes()), QStringList{"Soupe"});
}

TEST_F(Modifier, LeTitreQuiNeChangeQueDeCasseSEcrit) {
  Ouvre(3);
  Remplace(Le("txtSaisieNomRecetteModifier"), Fr("VELOUTÉ"));
  Valide();
  EXPECT_EQ(Rogne(Fiche(2).nomRecette.brut()), "VELOUTÉ"_1252);
}

TEST_F(Modifier, LeTitreDejaDansLAutreFamilleEstRefuse) {
  const std::int32_t desserts = b.AjouteFamille("Desserts");
  b.AjouteRecette(desserts, "Soupe");
  b.AjouteRecette(2, "soupe");
  Ouvre();
  Choisit(familles(), Fr("Potages"));
  CliqueOnglet(*fenetre, 3);
  Choisit(Le<QComboBox>("ComboFamillesModifier"), Fr("Desserts"));
  Valide();
  AttendMessage("Cette recette existe déjà dans cette famille");
  EXPECT_TRUE(aLeFocus("ComboFamillesModifier"));
  EXPECT_THAT(b.disque.changements(), IsEmpty());
}

TEST_F(Modifier, UneRechercheDuTitreQuiEchoueFinitLeProgrammeSansRienEcrire) {
  b.AjouteFamille("Vide");
  Ouvre(3);
  Choisit(Le<QComboBox>("ComboFamillesModifier"), Fr("Vide"));
  b.disque.EchoueSur("lit GLR2.DAT", Panne::entreeSortie);
  Valide();
  AttendFinFatale();
  EXPECT_THAT(b.messages.vus, SizeIs(1));
  EXPECT_THAT(b.disque.changements(), IsEmpty());
}

TEST_F(Modifier, TitreTexteEtCheminSEcriventSansLeursBlancs) {
  const DossierEssai ailleurs;
  ailleurs.Ecrit("a.jpg", "x");
  const std::string chemin = (ailleurs.chemin() / "a.jpg").string();
  Ouvre(3);
  Remplace(Le("txtSaisieNomRecetteModifier"), "  Soupe ");
  Remplace(Le("txtSaisieRecetteModifier"), "  Bref. ");
  Remplace(Le("txtImageModifier"), "  " + VersQt(chemin) + " ");
  Valide();
  EXPECT_THAT(b.messages.vus, IsEmpty());
  EXPECT_EQ(Fiche(2).nomRecette.brut().substr(0, 6), "Soupe ");
  EXPECT_EQ(b.dossier.Lit("GLR3.DAT").substr(8, 5), "Bref.");
  EXPECT_EQ(Fiche(2).lgTexte, 5);
  EXPECT_EQ(b.dossier.Lit("GLR4.DAT"), "GLR4.DAT" + chemin);
  EXPECT_EQ(image(), VersQt(chemin));
}

TEST_F(Modifier, UnCheminTapeDuDossierDesImagesSEcritEnFormeCourte) {
  Ouvre(3);
  Tape(Le("txtImageModifier"), VersQt(PoseImage("a.jpg")));
  Valide();
  EXPECT_EQ(b.dossier.Lit("GLR4.DAT"), "GLR4.DAT/a.jpg");
  EXPECT_EQ(image(), VersQt(b.module->chemins.De("IMAGE/a.jpg")));
}

TEST_F(Modifier, UneImageQueLeVisualisateurNeMontrePasEstDitePuisEcrite) {
  Ouvre(3);
  Tape(Le("txtImageModifier"), VersQt(PoseImage("a.png")));
  Valide();
  AttendMessage(avis);
  EXPECT_EQ(b.messages.bips, 0);
  EXPECT_EQ(b.dossier.Lit("GLR4.DAT"), "GLR4.DAT/a.png");
  EXPECT_EQ(Fiche(2).lgImage, 6);
}

TEST_F(Modifier, UneImageAbsenteQueLeVisualisateurNeMontreraitPasEstDiteDeuxFois) {
  Ouvre(3);
  Tape(Le("txtImageModifier"), "/nulle/part.png");
  Valide();
  AttendMessages({avis, "Ce fichier n'existe pas."});
  EXPECT_EQ(b.messages.bips, 1);
  EXPECT_EQ(Texte(Le("txtImageModifier")), "");
  EXPECT_THAT(b.disque.changements(), IsEmpty());
}

TEST_F(Modifier, UneImageAbsenteRendCelleDeLaRecette) {
  OuvreSurUneImage();
  Remplace(Le("txtImageModifier"), "/nulle/part.jpg");
  Valide();
  AttendMessage("Ce fichier n'existe pas.");
  AttendLesValeurs();
}

TEST_F(Modifier, UneImageRefuseeEstRendue) {
  b.AjouteRecette(2, "Avec", {}, "/a.png");
  PoseImage("a.png");
  Ouvre(3);
  Remplace(Le("txtImageModifier"), "/tmp/a.exe");
  Valide();
  AttendMessage("Ce fichier n'est pas un fichier image.");
  EXPECT_EQ(b.messages.bips, 1);
  EXPECT_EQ(Texte(Le("txtImageModifier")), image());
  EXPECT_TRUE(aLeFocus("cmdImageModifier"));
}

TEST_F(Modifier, UneImageAbsenteEstRefuseeEtLeChampVide) {
  Ouvre(3);
  Tape(Le("txtImageModifier"), "/nulle/part.jpg");
  Valide();
  AttendMessage("Ce fichier n'existe pas.");
  EXPECT_EQ(b.messages.bips, 1);
  EXPECT_EQ(Texte(Le("txtImageModifier")), "");
  EXPECT_TRUE(aLeFocus("cmdImageModifier"));
}

TEST_F(Modifier, ValiderQuatreFoisAjouteQuatreFoisLeChemin) {
  PoseImage("a.jpg");
  b.AjouteRecette(2, "Avec", {}, "/a.jpg");
  Ouvre();
  for (int i = 0; i < 4; ++i) {
    CliqueOnglet(*fenetre, 3);
    Valide();
  }
  EXPECT_EQ(b.dossier.Lit("GLR4.DAT"), "GLR4.DAT/a.jpg/a.jpg/a.jpg/a.jpg/a.jpg");
  EXPECT_THAT(b.messages.vus, IsEmpty());
}

TEST_F(Modifier, ViderLeCheminOteLImage) {
  PoseImage("a.jpg");
  b.AjouteRecette(2, "Avec", {}, "/a.jpg");
  Ouvre(3);
  Remplace(Le("txtImageModifier"), "");
  Valide();
  EXPECT_EQ(Fiche(3).posImage, 0);
  EXPECT_EQ(image(), "");
}

TEST_F(Modifier, ReinitialiserRendLesValeursSansQuestion) {
  OuvreSurUneImage();
  ChangeTout();
  Clique(Le("cmdEffacerModifier"));
  AttendLesValeurs();
  EXPECT_THAT(b.messages.questions, IsEmpty());
  EXPECT_TRUE(aLeFocus("ComboFamillesModifier"));
  EXPECT_TRUE(Le("txtSaisieNomRecetteModifier").isEnabled());
}

TEST_F(Modifier, ReinitialiserRendLeNomDeLaFamilleEtLuiLaisseLeFocus) {
  OuvreSurUneImage();
  Clique(Le("Option2(0)"));
  Remplace(Le("txtSaisieFamilleModifier"), "Autre");
  Clique(Le("cmdEffacerModifier"));
  AttendLesValeurs();
  EXPECT_TRUE(aLeFocus("txtSaisieFamilleModifier"));
  EXPECT_TRUE(Le<QRadioButton>("Option2(0)").isChecked());
  EXPECT_FALSE(Le("txtSaisieNomRecetteModifier").isEnabled());
}

TEST_F(Modifier, LesLimitesDesBoitesSontCellesDesFiches) {
  Ouvre(3);
  EXPECT_EQ(Le<QLineEdit>("txtSaisieFamilleModifier").maxLength(), 128);
  EXPECT_EQ(Le<QLineEdit>("txtSaisieNomRecetteModifier").maxLength(), 128);
  EXPECT_EQ(Le("txtSaisieRecetteModifier").property("maxLength").toInt(), 30000);
  EXPECT_EQ(Le<QLineEdit>("txtImageModifier").maxLength(), 32767);
  EXPECT_FALSE(Le<QLineEdit>("txtImageModifier").isReadOnly());
}

TEST_F(Modifier, UneRecetteFinitLeProgrammeAChaqueEcritureQuiEchoue) {
  const DossierEssai ailleurs;
  ailleurs.Ecrit("a.jpg", "x");
  const std::string chemin = (ailleurs.chemin() / "a.jpg").string();
  FinitAChaqueEcriture(
      3, 3,
      [&](QWidget& uneFenetre) {
        Remplace(Trouve(uneFenetre, "txtSaisieRecetteModifier"), "Douze lettre");
        Tape(Trouve(uneFenetre, "txtImageModifier"), VersQt(chemin));
        Clique(Trouve(uneFenetre, "cmdValideModifier"));
      },
      [&](const Bibliotheque& autre, std::size_t n) {
        EXPECT_EQ(autre.dossier.Lit("GLR3.DAT"),
                  "GLR3.DAT" + std::string("Un velouté."_1252) + (n > 1 ? "Douze lettre" : ""));
        EXPECT_EQ(autre.dossier.Lit("GLR4.DAT"), "GLR4.DAT" + (n > 2 ? chemin : ""));
        const auto fiche = Enregistrement<RecRecette>(autre.dossier, "GLR2.DAT", 2);
        EXPECT_EQ(fiche.posTexte, 9);
        EXPECT_EQ(fiche.lgTexte, 11);
        EXPECT_EQ(fiche.posImage, 0);
      });
}

TEST_F(Modifier, UneFamilleFinitLeProgrammeQuandSonNomNeSEcritPas) {
  FinitAChaqueEcriture(
      1, 3,
      [](QWidget& uneFenetre) {
        Clique(Trouve(uneFenetre, "Option2(0)"));
        Remplace(Trouve(uneFenetre, "txtSaisieFamilleModifier"), "Soupes");
        Clique(Trouve(uneFenetre, "cmdValideModifier"));
      },
      [](const Bibliotheque& autre, std::size_t) {
        const auto famille = Enregistrement<RecFamille>(autre.dossier, "GLR1.DAT", 2);
        EXPECT_EQ(Rogne(famille.nomFamille.brut()), "Potages");
      });
}

}  // namespace
}  // namespace gastrelle::essai
