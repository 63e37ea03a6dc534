// One running program for each folder.

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

TEST(Instance, RefuseUnDossierDontPersonneNePeutSavoirQuiLOccupe) {
  const DossierEssai dossier;
  EXPECT_EQ(Instance::Prend(dossier.chemin() / "absent"), nullptr);
}

TEST(Instance, NeGardeRienDUnRefus) {
  const DossierEssai dossier;
  auto premier = Instance::Prend(dossier.chemin());
  EXPECT_EQ(Instance::Prend(dossier.chemin()), nullptr);
  premier.reset();
  EXPECT_NE(Instance::Prend(dossier.chemin()), nullptr);
}

}  // namespace
}  // namespace gastrelle::essai
