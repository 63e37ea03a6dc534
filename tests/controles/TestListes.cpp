// The lists: their order, their item data, the event that a choice fires.

#include <QAbstractItemModelTester>
#include <QTest>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "controles/ComboListe.h"
#include "controles/ListeChoix.h"
#include "controles/ListePartagee.h"
#include "data/Texte1252.h"
#include "doublures/Ecran.h"
#include "plateforme/ErreurExecution.h"

namespace gastrelle::essai {
namespace {

using testing::ElementsAre;

std::vector<std::int32_t> Numeros(const Liste& entrees) {
  std::vector<std::int32_t> numeros;
  for (const EntreeListe& entree : entrees) {
    numeros.push_back(entree.numero);
  }
  return numeros;
}

class Modele : public testing::Test {
 protected:
  ModeleListe modele{Ordre::alphabetique};
  QAbstractItemModelTester verifie{&modele, QAbstractItemModelTester::FailureReportingMode::Fatal};
};

TEST_F(Modele, TrieSansCasseNiAccent) {
  modele.Ajoute({{std::string("côté"_1252), 1},
                 {"COTE", 2},
                 {std::string("côte"_1252), 3},
                 {std::string("coté"_1252), 4},
                 {"cotes", 5},
                 {std::string("cœur"_1252), 6},
                 {"cobalt", 7}});
  EXPECT_THAT(Numeros(modele.entrees()), ElementsAre(7, 6, 2, 4, 3, 1, 5));
}

TEST_F(Modele, UneEntreeSeuleSePlaceApresSesEgales) {
  modele.Ajoute({{"a", 1}, {"b", 2}, {"b", 3}, {"c", 4}});
  EXPECT_EQ(modele.Ajoute(EntreeListe{"B", 9}), 3);
  EXPECT_THAT(Numeros(modele.entrees()), ElementsAre(1, 2, 3, 9, 4));
}

TEST_F(Modele, UneSecondeCopieSeRangeApresLaPremiere) {
  modele.Ajoute({{"a", 1}, {"b", 2}});
  modele.Ajoute({{"a", 1}, {"b", 2}});
  EXPECT_THAT(Numeros(modele.entrees()), ElementsAre(1, 1, 2, 2));
  EXPECT_EQ(modele.IndiceDe(2), 2);
}

TEST_F(Modele, LEpingleeResteEnTete) {
  modele.Epingle("?");
  modele.Ajoute({{"!", 2}, {"a", 3}});
  modele.Ajoute(EntreeListe{"  ", 4});
  EXPECT_EQ(modele.entrees().front().texte, "?");
  EXPECT_EQ(modele.IndiceDe(0), std::nullopt);
  modele.Vide();
  EXPECT_EQ(modele.rowCount(), 0);
}

TEST_F(Modele, SansTriGardeLOrdreDInsertion) {
  ModeleListe enOrdre(Ordre::insertion);
  enOrdre.Ajoute({{"z", 1}, {"a", 2}});
  enOrdre.Ajoute(EntreeListe{"m", 3});
  EXPECT_THAT(Numeros(enOrdre.entrees()), ElementsAre(1, 2, 3));
}

TEST_F(Modele, DitTexteEtDonnee) {
  modele.Ajoute(Liste{{std::string("Épices"_1252), 7}});
  EXPECT_EQ(modele.index(0).data(), Fr("Épices"));
  EXPECT_EQ(modele.index(0).data(Qt::UserRole), 7);
}

class Combo : public testing::Test {
 protected:
  Combo() {
    combo.surChoix = [this] { choix.push_back(combo.currentIndex()); };
    combo.show();
  }

  ComboListe combo{"ComboEssai", Ordre::alphabetique};
  std::vector<int> choix;
};

TEST_F(Combo, RemplirNeChoisitRien) {
  combo.Ajoute({{"a", 1}, {"b", 2}});
  EXPECT_EQ(combo.currentIndex(), -1);
  EXPECT_TRUE(choix.empty());
}

TEST_F(Combo, UneEntreeSeuleDansUneListeVideNEstPasChoisie) {
  combo.Ajoute(EntreeListe{"a", 1});
  EXPECT_EQ(combo.currentIndex(), -1);
}

TEST_F(Combo, LeChoixDuProgrammeDeclencheLEvenementMemeLeMeme) {
  combo.Ajoute({{"a", 1}, {"b", 2}});
  combo.Choisit(1);
  combo.Choisit(1);
  EXPECT_THAT(choix, ElementsAre(1, 1));
}

TEST_F(Combo, LeChoixDeLUtilisateurDeclencheLEvenementMemeLeMeme) {
  combo.Ajoute({{"a", 1}, {"b", 2}});
  essai::Choisit(combo, 1);
  essai::Choisit(combo, 1);
  EXPECT_THAT(choix, ElementsAre(1, 1));
}

TEST_F(Combo, MontrerNeDeclencheRien) {
  combo.Ajoute({{"a", 1}, {"b", 2}});
  combo.Montre(0);
  EXPECT_TRUE(choix.empty());
  EXPECT_EQ(combo.NumeroChoisi(), 1);
}

TEST_F(Combo, ChoisirHorsDeLaListeNeChoisitRien) {
  combo.Choisit(0);
  combo.Choisit(-1);
  EXPECT_TRUE(choix.empty());
}

TEST_F(Combo, LaDonneeSansChoixEstUnePanne) {
  EXPECT_THROW((void)combo.NumeroChoisi(), ErreurExecution);
}

TEST_F(Combo, UneDonneeIntrouvableEstUnePanneDeFichier) {
  combo.Ajoute(Liste{{"a", 1}});
  try {
    combo.ChoisitNumero(2);
    FAIL();
  } catch (const ErreurExecution& erreur) {
    EXPECT_EQ(erreur.numero(), 53);
  }
}

TEST_F(Combo, CompareSansCasseEtSansBlancs) {
  combo.Ajoute({{std::string("Épices"_1252), 1}, {"b", 2}});
  combo.Montre(1);
  EXPECT_TRUE(combo.ContientTexte(" ÉPICES"_1252));
  EXPECT_FALSE(combo.ContientTexte("épices"_1252, combo.currentIndex()));
  EXPECT_FALSE(combo.ContientTexte("epices"));
}

TEST_F(Combo, LeClavierChoisitAussi) {
  combo.Ajoute({{"a", 1}, {"b", 2}});
  combo.Montre(0);
  QTest::keyClick(&combo, Qt::Key_Down);
  EXPECT_THAT(choix, ElementsAre(1));
}

class Partage : public testing::Test {
 protected:
  ListePartagee partagee;
  ComboListe une{"ComboUne", Ordre::alphabetique};
  ComboListe autre{"ComboAutre", Ordre::alphabetique};
};

TEST_F(Partage, MontreLesMemesEntreesDansChaqueListe) {
  partagee.Suit(une);
  partagee.Suit(autre);
  partagee.Remplace({{"b", 2}, {"a", 3}});
  EXPECT_THAT(Numeros(une.entrees()), ElementsAre(3, 2));
  EXPECT_THAT(Numeros(autre.entrees()), ElementsAre(3, 2));
}

TEST_F(Partage, UneListeQuiVientPlusTardPrendLesEntreesDuMoment) {
  partagee.Suit(une);
  partagee.Remplace({{"a", 1}, {"b", 2}});
  une.Vide();  // not the first list is the source
  partagee.Suit(autre);
  EXPECT_THAT(Numeros(autre.entrees()), ElementsAre(1, 2));
}

TEST_F(Partage, RienNEstChoisiApresUnRemplacementEtAucunEvenementNePart) {
  int choix = 0;
  une.surChoix = [&] { ++choix; };
  partagee.Suit(une);
  partagee.Remplace({{"a", 1}});
  une.Montre(0);
  partagee.Remplace({{"b", 2}, {"c", 3}});
  EXPECT_EQ(une.currentIndex(), -1);
  EXPECT_EQ(choix, 0);
  EXPECT_THAT(Numeros(une.entrees()), ElementsAre(2, 3));
}

TEST_F(Partage, UneListeGardeSonEntreeEpingleeEnTete) {
  partagee.Suit(une, "?");
  partagee.Suit(autre);
  for (const char* nom : {"1er cru", "Alsace"}) {
    partagee.Remplace(Liste{{nom, 2}});
    EXPECT_EQ(Textes(une), (QStringList{"?", nom}));
    EXPECT_EQ(Textes(autre), QStringList{nom});
  }
}

class Choix : public testing::Test {
 protected:
  Choix() {
    liste.surChoix = [this] { ++choix; };
    liste.surDoubleClic = [this] { ++doubles; };
    liste.resize(200, 200);
    liste.show();
  }

  ListeChoix liste{"lstEssai", Ordre::alphabetique};
  int choix = 0;
  int doubles = 0;
};

TEST_F(Choix, ChoisitParLeProgrammeLaSourisEtLeClavier) {
  liste.Ajoute({{"a", 1}, {"b", 2}, {"c", 3}});
  liste.Choisit(0);
  QTest::mouseClick(liste.viewport(), Qt::LeftButton, {},
                    liste.visualRect(liste.model()->index(1, 0)).center());
  QTest::keyClick(&liste, Qt::Key_Down);
  EXPECT_EQ(choix, 3);
  EXPECT_EQ(liste.NumeroChoisi(), 3);
}

TEST_F(Choix, LaMemeEntreeChoisieDeNouveauNEstPasUnChoix) {
  liste.Ajoute({{"a", 1}, {"b", 2}});
  liste.Choisit(1);
  liste.Choisit(1);
  EXPECT_EQ(choix, 1);
}

TEST_F(Choix, LeDoubleClicSurUneEntreeSeul) {
  liste.Ajoute(Liste{{"a", 1}});
  const QPoint ou = liste.visualRect(liste.model()->index(0, 0)).center();
  for (const QPoint point : {ou, QPoint(100, 150)}) {
    QTest::mouseClick(liste.viewport(), Qt::LeftButton, {}, point);
    QTest::mouseDClick(liste.viewport(), Qt::LeftButton, {}, point);
  }
  EXPECT_EQ(doubles, 1);
}

TEST_F(Choix, SansChoixLaDonneeEstUnePanne) {
  EXPECT_THROW((void)liste.NumeroChoisi(), ErreurExecution);
}

}  // namespace
}  // namespace gastrelle::essai
