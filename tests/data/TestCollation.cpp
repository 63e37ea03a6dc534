// The order of every sorted list.

#include <algorithm>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "data/Collation.h"
#include "data/Texte1252.h"

namespace gastrelle::essai {
namespace {

/// Texts as a sorted list shows them.
std::vector<std::string> Tries(std::vector<std::string_view> textes) {
  Liste liste;
  for (const std::string_view texte : textes) {
    liste.push_back({DepuisUtf8(texte), 0});
  }
  TrieFrancais(liste);
  std::vector<std::string> resultat;
  for (const EntreeListe& entree : liste) {
    resultat.push_back(VersUtf8(entree.texte));
  }
  return resultat;
}

TEST(Collation, MetLesAccentsACoteDeLeurLettre) {
  EXPECT_THAT(
      Tries({"zeste", "éclair", "farce", "eau", "à point", "abricot", "Œufs", "oie"}),
      testing::ElementsAre("à point", "abricot", "eau", "éclair", "farce", "Œufs", "oie", "zeste"));
}

TEST(Collation, NeRegardeLesAccentsQuALettresEgales) {
  EXPECT_THAT(Tries({"côté", "côte", "coté", "cote", "cotée"}),
              testing::ElementsAre("cote", "coté", "côte", "côté", "cotée"));
}

TEST(Collation, RangeLesAccentsDUneMemeLettreDansUnOrdreFixe) {
  EXPECT_THAT(Tries({"ë", "ê", "é", "è", "e"}), testing::ElementsAre("e", "è", "é", "ê", "ë"));
}

TEST(Collation, IgnoreLaCasse) {
  EXPECT_EQ(CompareFrancais("GRATIN", "gratin"), 0);
  EXPECT_EQ(CompareFrancais("ÉPICES Œ Ÿ"_1252, "épices œ ÿ"_1252), 0);
  EXPECT_THAT(Tries({"b", "A", "C", "a"}), testing::ElementsAre("A", "a", "b", "C"));
}

TEST(Collation, LitLesLettresDoublesCommeDeux) {
  EXPECT_THAT(Tries({"Oeufz", "Œufs", "Oeufs", "Odeur"}),
              testing::ElementsAre("Odeur", "Oeufs", "Œufs", "Oeufz"));
  EXPECT_LT(CompareFrancais("strasse", "straße"_1252), 0);
  EXPECT_LT(CompareFrancais("straße"_1252, "strassf"), 0);
  EXPECT_GT(CompareFrancais("cæ"_1252, "cad"), 0);
}

TEST(Collation, MetUnTexteAvantCeuxQuiLeContinuent) {
  EXPECT_THAT(Tries({"pâtés", "pâté en croûte", "pâté"}),
              testing::ElementsAre("pâté", "pâté en croûte", "pâtés"));
  EXPECT_GT(CompareFrancais("a", ""), 0);
}

TEST(Collation, PlaceLEspaceInsecableACoteDuBlanc) {
  EXPECT_THAT(Tries({"a\xC2\xA0"
                     "b",
                     "a!b", "a b"}),
              testing::ElementsAre("a b",
                                   "a\xC2\xA0"
                                   "b",
                                   "a!b"));
}

TEST(Collation, MetLesSignesDuHautDeLaPageApresLesLettres) {
  EXPECT_GT(CompareFrancais("¿"_1252, "zz"), 0);
  EXPECT_LT(CompareFrancais("1", "a"), 0);
}

TEST(Collation, DepartageLesLonguesTetesCommunes) {
  EXPECT_THAT(
      Tries({"Gratin dauphinois Z", "Gratin dauphinois b", "Gratin dauphinois à"}),
      testing::ElementsAre("Gratin dauphinois à", "Gratin dauphinois b", "Gratin dauphinois Z"));
}

TEST(Collation, GardeLOrdreDesTextesEgaux) {
  Liste liste{{"crepes", 7}, {"Crepes", 3}, {"CREPES", 9}, {"bar", 1}};
  TrieFrancais(liste);
  EXPECT_THAT(liste, testing::ElementsAre(EntreeListe{"bar", 1}, EntreeListe{"crepes", 7},
                                          EntreeListe{"Crepes", 3}, EntreeListe{"CREPES", 9}));
}

TEST(Collation, TrieCommeElleCompareMemeDesOctetsQuelconques) {
  Liste liste;
  std::uint32_t graine = 1;
  for (std::int32_t i = 0; i < 2000; ++i) {
    std::string texte;
    for (int k = 0; k < 1 + i % 12; ++k) {
      graine = graine * 1664525U + 1013904223U;
      texte += static_cast<char>(graine >> 24U);
    }
    liste.push_back({texte, i});
  }
  TrieFrancais(liste);
  EXPECT_TRUE(std::is_sorted(liste.begin(), liste.end(), [](const auto& a, const auto& b) {
    return CompareFrancais(a.texte, b.texte) < 0;
  }));
}

TEST(Collation, InsereDerriereSesEgaux) {
  const Liste liste{{"bar", 1}, {"Crepes", 3}, {"crepes", 7}, {"daube", 2}};
  EXPECT_EQ(PlaceFrancaise(liste, 0, "CREPES"), 3U);
  EXPECT_EQ(PlaceFrancaise(liste, 0, "crêpes"_1252), 3U);
  EXPECT_EQ(PlaceFrancaise(liste, 0, "ail"), 0U);
  EXPECT_EQ(PlaceFrancaise(liste, 0, "zeste"), 4U);
}

TEST(Collation, NInserePasAvantLesPremieresPlacesReservees) {
  const Liste liste{{"?", 0}, {"bar", 1}};
  EXPECT_EQ(PlaceFrancaise(liste, 1, "ail"), 1U);
  EXPECT_EQ(PlaceFrancaise(liste, 1, "!"), 1U);
  EXPECT_EQ(PlaceFrancaise({}, 0, "ail"), 0U);
}

}  // namespace
}  // namespace gastrelle::essai
