// Whether a text holds another one, against a plain scan from left to right of both in capitals.

#include <algorithm>
#include <array>
#include <initializer_list>
#include <random>
#include <string>
#include <string_view>

#include <gtest/gtest.h>

#include "data/Texte1252.h"
#include "recherche/TexteCherche.h"

namespace gastrelle::essai {
namespace {

bool Contient(std::string_view texte, std::string_view quoi) {
  const std::string grand = Majuscules(texte);
  const std::string cible = Majuscules(quoi);
  return std::search(grand.begin(), grand.end(), cible.begin(), cible.end()) != grand.end();
}

bool EstDans(std::string_view texte, std::string_view quoi) {
  return TexteCherche(quoi).EstDans(texte);
}

class Tirage {
 public:
  std::size_t Nombre(std::size_t moindre, std::size_t plusGrand) {
    return std::uniform_int_distribution<std::size_t>(moindre, plusGrand)(hasard_);
  }
  std::string Texte(std::string_view alphabet, std::size_t longueur) {
    std::string texte(longueur, ' ');
    for (char& c : texte) {
      c = alphabet[Nombre(0, alphabet.size() - 1)];
    }
    return texte;
  }

 private:
  std::mt19937 hasard_{20261123};
};

/// The sizes around which texts are compared by blocks.
constexpr std::array<std::size_t, 12> tailles{0,   1,   20,  126, 127, 128,
                                              129, 255, 256, 257, 383, 1000};

/// Alphabets small enough for many hits and near misses.
const std::array<std::string, 5>& Alphabets() {
  static const std::array<std::string, 5> alphabets{
      std::string("aA"), std::string("abAB "), std::string("é"_1252) + "eE" + std::string("É"_1252),
      std::string("\0\x80\xFF\xE9\xC9zZ", 7), std::string("œŒšŠÿŸ o"_1252)};
  return alphabets;
}

TEST(TexteCherche, TrouveCeQuUnParcoursSimpleTrouve) {
  Tirage tirage;
  int trouves = 0;
  int absents = 0;
  for (const std::string& alphabet : Alphabets()) {
    for (const std::size_t taille : tailles) {
      for (std::size_t longueur = 1; longueur <= 20; ++longueur) {
        for (int fois = 0; fois < 4; ++fois) {
          const std::string texte = tirage.Texte(alphabet, taille);
          const std::string quoi = tirage.Texte(alphabet, longueur);
          const bool attendu = Contient(texte, quoi);
          ASSERT_EQ(EstDans(texte, quoi), attendu)
              << testing::PrintToString(quoi) << " dans " << testing::PrintToString(texte);
          ++(attendu ? trouves : absents);
        }
      }
    }
  }
  EXPECT_GT(trouves, 1000);
  EXPECT_GT(absents, 1000);
}

TEST(TexteCherche, TrouveUnMotAToutesLesPlacesEtPasUneLettreAvant) {
  for (const std::string_view mot : {"k", "Oignon", "une pointe de MUSCADE"}) {
    for (const std::size_t taille : tailles) {
      for (std::size_t place = 0; place + mot.size() <= taille; ++place) {
        std::string texte(taille, '-');
        texte.replace(place, mot.size(), mot);
        ASSERT_TRUE(EstDans(texte, mot)) << mot << " en " << place << " de " << taille;
        ASSERT_FALSE(EstDans(std::string_view(texte).substr(0, place + mot.size() - 1), mot));
        ASSERT_FALSE(EstDans(std::string_view(texte).substr(place + 1), mot));
      }
    }
  }
}

TEST(TexteCherche, TrouveUnTexteEgalEtPasDansUnPlusCourt) {
  Tirage tirage;
  for (const std::size_t taille : tailles) {
    const std::string texte = tirage.Texte("abcdefgh", taille);
    EXPECT_FALSE(EstDans(texte, texte + "x"));
    EXPECT_FALSE(EstDans({}, texte + "x"));
    if (taille > 0) {
      EXPECT_TRUE(EstDans(texte, texte));
      EXPECT_TRUE(EstDans(texte, Majuscules(texte)));
      EXPECT_EQ(TexteCherche(texte).longueur(), taille);
    }
  }
}

TEST(TexteCherche, ChaqueOctetNeTrouveQueCeuxQuiOntSaCapitale) {
  for (int i = 0; i < 256; ++i) {
    const std::string quoi(1, static_cast<char>(i));
    for (int j = 0; j < 256; ++j) {
      const std::string octet(1, static_cast<char>(j));
      ASSERT_EQ(EstDans(octet, quoi), Majuscules(octet) == Majuscules(quoi)) << i << " dans " << j;
      // Also where a whole block is compared at once.
      std::string texte(300, i == 0 ? 'x' : '\0');
      texte[200] = octet.front();
      ASSERT_EQ(EstDans(texte, quoi), Contient(texte, quoi)) << i << " dans " << j;
    }
  }
}

TEST(TexteCherche, NeDistinguePasLesCapitalesAccentsCompris) {
  for (const auto& [petites, grandes] : std::initializer_list<std::array<std::string_view, 2>>{
           {"bœuf à la ficelle"_1252, "BŒUF À LA FICELLE"_1252},
           {"crème brûlée"_1252, "CRÈME BRÛLÉE"_1252},
           {"l'haÿ"_1252, "L'HAŸ"_1252},
           {"špek"_1252, "ŠPEK"_1252},
           {"žito"_1252, "ŽITO"_1252},
           {"ça où ñ ø þ"_1252, "ÇA OÙ Ñ Ø Þ"_1252}}) {
    EXPECT_TRUE(EstDans(grandes, petites)) << VersUtf8(petites);
    EXPECT_TRUE(EstDans(petites, grandes)) << VersUtf8(petites);
  }
}

TEST(TexteCherche, UnAccentCompte) {
  EXPECT_FALSE(EstDans("Pâté en croûte"_1252, "pate"));
  EXPECT_FALSE(EstDans("Pate a choux", "pâte"_1252));
  EXPECT_FALSE(EstDans("boeuf", "bœuf"_1252));
  EXPECT_FALSE(EstDans("Pâté"_1252, "pâte"_1252));
  // What has no capital of its own stands for itself alone: signs, and the sharp s.
  EXPECT_FALSE(EstDans("MASSE", "maße"_1252));
  EXPECT_FALSE(EstDans("÷"_1252, "×"_1252));
}

TEST(TexteCherche, NeSurveillePasLesBlancsNiLesFinsDeLigne) {
  EXPECT_TRUE(EstDans("à feu\r\ndoux"_1252, "U\r\nD"));
  EXPECT_FALSE(EstDans("à feu\r\ndoux"_1252, "feu doux"));
  EXPECT_FALSE(EstDans("feu  doux", "feu doux"));
}

}  // namespace
}  // namespace gastrelle::essai
