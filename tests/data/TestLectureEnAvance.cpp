// Texts read ahead: always the bytes of the pool, and fewer calls of the disk where they follow
// each other.

#include <algorithm>
#include <limits>
#include <memory>
#include <optional>
#include <random>
#include <string>
#include <string_view>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "data/LectureEnAvance.h"
#include "doublures/Pannes.h"

namespace gastrelle::essai {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::Optional;

constexpr std::int32_t enAvance = 131072;
constexpr std::int32_t plusLong = 32768;

class LectureAnticipee : public testing::Test {
 protected:
  /// A pool in which every place is told from its neighbours.
  LectureAnticipee() {
    std::mt19937 hasard(7);
    std::uniform_int_distribution<int> tire(0, 255);
    octets.resize(std::size_t{3} * enAvance);
    std::generate(octets.begin(), octets.end(), [&] { return static_cast<char>(tire(hasard)); });
    dossier.Ecrit("GLR3.DAT", octets);
    place = disque.Ouvre("GLR3.DAT");
    disque.OublieJournal();
  }

  [[nodiscard]] std::string_view Attendu(std::int32_t position, std::int32_t longueur) const {
    return std::string_view(octets).substr(static_cast<std::size_t>(position) - 1,
                                           static_cast<std::size_t>(longueur));
  }

  std::string octets;
  DossierEssai dossier;
  DisqueEssai disque{dossier.chemin()};
  std::unique_ptr<Fichier> place;
  Reserve reserve{place};
  LectureEnAvance avance{reserve};
};

TEST_F(LectureAnticipee, LePremierTexteNeSeLitPasEnAvance) {
  EXPECT_EQ(avance.Rend(9, 100), std::nullopt);
  EXPECT_EQ(LectureEnAvance(reserve).Rend(1, 100), std::nullopt);
  EXPECT_THAT(disque.journal(), IsEmpty());
}

TEST_F(LectureAnticipee, CeuxQuiSeSuiventSontLusEnsemble) {
  EXPECT_EQ(avance.Rend(9, 100), std::nullopt);
  EXPECT_THAT(avance.Rend(109, 50), Optional(Attendu(109, 50)));
  EXPECT_THAT(avance.Rend(159, plusLong), Optional(Attendu(159, plusLong)));
  EXPECT_THAT(disque.journal(), ElementsAre("lit GLR3.DAT 108+131072"));
}

TEST_F(LectureAnticipee, CeluiQuiDepasseCeQuiEstLuEnAvanceSeLitAvecLesSuivants) {
  EXPECT_EQ(avance.Rend(1, 8), std::nullopt);
  constexpr std::int32_t pas = 30000;
  std::int32_t position = 9;
  for (int i = 0; i < 5; ++i, position += pas) {
    EXPECT_THAT(avance.Rend(position, pas), Optional(Attendu(position, pas))) << i;
  }
  EXPECT_THAT(disque.journal(), ElementsAre("lit GLR3.DAT 8+131072", "lit GLR3.DAT 120008+131072"));
}

TEST_F(LectureAnticipee, JusquAuDernierOctetLuEtPasUnDePlus) {
  static_cast<void>(avance.Rend(1, 8));
  EXPECT_THAT(avance.Rend(9, 1), Optional(Attendu(9, 1)));
  EXPECT_THAT(avance.Rend(9 + enAvance - 10, 10), Optional(Attendu(9 + enAvance - 10, 10)));
  EXPECT_EQ(disque.journal().size(), 1U);
  static_cast<void>(avance.Rend(9, 1));
  EXPECT_EQ(avance.Rend(9 + enAvance - 10, 11), std::nullopt);
  EXPECT_EQ(disque.journal().size(), 1U);
}

TEST_F(LectureAnticipee, UnTexteLongSeLitSeulEtCeluiDerriereLuiDeNouveauEnAvance) {
  static_cast<void>(avance.Rend(1, 8));
  EXPECT_EQ(avance.Rend(9, plusLong + 1), std::nullopt);
  EXPECT_THAT(disque.journal(), IsEmpty());
  const std::int32_t derriere = 9 + plusLong + 1;
  EXPECT_THAT(avance.Rend(derriere, 3), Optional(Attendu(derriere, 3)));
}

TEST_F(LectureAnticipee, CeuxQuiNeSeSuiventPasSeLisentSeuls) {
  static_cast<void>(avance.Rend(1, 8));
  EXPECT_EQ(avance.Rend(10, 8), std::nullopt);
  EXPECT_EQ(avance.Rend(enAvance, 8), std::nullopt);
  EXPECT_EQ(avance.Rend(9, 8), std::nullopt);
  EXPECT_THAT(disque.journal(), IsEmpty());
}

TEST_F(LectureAnticipee, AuBoutDuFichierRienQueCeQuIlTient) {
  const auto fin = static_cast<std::int32_t>(octets.size());
  static_cast<void>(avance.Rend(1, fin - 20));
  EXPECT_THAT(avance.Rend(fin - 19, 10), Optional(Attendu(fin - 19, 10)));
  EXPECT_THAT(avance.Rend(fin - 9, 10), Optional(Attendu(fin - 9, 10)));
  EXPECT_EQ(avance.Rend(fin + 1, 1), std::nullopt);
  EXPECT_EQ(avance.Rend(fin - 9, 11), std::nullopt);
}

TEST_F(LectureAnticipee, DesPositionsEtDesLongueursImpossiblesNeDonnentRien) {
  constexpr std::int32_t tres = std::numeric_limits<std::int32_t>::max();
  for (const std::int32_t position : {-tres - 1, -tres, -9, -1, 0, 1, 9, tres}) {
    for (const std::int32_t longueur : {-tres - 1, -tres, -9, -1, tres}) {
      EXPECT_EQ(avance.Rend(position, longueur), std::nullopt) << position << ' ' << longueur;
      EXPECT_EQ(LectureEnAvance(reserve).Rend(position, longueur), std::nullopt);
    }
  }
  static_cast<void>(avance.Rend(-8, 4));
  EXPECT_EQ(avance.Rend(-4, 4), std::nullopt);
}

TEST_F(LectureAnticipee, UneLectureQuiEchoueNeDonneRienEtNeSeDitPas) {
  static_cast<void>(avance.Rend(1, 8));
  disque.EchoueALAppel(1, Panne::entreeSortie);
  EXPECT_EQ(avance.Rend(9, 4), std::nullopt);
  EXPECT_EQ(disque.journal().size(), 1U);
  EXPECT_THAT(avance.Rend(13, 4), Optional(Attendu(13, 4)));
}

TEST_F(LectureAnticipee, DonneToujoursLesOctetsDuFichierOuRien) {
  std::mt19937 hasard(11);
  const auto tire = [&](std::int32_t moindre, std::int32_t plusGrand) {
    return std::uniform_int_distribution<std::int32_t>(moindre, plusGrand)(hasard);
  };
  const auto fin = static_cast<std::int32_t>(octets.size());
  std::int32_t position = 1;
  int donnes = 0;
  for (int i = 0; i < 5000; ++i) {
    const std::int32_t longueur = tire(0, 3) == 0 ? tire(1, 2 * plusLong) : tire(1, 300);
    if (tire(0, 4) == 0 || position + longueur > fin) {
      position = tire(1, fin);
    }
    if (const auto lu = avance.Rend(position, longueur)) {
      ASSERT_EQ(*lu, Attendu(position, longueur)) << i;
      ++donnes;
    }
    position += longueur;
  }
  EXPECT_GT(donnes, 1000);
}

}  // namespace
}  // namespace gastrelle::essai
