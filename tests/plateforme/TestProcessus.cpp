// The end of the process.

#include <cstdio>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "plateforme/Processus.h"

namespace gastrelle::essai {
namespace {

[[noreturn]] void TermineEnPleinTravail(int statut) {
  std::atexit([] { std::fputs("déchargement", stderr); });
  ProcessusSysteme().Termine(statut);
}

TEST(ProcessusDeathTest, FinitAvecLeStatutEtSansRienDecharger) {
  EXPECT_EXIT(TermineEnPleinTravail(1), testing::ExitedWithCode(1),
              testing::Not(testing::HasSubstr("déchargement")));
  EXPECT_EXIT(TermineEnPleinTravail(0), testing::ExitedWithCode(0),
              testing::Not(testing::HasSubstr("déchargement")));
}

}  // namespace
}  // namespace gastrelle::essai
