// An end that nobody in the program has decided. Each test runs in a process of its own making.

#include <cstdlib>
#include <unistd.h>

#include <gtest/gtest.h>

#include "doublures/Enfant.h"
#include "plateforme/FinImprevue.h"
#include "plateforme/Processus.h"

namespace gastrelle::essai {
namespace {

constexpr int faite = 7;

void Finit() {
  ::_exit(faite);
}

TEST(FinImprevue, FaitDAbordCeQuElleDoit) {
  EXPECT_EQ(Enfant([] {
              const FinImprevue fin(Finit);
              std::exit(1);
              return 0;
            }),
            faite);
}

TEST(FinImprevue, NeFaitRienUneFoisPartie) {
  EXPECT_EQ(Enfant([] {
              { const FinImprevue fin(Finit); }
              std::exit(1);
              return 0;
            }),
            1);
}

TEST(FinImprevue, ReprendQuandUneAutreLaSuit) {
  EXPECT_EQ(Enfant([] {
              {
                const FinImprevue premiere([] {});
              }
              const FinImprevue fin(Finit);
              std::exit(1);
              return 0;
            }),
            faite);
}

TEST(FinImprevue, NeSeRappellePasElleMeme) {
  EXPECT_EQ(Enfant([] {
              static int fois = 0;
              const FinImprevue fin([] {
                ++fois;
                std::exit(fois);
              });
              std::exit(3);
              return 0;
            }),
            1);
}

TEST(FinImprevue, NeComptePasCelleQueLeProgrammeDecide) {
  EXPECT_EQ(Enfant([] {
              const FinImprevue fin(Finit);
              ProcessusSysteme().Termine(0);
              return 1;
            }),
            0);
}

}  // namespace
}  // namespace gastrelle::essai
