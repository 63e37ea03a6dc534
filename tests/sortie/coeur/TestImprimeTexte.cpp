// Running text on a page that is ten letters wide: where each word stands, where lines and pages
// end, and what a printer that fails leaves.

#include <algorithm>
#include <cstddef>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "doublures/ImprimanteEssai.h"
#include "sortie/ImprimeTexte.h"

namespace gastrelle::essai {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr double marge = 500;
constexpr double lettre = 100;  // of 10 points
constexpr double ligne = 240;   // of 10 points

class TexteImprime : public testing::Test {
 protected:
  TexteImprime() { imprimantes.largeur = marge + 10 * lettre; }

  bool Imprime(std::string_view texte, double corps = 10) {
    if (imprimante == nullptr) {
      imprimante = imprimantes.ParDefaut();
    }
    return ImprimeTexte(*imprimante, {"Times New Roman", corps}, marge, texte);
  }
  /// What stands on a page, counted from 0.
  [[nodiscard]] const std::vector<MotTrace>& Page(std::size_t page = 0) const {
    return imprimantes.travaux.back().pages.at(page);
  }
  [[nodiscard]] std::size_t pages() const { return imprimantes.travaux.back().pages.size(); }
  /// Pages where the text is tested against its points: a line of 10 points has 5 twips of 100.
  void PoseDesPagesDeVingtLignes() {
    imprimantes.interligne = 0.5;
    imprimantes.hauteur = 100;
  }
  static std::string Vides(std::size_t combien) {
    std::string texte;
    for (std::size_t i = 0; i < combien; ++i) {
      texte += "\r\n";
    }
    return texte;
  }

  ImprimantesEssai imprimantes;
  std::unique_ptr<Imprimante> imprimante;
};

TEST_F(TexteImprime, CommenceALaMargeEtFinitSaLigne) {
  EXPECT_TRUE(Imprime("un"));
  EXPECT_THAT(Page(), ElementsAre(MotTrace{"un", marge, 0}));
  EXPECT_EQ(imprimante->y(), ligne);
}

TEST_F(TexteImprime, ChaqueAppelReprendALaMargeSousLePrecedent) {
  EXPECT_TRUE(Imprime("un"));
  EXPECT_TRUE(Imprime("deux"));
  EXPECT_THAT(Page(), ElementsAre(MotTrace{"un", marge, 0}, MotTrace{"deux", marge, ligne}));
}

TEST_F(TexteImprime, UnTexteVideNImprimeRienPasMemeUneFinDeLigne) {
  EXPECT_TRUE(Imprime(""));
  EXPECT_THAT(imprimantes.journal, ElementsAre("police Times New Roman 10"));
  EXPECT_EQ(imprimante->y(), 0);
}

TEST_F(TexteImprime, UneFinDeLigneSeuleFaitUneLigneVide) {
  EXPECT_TRUE(Imprime("\r\n"));
  EXPECT_THAT(Page(), IsEmpty());
  EXPECT_EQ(imprimante->y(), ligne);
}

TEST_F(TexteImprime, UneFinDeLigneEnTeteFaitUneLigneVideAuDessus) {
  EXPECT_TRUE(Imprime("\r\nun"));
  EXPECT_THAT(Page(), ElementsAre(MotTrace{"un", marge, ligne}));
  EXPECT_EQ(imprimante->y(), 2 * ligne);
}

TEST_F(TexteImprime, UneFinDeLigneEnQueueNeFaitRienDePlusDeuxFontUneLigneVide) {
  EXPECT_TRUE(Imprime("un\r\n"));
  EXPECT_EQ(imprimante->y(), ligne);
  EXPECT_TRUE(Imprime("deux\r\n\r\n"));
  EXPECT_EQ(imprimante->y(), 3 * ligne);
}

TEST_F(TexteImprime, LesLignesDuTexteReprennentALaMarge) {
  EXPECT_TRUE(Imprime("a b\r\n\r\nc"));
  EXPECT_THAT(Page(), ElementsAre(MotTrace{"a ", marge, 0}, MotTrace{"b", marge + 2 * lettre, 0},
                                  MotTrace{"c", marge, 2 * ligne}));
}

TEST_F(TexteImprime, UnRetourOuUnSautSeulsRestentDansLeMot) {
  EXPECT_TRUE(Imprime("a\rb\nc\n\rd"));
  EXPECT_THAT(Page(), ElementsAre(MotTrace{"a\rb\nc\n\rd", marge, 0}));
}

TEST_F(TexteImprime, UnMotPorteLeBlancQuiLeSuit) {
  EXPECT_TRUE(Imprime("un mot"));
  EXPECT_THAT(Page(), ElementsAre(MotTrace{"un ", marge, 0}, MotTrace{"mot", 800, 0}));
}

TEST_F(TexteImprime, PlusieursBlancsSontAutantDeMots) {
  EXPECT_TRUE(Imprime(" a  b "));
  EXPECT_THAT(Page(), ElementsAre(MotTrace{" ", 500, 0}, MotTrace{"a ", 600, 0},
                                  MotTrace{" ", 800, 0}, MotTrace{"b ", 900, 0}));
}

TEST_F(TexteImprime, LEspaceInsecableNeFinitPasUnMot) {
  EXPECT_TRUE(Imprime("a\xA0: b"));
  EXPECT_THAT(Page(), ElementsAre(MotTrace{"a\xA0: ", 500, 0}, MotTrace{"b", 900, 0}));
}

TEST_F(TexteImprime, UnMotQuiTientJusteResteSurSaLigne) {
  EXPECT_TRUE(Imprime("abcd efghi"));
  EXPECT_THAT(Page(), ElementsAre(MotTrace{"abcd ", 500, 0}, MotTrace{"efghi", 1000, 0}));
}

TEST_F(TexteImprime, PourUnTwipDeTropLeMotVaALaLigne) {
  imprimantes.largeur -= 1;
  EXPECT_TRUE(Imprime("abcd efghi"));
  EXPECT_THAT(Page(), ElementsAre(MotTrace{"abcd ", 500, 0}, MotTrace{"efghi", 500, ligne}));
  EXPECT_EQ(imprimante->y(), 2 * ligne);
}

TEST_F(TexteImprime, LeBlancDerriereLeMotPrendSaPlaceSurLaLigne) {
  EXPECT_TRUE(Imprime("abcd efghi j"));
  EXPECT_THAT(Page(), ElementsAre(MotTrace{"abcd ", 500, 0}, MotTrace{"efghi ", 500, ligne},
                                  MotTrace{"j", 1100, ligne}));
}

TEST_F(TexteImprime, UnMotPlusLargeQueLaPageDebordeSansEtreCoupe) {
  EXPECT_TRUE(Imprime("a bcdefghijklm n"));
  EXPECT_THAT(Page(), ElementsAre(MotTrace{"a ", 500, 0}, MotTrace{"bcdefghijklm ", 500, ligne},
                                  MotTrace{"n", 500, 2 * ligne}));
}

TEST_F(TexteImprime, UnMotPlusLargeQueLaPageLaisseUneLigneVideMemeEnTete) {
  EXPECT_TRUE(Imprime("abcdefghijk"));
  EXPECT_THAT(Page(), ElementsAre(MotTrace{"abcdefghijk", 500, ligne}));
  EXPECT_EQ(imprimante->y(), 2 * ligne);
}

TEST_F(TexteImprime, LaFinDePageSeMesureEnPointsSurDesTwips) {
  PoseDesPagesDeVingtLignes();
  EXPECT_TRUE(Imprime(Vides(17) + "abcdef ghijkl"));
  ASSERT_EQ(pages(), 1);  // 90 + 10 is the page's height, and not beyond
  EXPECT_THAT(Page(), ElementsAre(MotTrace{"abcdef ", marge, 85}, MotTrace{"ghijkl", marge, 90}));
}

TEST_F(TexteImprime, AuDelaLaLigneQuiContinueVaALaPageSuivante) {
  PoseDesPagesDeVingtLignes();
  EXPECT_TRUE(Imprime(Vides(18) + "abcdef ghijkl"));
  ASSERT_EQ(pages(), 2);
  EXPECT_THAT(Page(0), ElementsAre(MotTrace{"abcdef ", marge, 90}));
  EXPECT_THAT(Page(1), ElementsAre(MotTrace{"ghijkl", marge, 0}));
}

TEST_F(TexteImprime, LeCorpsCompteDansLaMesure) {
  PoseDesPagesDeVingtLignes();
  imprimantes.interligne = 0.25;  // 5 twips a line of 20 points
  EXPECT_TRUE(Imprime(Vides(15) + "abc def", 20));
  EXPECT_EQ(pages(), 1);  // 80 + 20
  EXPECT_TRUE(Imprime("abc def", 20));
  EXPECT_EQ(pages(), 2);
}

TEST_F(TexteImprime, UneLigneDuTexteNeSeMesurePas) {
  PoseDesPagesDeVingtLignes();
  EXPECT_TRUE(Imprime(Vides(18) + "a\r\nb"));
  ASSERT_EQ(pages(), 1);
  EXPECT_THAT(Page(), ElementsAre(MotTrace{"a", marge, 90}, MotTrace{"b", marge, 95}));
}

TEST_F(TexteImprime, AilleursLImprimanteChangeDePageDElleMeme) {
  imprimantes.hauteur = 2 * ligne;
  EXPECT_TRUE(Imprime("a\r\nb\r\nc d"));
  ASSERT_EQ(pages(), 2);
  EXPECT_THAT(Page(0), ElementsAre(MotTrace{"a", marge, 0}, MotTrace{"b", marge, ligne}));
  EXPECT_THAT(Page(1), ElementsAre(MotTrace{"c ", marge, 0}, MotTrace{"d", 700, 0}));
}

TEST_F(TexteImprime, UneLigneQuiContinueSansQueLaMesureLeVoieChangeDePageAussi) {
  imprimantes.hauteur = 2 * ligne + 100;  // too low for a line, high enough for ten points
  EXPECT_TRUE(Imprime("a\r\nabcdef ghijkl"));
  ASSERT_EQ(pages(), 2);
  EXPECT_THAT(Page(1), ElementsAre(MotTrace{"ghijkl", marge, 0}));
}

TEST_F(TexteImprime, LesLignesVidesDuPiedPrennentLeurPlaceSurLaPageSuivante) {
  imprimantes.hauteur = 2 * ligne;
  EXPECT_TRUE(Imprime("a\r\n\r\n\r\nb"));
  ASSERT_EQ(pages(), 2);
  EXPECT_THAT(Page(1), ElementsAre(MotTrace{"b", marge, ligne}));
}

TEST_F(TexteImprime, UnePoliceRefuseeLaisseCelleDeLImprimante) {
  imprimantes.EchoueALAppel(1);
  EXPECT_TRUE(Imprime("a b"));
  EXPECT_THAT(Page(), ElementsAre(MotTrace{"a ", 500, 0}, MotTrace{"b", 740, 0}));
  EXPECT_THAT(imprimantes.travaux.back().polices, IsEmpty());
  EXPECT_TRUE(Imprime("c"));
  EXPECT_THAT(imprimantes.travaux.back().polices, ElementsAre(PoliceVue{"Times New Roman", 10}));
}

/// Wrapped and own lines, an empty one, a page that is full.
constexpr std::string_view deuxPages = "abcdef ghijkl\r\n\r\nm n o\r\np";

class TexteImprimeSansSucces : public TexteImprime {
 protected:
  TexteImprimeSansSucces() {
    for (ImprimantesEssai* toutes : {&modele, &imprimantes}) {
      toutes->largeur = marge + 10 * lettre;
      toutes->hauteur = 3 * ligne;
    }
    EXPECT_TRUE(ImprimeTexte(*modele.ParDefaut(), {"Times New Roman", 10}, marge, deuxPages));
  }

  ImprimantesEssai modele;  ///< all of the text's calls and measures, when nothing fails
};

TEST_F(TexteImprimeSansSucces, ChaqueAppelQuiEchoueArreteLeTexteLaOuIlEnEtait) {
  const std::vector<std::string>& appels = modele.journal;
  ASSERT_THAT(appels,
              ElementsAre("police Times New Roman 10", "page", "trace abcdef ", "trace ghijkl",
                          "page", "trace m ", "trace n ", "trace o", "trace p"));
  for (std::size_t n = 2; n <= appels.size(); ++n) {
    SCOPED_TRACE(appels[n - 1]);
    imprimante.reset();
    imprimantes.journal.clear();
    imprimantes.EchoueALAppel(n);
    EXPECT_FALSE(Imprime(deuxPages));
    EXPECT_EQ(imprimantes.journal,
              std::vector(appels.begin(), appels.begin() + static_cast<std::ptrdiff_t>(n)));
  }
}

TEST_F(TexteImprimeSansSucces, ChaqueMesureQuiEchoueArreteLeTexte) {
  ASSERT_GT(modele.mesures, 20);
  for (std::size_t n = 1; n <= modele.mesures; ++n) {
    SCOPED_TRACE(n);
    imprimante.reset();
    imprimantes.journal.clear();
    imprimantes.EchoueALaMesure(n);
    EXPECT_FALSE(Imprime(deuxPages));
    ASSERT_LE(imprimantes.journal.size(), modele.journal.size());
    EXPECT_TRUE(
        std::equal(imprimantes.journal.begin(), imprimantes.journal.end(), modele.journal.begin()));
  }
}

TEST_F(TexteImprimeSansSucces, ApresUnEchecLAppelSuivantRecommenceAVrai) {
  imprimantes.EchoueALAppel(3);
  EXPECT_FALSE(Imprime("a"));
  EXPECT_TRUE(Imprime("b"));
  EXPECT_THAT(Page(), ElementsAre(MotTrace{"b", marge, 0}));
}

}  // namespace
}  // namespace gastrelle::essai
