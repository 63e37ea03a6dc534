// Typing ahead: which entry the letters lead to.

#include <QTest>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "controles/RechercheListe.h"
#include "data/Texte1252.h"
#include "doublures/Ecran.h"

namespace gastrelle::essai {
namespace {

using testing::Optional;

Liste Entrees(std::initializer_list<std::string_view> titres) {
  Liste entrees;
  for (const std::string_view titre : titres) {
    entrees.push_back({DepuisUtf8(titre), 0});
  }
  return entrees;
}

class Recherche : public testing::Test {
 protected:
  /// Types letters one after the other, from the entry at `courante` on, and goes where they lead.
  int Tape(std::string_view lettres) {
    for (const QChar lettre : Fr(lettres)) {
      courante = recherche.Trouve(entrees, courante, QString(lettre)).value_or(courante);
    }
    return courante;
  }
  /// The same, in a list where nothing was typed before.
  int TapeDepuis(int depart, std::string_view lettres) {
    recherche = RechercheListe();
    courante = depart;
    return Tape(lettres);
  }

  Liste entrees =
      Entrees({"Bouchées à la reine", "Bœuf aux carottes", "Crème brûlée", "Daube de bœuf",
               "Galette des rois", "Gâteau basque", "Harengs et pommes à l'huile",
               "Îles flottantes", "Pot-au-feu", "Ris de veau (à l’étouffée)", "Steak-frites"});
  RechercheListe recherche;
  int courante = -1;
};

TEST_F(Recherche, NeRegardeNiAccentNiCasseNiLigature) {
  EXPECT_EQ(TapeDepuis(0, "boeuf"), 1);
  EXPECT_EQ(TapeDepuis(0, "BŒUF"), 1);
  EXPECT_EQ(TapeDepuis(0, "gateau"), 5);
  EXPECT_EQ(TapeDepuis(0, "ile"), 7);
  EXPECT_EQ(TapeDepuis(0, "Creme b"), 2);
}

TEST_F(Recherche, PrefereLeDebutDUnTitreAUnMot) {
  EXPECT_EQ(TapeDepuis(2, "boeuf"), 1);  // not the nearer "Daube de bœuf"
  EXPECT_EQ(TapeDepuis(3, "pom"), 6);
}

TEST_F(Recherche, UnMotCommenceApresUneApostropheOuUnTraitDUnion) {
  EXPECT_EQ(TapeDepuis(0, "huile"), 6);
  EXPECT_EQ(TapeDepuis(0, "feu"), 8);
  EXPECT_EQ(TapeDepuis(0, "frites"), 10);
  EXPECT_EQ(TapeDepuis(0, "etouffee"), 9);
  EXPECT_EQ(TapeDepuis(0, "l'etou"), 9);
  EXPECT_EQ(TapeDepuis(0, "uile"), 0);  // no word begins so
}

TEST_F(Recherche, LaMemeLettrePasseDUneEntreeALaSuivanteEtRevient) {
  EXPECT_EQ(TapeDepuis(-1, "b"), 0);
  EXPECT_EQ(Tape("b"), 1);
  EXPECT_EQ(Tape("b"), 0);
  EXPECT_EQ(TapeDepuis(4, "g"), 5);
  EXPECT_EQ(Tape("g"), 4);
}

TEST_F(Recherche, LesLettresSuivantesRestentSurLEntreeQuiVa) {
  EXPECT_EQ(TapeDepuis(-1, "bouchees a"), 0);
  EXPECT_EQ(TapeDepuis(0, "i"), 7);
  EXPECT_EQ(Tape("le"), 7);
}

TEST_F(Recherche, SansEntreeQuiAilleRienNeBouge) {
  EXPECT_EQ(TapeDepuis(3, "xyz"), 3);
  EXPECT_EQ(recherche.Trouve({}, -1, "a"), std::nullopt);
}

TEST_F(Recherche, UnBlancEnTeteEtLesTouchesSansLettreNeComptentPas) {
  EXPECT_EQ(TapeDepuis(3, " "), 3);
  EXPECT_EQ(Tape("ga"), 4);
  EXPECT_EQ(Tape("\x1b\b"), 4);
  EXPECT_EQ(Tape("t"), 5);
}

TEST_F(Recherche, OublieLesLettresAuBoutDUnMoment) {
  using std::chrono_literals::operator""ms;
  recherche = RechercheListe(30ms);
  EXPECT_THAT(recherche.Trouve(entrees, 0, "g"), Optional(4));
  QTest::qWait(60);
  EXPECT_THAT(recherche.Trouve(entrees, 4, "d"), Optional(3));
}

}  // namespace
}  // namespace gastrelle::essai
