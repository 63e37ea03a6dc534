// The tab "Supprimer" of the recipes window, through its controls.

#include "recettes/fenetre/FenetreEssai.h"

namespace gastrelle::essai {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class Supprimer : public FenetreRecettes {
 protected:
  /// The family "Desserts" (3) with its recipes "Crème" (4) and "Tarte" (5).
  static void PrepareDesserts(Bibliotheque& autre) {
    const std::int32_t famille = autre.AjouteFamille("Desserts");
    autre.AjouteRecette(2, "Soupe");
    autre.AjouteRecette(famille, "Crème"_1252, "Une crème."_1252);
    autre.AjouteRecette(famille, "Tarte", "Une tarte.");
  }
  /// The same, and the answer of who deletes.
  static void PrepareDessertsEtOui(Bibliotheque& autre) {
    PrepareDesserts(autre);
    autre.messages.reponses = {Reponse::oui};
  }
  void OuvreDesserts() {
    PrepareDesserts(b);
    Ouvre(4);
  }
  /// Chooses a family and goes to the tab.
  void Montre(const QString& famille) {
    Choisit(familles(), famille);
    CliqueOnglet(*fenetre, 4);
    b.disque.OublieJournal();
  }
  void SupprimeLaFamille() {
    Clique(Le("Option3(0)"));
    Supprime();
  }
  void Supprime() {
    b.messages.reponses = {Reponse::oui};
    Clique(Le("cmdSupprimer"));
  }
};

TEST_F(Supprimer, MontreCeQuiSeraitSupprimeEtChoisitLaRecette) {
  OuvreDesserts();
  EXPECT_EQ(cadre->contextes.back(), 14);
  EXPECT_EQ(Texte(Le("lblFamilleSupprimer")), "Desserts");
  EXPECT_EQ(Texte(Le("lblFamilleRecetteSupprimer")), "Desserts");
  EXPECT_EQ(Texte(Le("lblTitreRecetteSupprimer")), Fr("Crème"));
  EXPECT_EQ(Texte(Le("txtTexteRecetteSupprimer")), Fr("Une crème."));
  EXPECT_TRUE(Le<QRadioButton>("Option3(1)").isChecked());
  EXPECT_TRUE(aLeFocus("Option3(1)"));
}

TEST_F(Supprimer, LesValeursOntLaHauteurEtLeFondDesBoites) {
  OuvreDesserts();
  CliqueOnglet(*fenetre, 2);
  const int boite = Le("txtSaisieNomRecette").height();
  CliqueOnglet(*fenetre, 4);
  for (const char* nom :
       {"lblFamilleSupprimer", "lblFamilleRecetteSupprimer", "lblTitreRecetteSupprimer"}) {
    EXPECT_EQ(Le(nom).height(), boite) << nom;
    EXPECT_EQ(Le(nom).backgroundRole(), QPalette::Base) << nom;
    EXPECT_EQ(Le(nom).foregroundRole(), QPalette::Text) << nom;
  }
}

TEST_F(Supprimer, LaPremiereFamilleEtLaPremiereRecetteSontProtegees) {
  Ouvre(4);
  EXPECT_FALSE(Le("Option3(0)").isEnabled());
  EXPECT_FALSE(Le("Option3(1)").isEnabled());
  EXPECT_FALSE(Le("cmdSupprimer").isEnabled());
  EXPECT_EQ(Le("lblFamilleSupprimer").toolTip(),
            Fr("Cette famille de recettes ne peut être supprimée"));
  for (const char* nom :
       {"lblFamilleRecetteSupprimer", "lblTitreRecetteSupprimer", "txtTexteRecetteSupprimer"}) {
    EXPECT_EQ(Le(nom).toolTip(), Fr("Cette recette ne peut être supprimée")) << nom;
  }
}

TEST_F(Supprimer, LaPremiereFamilleVideeDeSesRecettesNePermetRien) {
  b.AjouteRecette(b.AjouteFamille("Desserts"), "Tarte");
  Ouvre();
  Deplace(2, 3);
  Choisit(familles(), Fr("Potages"));
  CliqueOnglet(*fenetre, 4);
  EXPECT_FALSE(Le("Option3(0)").isEnabled());
  EXPECT_FALSE(Le("Option3(1)").isEnabled());
  EXPECT_FALSE(Le("cmdSupprimer").isEnabled());
  EXPECT_EQ(Texte(Le("lblTitreRecetteSupprimer")), "");
}

TEST_F(Supprimer, LInfobulleDisparaitPourUneFicheLibre) {
  b.AjouteRecette(2, "Soupe");
  Ouvre();
  Choisit(recettes(), Fr("Velouté"));
  CliqueOnglet(*fenetre, 4);
  CliqueOnglet(*fenetre, 1);
  Choisit(recettes(), Fr("Soupe"));
  CliqueOnglet(*fenetre, 4);
  EXPECT_EQ(Le("lblTitreRecetteSupprimer").toolTip(), "");
  EXPECT_TRUE(Le("Option3(1)").isEnabled());
  EXPECT_TRUE(Le("cmdSupprimer").isEnabled());
}

TEST_F(Supprimer, SupprimeLaRecetteEtMontreLaPremiereDeLaFamille) {
  OuvreDesserts();
  Supprime();
  EXPECT_THAT(b.messages.questions,
              ElementsAre(DepuisUtf8("Etes-vous sûr de vouloir supprimer cette 'Recette' ?")));
  EXPECT_THAT(b.disque.changements(),
              ElementsAre("écrit GLR2.DAT 450+150", "écrit GLR2.DAT 0+150"));
  EXPECT_EQ(Fiche(4).actif, 0);
  EXPECT_EQ(onglet(), 1);
  EXPECT_EQ(Textes(recettes()), QStringList{"Tarte"});
  EXPECT_EQ(recettes().currentIndex(), 0);
}

TEST_F(Supprimer, UnNonNeToucheARien) {
  OuvreDesserts();
  b.messages.reponses = {Reponse::non};
  Clique(Le("cmdSupprimer"));
  EXPECT_THAT(b.disque.changements(), IsEmpty());
  EXPECT_EQ(onglet(), 4);
}

TEST_F(Supprimer, SupprimeLaFamilleAvecSesRecettesEtMontreLaPremiere) {
  OuvreDesserts();
  CliqueOnglet(*fenetre, 3);
  CliqueOnglet(*fenetre, 4);
  b.disque.OublieJournal();
  SupprimeLaFamille();
  EXPECT_THAT(
      b.messages.questions,
      ElementsAre(DepuisUtf8(
          "Etes-vous sûr de vouloir supprimer cette 'Famille de recettes' ?\r\n\r\n"
          "(Attention : toutes les recettes de cette famille seront également\r\nsupprimées.)")));
  EXPECT_THAT(
      b.disque.changements(),
      ElementsAre("écrit GLR2.DAT 450+150", "écrit GLR2.DAT 600+150", "écrit GLR2.DAT 0+150",
                  "écrit GLR1.DAT 260+130", "écrit GLR1.DAT 0+130"));
  EXPECT_EQ(Fiche(4).actif, 0);
  EXPECT_EQ(Fiche(5).actif, 0);
  EXPECT_EQ(Fiche(1).actif, 2);
  EXPECT_EQ(onglet(), 1);
  EXPECT_EQ(Textes(familles()), QStringList{"Potages"});
  EXPECT_EQ(Textes(Le<QComboBox>("ComboFamillesModifier")), QStringList{"Potages"});
}

TEST_F(Supprimer, LaRecetteProtegeePasseeAilleursPartAvecSaFamille) {
  const std::int32_t famille = b.AjouteFamille("Desserts");
  Ouvre();
  Deplace(2, famille);
  Choisit(familles(), Fr("Desserts"));
  CliqueOnglet(*fenetre, 4);
  EXPECT_FALSE(Le("Option3(1)").isEnabled());
  Supprime();
  EXPECT_EQ(Fiche(2).actif, 0);
}

TEST_F(Supprimer, UneFamilleSupprimeeParmiTroisMontreLaPremiereDeLaListe) {
  PrepareDesserts(b);
  b.AjouteFamille("Viandes");
  Ouvre();
  Montre(Fr("Viandes"));
  SupprimeLaFamille();
  EXPECT_EQ(Textes(familles()), (QStringList{"Desserts", "Potages"}));
  EXPECT_EQ(familles().currentIndex(), 0);
  EXPECT_EQ(Textes(recettes()), (QStringList{Fr("Crème"), "Tarte"}));
  EXPECT_EQ(recettes().currentIndex(), 0);
  EXPECT_EQ(Texte(Le("txtRecette")), Fr("Une crème."));
}

TEST_F(Supprimer, LaDerniereRecetteSupprimeeMontreLaPremiere) {
  PrepareDesserts(b);
  b.AjouteRecette(3, "Vacherin");
  Ouvre();
  Choisit(recettes(), Fr("Vacherin"));
  CliqueOnglet(*fenetre, 4);
  Supprime();
  EXPECT_EQ(Textes(recettes()), (QStringList{Fr("Crème"), "Tarte"}));
  EXPECT_EQ(recettes().currentIndex(), 0);
  EXPECT_EQ(Texte(Le("txtRecette")), Fr("Une crème."));
}

TEST_F(Supprimer, LaRecetteProtegeeDUneFamilleLibreLaisseChoisirLaFamille) {
  b.AjouteFamille("Desserts");
  Ouvre();
  Deplace(2, 3);
  Montre(Fr("Desserts"));
  EXPECT_FALSE(Le("Option3(1)").isEnabled());
  EXPECT_TRUE(Le<QRadioButton>("Option3(0)").isChecked());
  EXPECT_TRUE(aLeFocus("Option3(0)"));
  EXPECT_TRUE(Le("cmdSupprimer").isEnabled());
}

TEST_F(Supprimer, UneFamilleVideNEcritQueDansLesFamilles) {
  b.AjouteFamille("Vide");
  Ouvre();
  Montre(Fr("Vide"));
  for (const char* nom :
       {"lblFamilleRecetteSupprimer", "lblTitreRecetteSupprimer", "txtTexteRecetteSupprimer"}) {
    EXPECT_EQ(Texte(Le(nom)), "") << nom;
  }
  EXPECT_FALSE(Le("Option3(1)").isEnabled());
  EXPECT_TRUE(Le<QRadioButton>("Option3(0)").isChecked());
  Supprime();
  EXPECT_THAT(b.disque.changements(),
              ElementsAre("écrit GLR1.DAT 260+130", "écrit GLR1.DAT 0+130"));
  EXPECT_EQ(Textes(familles()), QStringList{"Potages"});
}

TEST_F(Supprimer, ApresUneRecetteLesBoitesDUneFamilleVideSeVident) {
  PrepareDesserts(b);
  b.AjouteFamille("Vide");
  Ouvre(4);
  ASSERT_NE(Texte(Le("lblTitreRecetteSupprimer")), "");
  CliqueOnglet(*fenetre, 1);
  Montre(Fr("Vide"));
  for (const char* nom :
       {"lblFamilleRecetteSupprimer", "lblTitreRecetteSupprimer", "txtTexteRecetteSupprimer"}) {
    EXPECT_EQ(Texte(Le(nom)), "") << nom;
  }
}

TEST_F(Supprimer, LaSeuleRecetteSupprimeeDesactiveListeEtTexte) {
  b.AjouteRecette(b.AjouteFamille("Desserts"), "Tarte", "Une tarte.");
  Ouvre(4);
  Supprime();
  EXPECT_EQ(onglet(), 1);
  EXPECT_EQ(familles().currentText(), "Desserts");
  EXPECT_EQ(recettes().count(), 0);
  EXPECT_FALSE(recettes().isEnabled());
  EXPECT_EQ(Texte(Le("txtRecette")), "");
  EXPECT_FALSE(Le("txtRecette").isEnabled());
}

TEST_F(Supprimer, UneRecetteDontLeFichierDisparaitNeSeSupprimePas) {
  OuvreDesserts();
  b.dossier.Supprime("GLR2.DAT");
  Supprime();
  AttendFinFatale(Donnees::GLR2);
}

TEST_F(Supprimer, UneFamilleDontUnFichierDisparaitNeSeSupprimePas) {
  OuvreDesserts();
  b.dossier.Supprime("GLR2.DAT");
  SupprimeLaFamille();
  AttendFinFatale(Donnees::GLR2);
}

TEST_F(Supprimer, LeFichierDesFamillesEstChercheAvantCeluiDesRecettes) {
  OuvreDesserts();
  b.dossier.Supprime("GLR1.DAT");
  b.dossier.Supprime("GLR2.DAT");
  SupprimeLaFamille();
  AttendFinFatale(Donnees::GLR1);
}

TEST_F(Supprimer, UneRecetteFinitLeProgrammeAChaqueEcritureQuiEchoue) {
  FinitAChaqueEcriture(
      2, 4, PrepareDessertsEtOui,
      [](QWidget& uneFenetre) { Clique(Trouve(uneFenetre, "cmdSupprimer")); },
      [](const Bibliotheque& autre, std::size_t n) {
        EXPECT_EQ(Enregistrement<RecRecette>(autre.dossier, "GLR2.DAT", 4).actif, n > 1 ? 0 : -1);
        EXPECT_EQ(Enregistrement<RecRecette>(autre.dossier, "GLR2.DAT", 1).actif, 4);
      });
}

TEST_F(Supprimer, UneFamilleFinitLeProgrammeAChaqueEcritureQuiEchoue) {
  FinitAChaqueEcriture(
      5, 4, PrepareDessertsEtOui,
      [](QWidget& uneFenetre) {
        Clique(Trouve(uneFenetre, "Option3(0)"));
        Clique(Trouve(uneFenetre, "cmdSupprimer"));
      },
      [](const Bibliotheque& autre, std::size_t n) {
        EXPECT_EQ(Enregistrement<RecRecette>(autre.dossier, "GLR2.DAT", 4).actif, n > 1 ? 0 : -1);
        EXPECT_EQ(Enregistrement<RecRecette>(autre.dossier, "GLR2.DAT", 5).actif, n > 2 ? 0 : -1);
        EXPECT_EQ(Enregistrement<RecRecette>(autre.dossier, "GLR2.DAT", 1).actif, n > 3 ? 2 : 4);
        EXPECT_EQ(Enregistrement<RecFamille>(autre.dossier, "GLR1.DAT", 3).actif, n > 4 ? 0 : -1);
        EXPECT_EQ(Enregistrement<RecFamille>(autre.dossier, "GLR1.DAT", 1).actif, 2);
      });
}

}  // namespace
}  // namespace gastrelle::essai
