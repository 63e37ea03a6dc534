// Cleaning, emptying and reinitialising on the library as it is delivered.

#include <gtest/gtest.h>

#include "data/EspaceMort.h"
#include "maintenance/MaintenanceEssai.h"
#include "maintenance/Nettoyage.h"
#include "maintenance/Remplacement.h"
#include "recettes/LectureRecettes.h"

namespace gastrelle::essai {
namespace {

class FabriqueEntretenue : public testing::Test {
 protected:
  void SetUp() override {
    b.GarnitDeFabrique(DOSSIER_PROGRAMME);
    b.Demarre();
    livrees = RecettesVivantes(b.dossier);
    ASSERT_GT(livrees.size(), 100U);
  }

  Bibliotheque b;
  std::vector<RecetteEntiere> livrees;
};

TEST_F(FabriqueEntretenue, NAPasDEspaceMort) {
  EXPECT_EQ(MesureRecettes(*b.module).gain(), 0);
}

TEST_F(FabriqueEntretenue, NettoyeeEstCelleQuiAEteLivree) {
  const auto avant = LesQuatre(b.dossier);
  EXPECT_EQ(NettoieRecettes(*b.module), static_cast<int>(livrees.size()));
  EXPECT_EQ(LesQuatre(b.dossier), avant);
  EXPECT_EQ(RecettesVivantes(b.dossier), livrees);
}

TEST_F(FabriqueEntretenue, SansSaCinquiemeFamilleChaqueAutreRecetteResteEntiere) {
  std::vector<RecetteEntiere> gardees;
  const auto recettes = FichesDe<RecRecette>(b.dossier, "GLR2.DAT");
  for (std::size_t i = 0; i < recettes.size(); ++i) {
    if (recettes[i].idFamille == 5) {
      ChangeFiche<RecRecette>(b, "GLR2.DAT", static_cast<std::int32_t>(i) + 2,
                              [](RecRecette& r) { r.actif = supprime; });
    } else {
      gardees.push_back(livrees[i]);
    }
  }
  ASSERT_LT(gardees.size(), livrees.size());
  ChangeFiche<RecFamille>(b, "GLR1.DAT", 5, [](RecFamille& f) { f.actif = supprime; });
  PoseCompte(b, "GLR1.DAT", static_cast<std::int16_t>(b.module->bufFamille.nbActifs() - 1));
  PoseCompte(b, "GLR2.DAT", static_cast<std::int16_t>(gardees.size()));
  b.Redemarre();
  const std::int64_t necessaire = MesureRecettes(*b.module).necessaire;
  EXPECT_EQ(NettoieRecettes(*b.module), static_cast<int>(gardees.size()));
  EXPECT_EQ(RecettesVivantes(b.dossier), gardees);
  EXPECT_EQ(TailleDesQuatre(b.dossier), necessaire);
}

TEST_F(FabriqueEntretenue, VideeGardeSaPremiereRecetteEtSonTexte) {
  RemplaceRecettes(*b.module, FabriqueUneRecette);
  const RecetteEntiere& premiere = livrees.front();
  EXPECT_EQ(RecettesVivantes(b.dossier), std::vector{premiere});
  EXPECT_EQ(LitRecette(*b.module, 2).texte, premiere.texte);
  EXPECT_EQ(b.dossier.Lit("GLR4.DAT"), b.dossier.Lit("GLR4.stp"));
  EXPECT_EQ(b.dossier.Lit("GLR3.DAT"), "GLR3.DAT" + premiere.texte);
  b.Redemarre();
}

TEST_F(FabriqueEntretenue, VideePuisReinitialiseeEstCelleQuiAEteLivree) {
  const auto avant = LesQuatre(b.dossier);
  RemplaceRecettes(*b.module, FabriqueUneRecette);
  RemplaceRecettes(*b.module, FabriqueOrigines);
  EXPECT_EQ(LesQuatre(b.dossier), avant);
  EXPECT_EQ(RecettesVivantes(b.dossier), livrees);
}

}  // namespace
}  // namespace gastrelle::essai
