// Day numbers, and today.

#include <ctime>

#include <gtest/gtest.h>

#include "doublures/Environnement.h"
#include "plateforme/Horloge.h"

namespace gastrelle::essai {
namespace {

using std::chrono::day;
using std::chrono::month;
using std::chrono::year;

constexpr std::int32_t Numero(int a, unsigned m, unsigned j) {
  return NumeroJour(year{a} / month{m} / day{j});
}

TEST(Horloge, CompteLesJoursDepuisLe30Decembre1899) {
  EXPECT_EQ(Numero(1899, 12, 29), -1);
  EXPECT_EQ(Numero(1899, 12, 30), 0);
  EXPECT_EQ(Numero(1899, 12, 31), 1);
  EXPECT_EQ(Numero(1900, 1, 1), 2);
}

TEST(Horloge, NeDonnePasDe29FevrierA1900) {
  EXPECT_EQ(Numero(1900, 3, 1) - Numero(1900, 2, 28), 1);
  EXPECT_EQ(Numero(2000, 3, 1) - Numero(2000, 2, 28), 2);
}

TEST(Horloge, NumeroteLesJoursDAujourdhui) {
  EXPECT_EQ(Numero(1970, 1, 1), 25569);
  EXPECT_EQ(Numero(2000, 1, 1), 36526);
  EXPECT_EQ(Numero(2026, 11, 21), 46347);
}

class HorlogeReglee : public testing::Test {
 protected:
  ~HorlogeReglee() override { Fuseau(nullptr); }

  static void Fuseau(const char* fuseau) {
    PoseVariable("TZ", fuseau);
    ::tzset();
  }

  static std::int32_t Aujourdhui() { return NumeroJour(HorlogeSysteme().Aujourdhui()); }
};

TEST_F(HorlogeReglee, DonneLeJourDuFuseauDeLaMachine) {
  Fuseau("OUEST+12");
  const std::int32_t ouest = Aujourdhui();
  Fuseau("EST-14");  // 26 hours ahead: never the same day
  const std::int32_t est = Aujourdhui();
  EXPECT_GE(est - ouest, 1);
  EXPECT_LE(est - ouest, 2);
}

TEST_F(HorlogeReglee, SuitLHeureDuSysteme) {
  Fuseau("UTC0");
  constexpr std::time_t jour = 86400;
  const std::time_t avant = std::time(nullptr) / jour;
  const std::int32_t lu = Aujourdhui() - 25569;
  const std::time_t apres = std::time(nullptr) / jour;
  EXPECT_TRUE(lu == avant || lu == apres) << lu;
}

}  // namespace
}  // namespace gastrelle::essai
