// The tab "Modifier" of the recipes window, through its controls.

#include "recettes/fenetre/FenetreEssai.h"

namespace gastrelle::essai {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

class Modifier : public FenetreRecettes {
 protected:
  void Valide() { Clique(Le("cmdValideModifier")); }
};

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
  for (const char* nom : {"ComboFamillesModifier", "txtSaisieNomRecetteModifier",
                          "txtSaisieRecetteModifier", "txtImageModifier", "cmdImageModifier"}) {
    EXPECT_FALSE(Le(nom).isEnabled()) << nom;
  }
  EXPECT_EQ(Texte(Le("txtSaisieNomRecetteModifier")), "");
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

TEST_F(Modifier, LOptionFamilleRendLesValeursEtDesactiveLaRecette) {
  Ouvre(3);
  Remplace(Le("txtSaisieNomRecetteModifier"), "Autre");
  Clique(Le("Option2(0)"));
  EXPECT_EQ(Texte(Le("txtSaisieNomRecetteModifier")), Fr("Velouté"));
  EXPECT_FALSE(Le("txtSaisieNomRecetteModifier").isEnabled());
  EXPECT_TRUE(aLeFocus("txtSaisieFamilleModifier"));
}

TEST_F(Modifier, LOptionRecetteRendLeNomDeLaFamille) {
  Ouvre(3);
  Clique(Le("Option2(0)"));
  Remplace(Le("txtSaisieFamilleModifier"), "Autre");
  Clique(Le("Option2(1)"));
  EXPECT_EQ(Texte(Le("txtSaisieFamilleModifier")), "Potages");
  EXPECT_FALSE(Le("txtSaisieFamilleModifier").isEnabled());
  EXPECT_TRUE(aLeFocus("ComboFamillesModifier"));
}

TEST_F(Modifier, RenommeLaFamilleEtGardeLaRecette) {
  Ouvre(3);
  Clique(Le("Option2(0)"));
  Remplace(Le("txtSaisieFamilleModifier"), "Soupes");
  b.disque.OublieJournal();
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
  b.disque.OublieJournal();
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
  b.disque.OublieJournal();
  Valide();
  AttendFinFatale();
  EXPECT_THAT(b.disque.changements(), IsEmpty());
  EXPECT_EQ(NomFamille(3), "Vide");
}

TEST_F(Modifier, ChangeLeTexteEnPlaceQuandIlNEstPasPlusLong) {
  Ouvre(3);
  Remplace(Le("txtSaisieRecetteModifier"), "Bref.");
  b.disque.OublieJournal();
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
  b.disque.OublieJournal();
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
  b.disque.OublieJournal();
  Valide();
  AttendMessage("Cette recette existe déjà dans cette famille");
  EXPECT_TRUE(aLeFocus("ComboFamillesModifier"));
  EXPECT_THAT(b.disque.changements(), IsEmpty());
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
  Ouvre(3);
  Remplace(Le("txtSaisieNomRecetteModifier"), "Autre");
  Remplace(Le("txtSaisieRecetteModifier"), "Autre");
  Clique(Le("cmdEffacerModifier"));
  EXPECT_EQ(Texte(Le("txtSaisieNomRecetteModifier")), Fr("Velouté"));
  EXPECT_EQ(Texte(Le("txtSaisieRecetteModifier")), Fr("Un velouté."));
  EXPECT_THAT(b.messages.questions, IsEmpty());
  EXPECT_TRUE(aLeFocus("ComboFamillesModifier"));
}

TEST_F(Modifier, UneRecetteFinitLeProgrammeAChaqueEcritureQuiEchoue) {
  FinitAChaqueEcriture(
      2, 3, [](QWidget& uneFenetre) { Clique(Trouve(uneFenetre, "cmdValideModifier")); },
      [](const Bibliotheque& autre, std::size_t) {
        EXPECT_EQ(Enregistrement<RecRecette>(autre.dossier, "GLR2.DAT", 2).posTexte, 9);
        EXPECT_EQ(autre.dossier.Lit("GLR3.DAT"), "GLR3.DAT" + std::string("Un velouté."_1252));
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
