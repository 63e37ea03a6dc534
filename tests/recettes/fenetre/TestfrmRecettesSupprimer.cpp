// The tab "Supprimer" of the recipes window, through its controls.

#include "recettes/fenetre/FenetreEssai.h"

namespace gastrelle::essai {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class Supprimer : public FenetreRecettes {
 protected:
  /// Opens on the family "Desserts" with its recipes "Crème" (4) and "Tarte" (5).
  void OuvreDesserts() {
    const std::int32_t famille = b.AjouteFamille("Desserts");
    b.AjouteRecette(2, "Soupe");
    b.AjouteRecette(famille, "Crème"_1252, "Une crème."_1252);
    b.AjouteRecette(famille, "Tarte");
    Ouvre(4);
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
  RecRecette deplacee = Fiche(2);
  deplacee.idFamille = 3;
  b.module->bufRecette.Ecrire(2, deplacee);
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
  b.messages.reponses = {Reponse::oui};
  Clique(Le("cmdSupprimer"));
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
  Clique(Le("Option3(0)"));
  b.messages.reponses = {Reponse::oui};
  Clique(Le("cmdSupprimer"));
  EXPECT_THAT(
      b.messages.questions,
      ElementsAre(DepuisUtf8(
          "Etes-vous sûr de vouloir supprimer cette 'Famille de recettes' ?\r\n\r\n"
          "(Attention : toutes les recettes de cette famille seront également\r\nsupprimées.)")));
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
  RecRecette deplacee = Fiche(2);
  deplacee.idFamille = famille;
  b.module->bufRecette.Ecrire(2, deplacee);
  Choisit(familles(), Fr("Desserts"));
  CliqueOnglet(*fenetre, 4);
  EXPECT_FALSE(Le("Option3(1)").isEnabled());
  b.messages.reponses = {Reponse::oui};
  Clique(Le("cmdSupprimer"));
  EXPECT_EQ(Fiche(2).actif, 0);
}

TEST_F(Supprimer, UnFichierDisparuFinitLeProgramme) {
  OuvreDesserts();
  b.dossier.Supprime("GLR2.DAT");
  b.messages.reponses = {Reponse::oui};
  Clique(Le("cmdSupprimer"));
  AttendFinFatale();
  EXPECT_THAT(b.disque.changements(), IsEmpty());
}

TEST_F(Supprimer, UneEcritureQuiEchoueFinitLeProgramme) {
  OuvreDesserts();
  b.messages.reponses = {Reponse::oui};
  b.disque.EchoueALaNiemeEcriture(2, Panne::disquePlein);
  Clique(Le("cmdSupprimer"));
  AttendFinFatale();
  EXPECT_EQ(Fiche(4).actif, 0);
  EXPECT_EQ(Fiche(1).actif, 4);
}

}  // namespace
}  // namespace gastrelle::essai
