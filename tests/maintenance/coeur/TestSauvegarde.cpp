// The backup copy: what is copied, in which order, what a failure leaves.

#include <algorithm>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "doublures/Bibliotheque.h"
#include "maintenance/Sauvegarde.h"

namespace gastrelle::essai {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class CopieDeSecurite : public testing::Test {
 protected:
  void SetUp() override {
    b.AjouteRecette(2, "Soupe", "Une soupe.", "/soupe.png");
    b.Demarre();
  }

  [[nodiscard]] bool TousFermes() const {
    return std::all_of(b.module->fichiers.begin(), b.module->fichiers.end(),
                       [](const auto& fichier) { return fichier == nullptr; });
  }

  Bibliotheque b;
};

TEST_F(CopieDeSecurite, CreeLeDossierPuisCopieLesQuatreFichiersDansLOrdre) {
  EXPECT_TRUE(CopieSecurite(*b.module));
  EXPECT_THAT(b.disque.journal(),
              ElementsAre("dossier? SAUVE", "crée SAUVE", "copie GLR1.DAT SAUVE/GLR1.DAT",
                          "copie GLR2.DAT SAUVE/GLR2.DAT", "copie GLR3.DAT SAUVE/GLR3.DAT",
                          "copie GLR4.DAT SAUVE/GLR4.DAT"));
}

TEST_F(CopieDeSecurite, LesCopiesOntLesOctetsDesFichiers) {
  EXPECT_TRUE(CopieSecurite(*b.module));
  for (const std::string nom : {"GLR1.DAT", "GLR2.DAT", "GLR3.DAT", "GLR4.DAT"}) {
    EXPECT_EQ(b.dossier.Lit("SAUVE/" + nom), b.dossier.Lit(nom)) << nom;
  }
}

TEST_F(CopieDeSecurite, SeulsLesFichiersDeRecettesSontCopies) {
  EXPECT_TRUE(CopieSecurite(*b.module));
  std::vector<std::string> noms;
  for (const auto& entree : std::filesystem::directory_iterator(b.dossier.chemin() / "SAUVE")) {
    noms.push_back(entree.path().filename().string());
  }
  EXPECT_THAT(noms, testing::UnorderedElementsAre("GLR1.DAT", "GLR2.DAT", "GLR3.DAT", "GLR4.DAT"));
}

TEST_F(CopieDeSecurite, RemplaceLaCopiePrecedente) {
  std::filesystem::create_directory(b.dossier.chemin() / "SAUVE");
  b.dossier.Ecrit("SAUVE/GLR3.DAT", "une copie bien plus longue que le fichier d'aujourd'hui");
  EXPECT_TRUE(CopieSecurite(*b.module));
  EXPECT_EQ(b.dossier.Lit("SAUVE/GLR3.DAT"), b.dossier.Lit("GLR3.DAT"));
  EXPECT_EQ(b.disque.journal()[1], "copie GLR1.DAT SAUVE/GLR1.DAT");
}

TEST_F(CopieDeSecurite, FermeTousLesFichiersAvantTout) {
  b.disque.EchoueSur("crée SAUVE", Panne::permissionRefusee);
  EXPECT_FALSE(CopieSecurite(*b.module));
  EXPECT_TRUE(TousFermes());
  EXPECT_THAT(b.messages.vus, IsEmpty());
}

TEST_F(CopieDeSecurite, UneRechercheDeDossierQuiEchoueValDossierAbsent) {
  b.disque.EchoueALAppel(1, Panne::entreeSortie);
  EXPECT_TRUE(CopieSecurite(*b.module));
  EXPECT_TRUE(b.dossier.A("SAUVE/GLR4.DAT"));
}

TEST_F(CopieDeSecurite, UnFichierNommeCommeLeDossierEmpecheLaCopie) {
  b.dossier.Ecrit("SAUVE", "x");
  EXPECT_FALSE(CopieSecurite(*b.module));
  EXPECT_EQ(b.dossier.Lit("SAUVE"), "x");
}

// The n-th call of the disk fails: what was copied before stays, nothing is copied behind.
class PanneDeCopie : public CopieDeSecurite, public testing::WithParamInterface<std::size_t> {};

TEST_P(PanneDeCopie, LaisseCeQuiAEteCopieAvant) {
  constexpr std::size_t avantLesCopies = 2;
  b.disque.EchoueALAppel(GetParam(), Panne::disquePlein);
  EXPECT_FALSE(CopieSecurite(*b.module));
  std::size_t copies = 0;
  for (const char* nom : {"SAUVE/GLR1.DAT", "SAUVE/GLR2.DAT", "SAUVE/GLR3.DAT", "SAUVE/GLR4.DAT"}) {
    copies += b.dossier.A(nom) ? 1U : 0U;
  }
  EXPECT_EQ(copies + avantLesCopies + 1, std::max(GetParam(), avantLesCopies + 1));
  EXPECT_THAT(b.disque.journal(), testing::SizeIs(GetParam()));
  EXPECT_TRUE(TousFermes());
}

INSTANTIATE_TEST_SUITE_P(AChaqueAppel, PanneDeCopie, testing::Values(2U, 3U, 4U, 5U, 6U));

}  // namespace
}  // namespace gastrelle::essai
