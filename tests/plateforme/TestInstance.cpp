// One running program for each folder.

#include <sys/wait.h>
#include <unistd.h>

#include <gtest/gtest.h>

#include "doublures/Bibliotheque.h"
#include "plateforme/Instance.h"

namespace gastrelle::essai {
namespace {

TEST(Instance, RefuseUnSecondProgrammeDansLeMemeDossier) {
  const DossierEssai dossier;
  const auto premier = Instance::Prend(dossier.chemin());
  ASSERT_NE(premier, nullptr);
  EXPECT_EQ(Instance::Prend(dossier.chemin()), nullptr);
}

TEST(Instance, LaisseTournerUnProgrammeDansChaqueDossier) {
  const DossierEssai dossier;
  const DossierEssai autre;
  const auto premier = Instance::Prend(dossier.chemin());
  EXPECT_NE(Instance::Prend(autre.chemin()), nullptr);
}

TEST(Instance, LibereLeDossierASaFin) {
  const DossierEssai dossier;
  Instance::Prend(dossier.chemin()).reset();
  EXPECT_NE(Instance::Prend(dossier.chemin()), nullptr);
}

TEST(Instance, ReconnaitLeDossierSousUnAutreNom) {
  const DossierEssai dossier;
  const auto premier = Instance::Prend(dossier.chemin());
  EXPECT_EQ(Instance::Prend(dossier.chemin() / "." / ""), nullptr);
}

TEST(Instance, NeLaisseAucunFichier) {
  const DossierEssai dossier;
  const auto verrou = Instance::Prend(dossier.chemin());
  EXPECT_TRUE(std::filesystem::is_empty(dossier.chemin()));
}

TEST(Instance, FinitAvecLeProcessusMemeTueNet) {
  const DossierEssai dossier;
  const pid_t enfant = ::fork();
  if (enfant == 0) {
    ::_exit(Instance::Prend(dossier.chemin()).release() == nullptr ? 1 : 0);
  }
  int statut = -1;
  ::waitpid(enfant, &statut, 0);
  EXPECT_EQ(statut, 0);
  EXPECT_NE(Instance::Prend(dossier.chemin()), nullptr);
}

TEST(Instance, TientPourLibreUnDossierQuiNeSeVerrouillePas) {
  const DossierEssai dossier;
  EXPECT_NE(Instance::Prend(dossier.chemin() / "absent"), nullptr);
}

}  // namespace
}  // namespace gastrelle::essai
