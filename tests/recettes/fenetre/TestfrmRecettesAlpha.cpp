// The tab "Alpha" of the recipes window: the classification, and the way from there to a recipe.

#include <ostream>

#include <QListView>
#include <QTest>

#include "recettes/fenetre/FenetreEssai.h"

namespace gastrelle::essai {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class Alpha : public FenetreRecettes {
 protected:
  void OuvreAlpha() {
    b.AjouteRecette(b.AjouteFamille("Desserts"), "Tarte", "Une tarte.");
    b.AjouteRecette(2, "Soupe", "Une soupe.");
    Ouvre(5);
  }
  QListView& liste() { return Le<QListView>("lstRecettesTri"); }
  void Selectionne(int rang) {
    QTest::mouseClick(liste().viewport(), Qt::LeftButton, {},
                      liste().visualRect(liste().model()->index(rang, 0)).center());
  }
};

TEST_F(Alpha, ListeToutesLesRecettesEtLesCompte) {
  OuvreAlpha();
  EXPECT_EQ(cadre->contextes.back(), 15);
  EXPECT_EQ(Textes(liste()), (QStringList{"Soupe", "Tarte", Fr("Velouté")}));
  EXPECT_EQ(Texte(Le("lblNbreRecette")), "Les 3 recettes");
  EXPECT_EQ(liste().currentIndex().row(), 0);
  EXPECT_TRUE(aLeFocus("lstRecettesTri"));
}

TEST_F(Alpha, CompteAuPlurielMemeUneSeule) {
  Ouvre(5);
  EXPECT_EQ(Texte(Le("lblNbreRecette")), "Les 1 recettes");
}

TEST_F(Alpha, RepareUnCompteTropHaut) {
  OuvreAlpha();
  CliqueOnglet(*fenetre, 1);
  b.module->bufRecette.nbActifs() = 9;
  CliqueOnglet(*fenetre, 5);
  EXPECT_EQ(Fiche(1).actif, 3);
}

TEST_F(Alpha, VaALaRecetteDUneAutreFamille) {
  OuvreAlpha();
  Selectionne(0);
  Clique(Le("cmdValideTri"));
  EXPECT_EQ(onglet(), 1);
  EXPECT_EQ(familles().currentText(), "Potages");
  EXPECT_EQ(recettes().currentText(), "Soupe");
  EXPECT_EQ(Texte(Le("txtRecette")), "Une soupe.");
  EXPECT_EQ(Rogne(b.module->bufRecette.courant().nomRecette.brut()), "Soupe");
}

TEST_F(Alpha, LeCheminVersUneRecetteChercheSesFichiersAvantDeLire) {
  OuvreAlpha();
  Selectionne(0);
  b.disque.OublieJournal();
  Clique(Le("cmdValideTri"));
  const std::vector<std::string>& journal = b.disque.journal();
  ASSERT_GE(journal.size(), 3U);
  EXPECT_THAT(std::vector(journal.begin(), journal.begin() + 3),
              ElementsAre("existe GLR2.DAT", "existe GLR3.DAT", "lit GLR2.DAT 450+150"));
}

TEST_F(Alpha, LaFicheDeTravailGardeLaFicheLueAvantQueLImageSePerde) {
  b.AjouteRecette(b.AjouteFamille("Desserts"), "Tarte");
  b.AjouteRecette(2, "Soupe", {}, "/partie.png");
  Ouvre(5);
  Selectionne(0);
  Clique(Le("cmdValideTri"));
  EXPECT_EQ(recettes().currentText(), "Soupe");
  EXPECT_EQ(Fiche(4).posImage, 0);
  EXPECT_EQ(Fiche(4).lgImage, 0);
  EXPECT_EQ(Rogne(b.module->bufRecette.courant().nomRecette.brut()), "Soupe");
  EXPECT_EQ(b.module->bufRecette.courant().posImage, 9);
  EXPECT_EQ(b.module->bufRecette.courant().lgImage, 11);
}

TEST_F(Alpha, UnDoubleClicFaitDeMeme) {
  OuvreAlpha();
  const QPoint ou = liste().visualRect(liste().model()->index(2, 0)).center();
  QTest::mouseClick(liste().viewport(), Qt::LeftButton, {}, ou);
  QTest::mouseDClick(liste().viewport(), Qt::LeftButton, {}, ou);
  EXPECT_EQ(onglet(), 1);
  EXPECT_EQ(recettes().currentText(), Fr("Velouté"));
}

TEST_F(Alpha, EntreeSurUneRecetteLAffiche) {
  OuvreAlpha();
  Selectionne(0);
  QTest::keyClick(&liste(), Qt::Key_Return);
  EXPECT_EQ(onglet(), 1);
  EXPECT_EQ(recettes().currentText(), "Soupe");
  EXPECT_TRUE(aLeFocus("txtRecette"));
}

TEST_F(Alpha, LaRecetteDejaAfficheeNeReliRien) {
  OuvreAlpha();
  Selectionne(1);
  b.disque.OublieJournal();
  Clique(Le("cmdValideTri"));
  EXPECT_EQ(onglet(), 1);
  EXPECT_THAT(b.disque.journal(), IsEmpty());
  EXPECT_EQ(Rogne(b.module->bufRecette.courant().nomRecette.brut()), "Soupe");
}

TEST_F(Alpha, LOngletDejaChoisiNeFaitRien) {
  OuvreAlpha();
  b.disque.OublieJournal();
  CliqueOnglet(*fenetre, 5);
  EXPECT_THAT(b.disque.journal(), IsEmpty());
}

TEST_F(Alpha, UneFamilleIntrouvableFinitLeProgramme) {
  OuvreAlpha();
  Deplace(4, 99);
  Selectionne(0);
  Clique(Le("cmdValideTri"));
  AttendFinFatale();
}

TEST_F(Alpha, UnFichierDisparuFinitLeProgramme) {
  OuvreAlpha();
  CliqueOnglet(*fenetre, 1);
  b.dossier.Supprime("GLR2.DAT");
  CliqueOnglet(*fenetre, 5);
  AttendFinFatale();
}

struct Mot {
  const char* tape;
  const char* trouve;
};

void PrintTo(const Mot& mot, std::ostream* sortie) {
  *sortie << mot.tape;
}

class AlphaDeFabrique : public Alpha, public testing::WithParamInterface<Mot> {};

INSTANTIATE_TEST_SUITE_P(Mots, AlphaDeFabrique,
                         testing::Values(Mot{"boeuf", "Bœuf aux carottes"},
                                         Mot{"gateau", "Gâteau au yaourt"},
                                         Mot{"crepes", "Crêpes de froment"},
                                         Mot{"ile", "Îles flottantes"},
                                         Mot{"huile", "Pompe à l'huile d'olive"}),
                         testing::PrintToStringParamName());

TEST_P(AlphaDeFabrique, UneRecetteSeTrouveSansAccentNiLigature) {
  b.GarnitDeFabrique(DOSSIER_PROGRAMME);
  Ouvre(5);
  Tape(liste(), GetParam().tape);
  EXPECT_EQ(liste().currentIndex().data().toString(), Fr(GetParam().trouve));
}

}  // namespace
}  // namespace gastrelle::essai
