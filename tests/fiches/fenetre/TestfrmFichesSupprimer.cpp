// The tab "Supprimer" of the windows of menus and tips, through its controls.

#include "fiches/fenetre/FenetreFiches.h"

namespace gastrelle::essai {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class FichesSupprimer : public FenetreFiches {
 protected:
  QString BulleTitre() { return Le("txtSaisieNomSupprimer").toolTip(); }
  QString BulleTexte() { return Le(cas.texteSupprimer).toolTip(); }
  void Supprime(Reponse reponse = Reponse::oui) {
    b.messages.reponses = {reponse};
    Clique(Le("cmdSupprimer"));
  }
};
SUR_LES_DEUX_FENETRES(FichesSupprimer);

TEST_P(FichesSupprimer, MontreLaFicheEtDonneLeFocusAuBouton) {
  Ajoute("Agape", "Du vin.");
  Ouvre(4);
  EXPECT_EQ(Texte(Le("txtSaisieNomSupprimer")), "Agape");
  EXPECT_EQ(Texte(Le(cas.texteSupprimer)), "Du vin.");
  EXPECT_EQ(BulleTitre(), "");
  EXPECT_EQ(BulleTexte(), "");
  EXPECT_TRUE(Le("cmdSupprimer").isEnabled());
  EXPECT_TRUE(aLeFocus("cmdSupprimer"));
  EXPECT_EQ(cadre->contextes.back(), cas.contexteBase + 4);
}

TEST_P(FichesSupprimer, LaDerniereFicheDeLaFabriqueEstProtegee) {
  Ouvre();
  Choisit(combo(), combo().count() - 1);
  ASSERT_EQ(combo().currentData().toInt(), c.dernierProtege);
  CliqueOnglet(*fenetre, 4);
  EXPECT_EQ(BulleTitre(), Fr(cas.protegee));
  EXPECT_EQ(BulleTexte(), Fr(cas.protegee));
  EXPECT_TRUE(aLeFocus("cmdAideSupprimer"));
}

TEST_P(FichesSupprimer, LeBoutonDUneFicheProtegeeEstGriseChezLesMenusEtCacheChezLesTrucs) {
  Ouvre(4);
  const bool menus = cas.vue == EntreeVue::menus;
  EXPECT_EQ(Le("cmdSupprimer").isVisible(), menus);
  EXPECT_EQ(Le("cmdSupprimer").isEnabled(), !menus);
}

TEST_P(FichesSupprimer, LeBoutonRevientPourUneFicheLibre) {
  Ajoute("Agape");
  Ouvre();
  Choisit(combo(), "Fiche 002");
  CliqueOnglet(*fenetre, 4);
  CliqueOnglet(*fenetre, 1);
  Choisit(combo(), "Agape");
  CliqueOnglet(*fenetre, 4);
  EXPECT_TRUE(Le("cmdSupprimer").isVisible());
  EXPECT_TRUE(Le("cmdSupprimer").isEnabled());
  EXPECT_EQ(BulleTitre() + BulleTexte(), "");
  EXPECT_TRUE(aLeFocus("cmdSupprimer"));
}

TEST_P(FichesSupprimer, LesBoitesNeSeTapentPas) {
  Ajoute("Agape", "Du vin.");
  Ouvre(4);
  Tape(Le("txtSaisieNomSupprimer"), "x");
  Tape(Le(cas.texteSupprimer), "x");
  EXPECT_EQ(Texte(Le("txtSaisieNomSupprimer")), "Agape");
  EXPECT_EQ(Texte(Le(cas.texteSupprimer)), "Du vin.");
  EXPECT_EQ(Le<QLineEdit>("txtSaisieNomSupprimer").maxLength(), 128);
  EXPECT_EQ(Le(cas.texteSupprimer).property("maxLength").toInt(), 30000);
}

TEST_P(FichesSupprimer, EteintLaFicheDecompteEtMontreLaPremiere) {
  Ajoute("Agape", "Du vin.");
  Ajoute("Bal");
  Ouvre();
  Choisit(combo(), "Bal");
  CliqueOnglet(*fenetre, 4);
  b.disque.OublieJournal();
  Supprime();
  EXPECT_THAT(b.messages.questions, ElementsAre(DepuisUtf8(cas.question)));
  EXPECT_THAT(Changements(), ElementsAre(EcritFiche(c, premiere + 1), EcritFiche(c, 1)));
  EXPECT_EQ(Lue(premiere + 1).actif, 0);
  EXPECT_EQ(Titre(premiere + 1), "Bal");
  EXPECT_EQ(onglet(), 1);
  EXPECT_EQ(combo().currentIndex(), 0);
  EXPECT_EQ(Texte(texte()), "Du vin.");
  EXPECT_EQ(Texte(Le("txtAnnonce(0)")), QString::number(c.dernierProtege) + cas.annonce);
}

TEST_P(FichesSupprimer, UnNonNeToucheARien) {
  Ajoute("Agape");
  Ouvre(4);
  b.disque.OublieJournal();
  Supprime(Reponse::non);
  EXPECT_THAT(b.disque.journal(), IsEmpty());
  EXPECT_EQ(onglet(), 4);
  EXPECT_EQ(combo().currentText(), "Agape");
}

TEST_P(FichesSupprimer, SansLesAutresLEnteteCompteCellesDeLaFabrique) {
  Ajoute("Agape");
  Ouvre(4);
  Supprime();
  EXPECT_EQ(Compte(b, c), c.dernierProtege - 1);
  EXPECT_EQ(combo().count(), c.dernierProtege - 1);
  EXPECT_EQ(combo().currentText(), "Fiche 002");
  EXPECT_EQ(b.dossier.Lit(Nom(c.fiches)).size(), static_cast<std::size_t>(premiere) * 138U);
}

TEST_P(FichesSupprimer, UnFichierDisparuFinitLeProgrammeSansRienEcrire) {
  Ajoute("Agape");
  Ouvre(4);
  b.dossier.Supprime(Nom(c.fiches));
  Supprime();
  AttendFinFatale(c.fiches);
  EXPECT_THAT(Changements(), IsEmpty());
}

TEST_P(FichesSupprimer, UnEnteteQuiNeSEcritPasLaisseLaFicheEteinte) {
  Ajoute("Agape");
  Ouvre(4);
  b.disque.EchoueSur(EcritFiche(c, 1), Panne::disquePlein);
  Supprime();
  AttendFinFatale();
  EXPECT_EQ(Lue(premiere).actif, 0);
  EXPECT_EQ(Compte(b, c), c.dernierProtege);
}

TEST_P(FichesSupprimer, LeSablierEstLaDesLePremierAppelDuDisque) {
  Ajoute("Agape");
  Ouvre(4);
  AttendSablier([&] { Supprime(); });
}

TEST_P(FichesSupprimer, UneFoisLaFicheSupprimeeLeTexteDeLaPremiereALeFocus) {
  Ajoute("Agape");
  Ouvre(4);
  Supprime();
  EXPECT_TRUE(aLeFocus(cas.texte));
  EXPECT_FALSE(b.pointeur.sablier);
}

}  // namespace
}  // namespace gastrelle::essai
