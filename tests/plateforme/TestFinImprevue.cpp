// An end that nobody in the program has decided. Each test runs in a process of its own making.

#include <cstdlib>

#include <gtest/gtest.h>

#include "plateforme/FinImprevue.h"
#include "plateforme/Processus.h"

namespace gastrelle::essai {
namespace {

constexpr int faite = 7;

void Finit() {
  ProcessusSysteme().Termine(faite);
}

[[noreturn]] void FinitPendantQuElleTient() {
  const FinImprevue fin(Finit);
  std::exit(1);
}

[[noreturn]] void FinitApresElle() {
  { const FinImprevue fin(Finit); }
  std::exit(1);
}

[[noreturn]] void FinitPendantLaSuivante() {
  {
    const FinImprevue premiere([] {});
  }
  FinitPendantQuElleTient();
}

[[noreturn]] void FinitDansElleMeme() {
  static int fois = 0;
  const FinImprevue fin([] {
    ++fois;
    std::exit(fois);
  });
  std::exit(3);
}

[[noreturn]] void TerminePendantQuElleTient() {
  const FinImprevue fin(Finit);
  ProcessusSysteme().Termine(0);
}

TEST(FinImprevueDeathTest, FaitDAbordCeQuElleDoit) {
  EXPECT_EXIT(FinitPendantQuElleTient(), testing::ExitedWithCode(faite), "");
}

TEST(FinImprevueDeathTest, NeFaitRienUneFoisPartie) {
  EXPECT_EXIT(FinitApresElle(), testing::ExitedWithCode(1), "");
}

TEST(FinImprevueDeathTest, ReprendQuandUneAutreLaSuit) {
  EXPECT_EXIT(FinitPendantLaSuivante(), testing::ExitedWithCode(faite), "");
}

TEST(FinImprevueDeathTest, NeSeRappellePasElleMeme) {
  EXPECT_EXIT(FinitDansElleMeme(), testing::ExitedWithCode(1), "");
}

TEST(FinImprevueDeathTest, NeComptePasCelleQueLeProgrammeDecide) {
  EXPECT_EXIT(TerminePendantQuElleTient(), testing::ExitedWithCode(0), "");
}

}  // namespace
}  // namespace gastrelle::essai
