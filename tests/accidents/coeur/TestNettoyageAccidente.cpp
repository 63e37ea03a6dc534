// A cleaning that is killed, or fails, at any of its calls: where the recipes are, and the way
// back.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "accidents/Secours.h"
#include "accidents/coeur/Deroulement.h"
#include "doublures/Depart.h"
#include "doublures/Pannes.h"

namespace gastrelle::essai {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

TEST(NettoyageTue, LaisseToujoursLesRecettesEntieresQuelquePart) {
  const BilanDesMorts bilan = TueePartout(Nettoie);
  EXPECT_THAT(
      bilan.etats,
      ElementsAre(".DAT", ".DAT TEMP dès synchronise TEMP/",
                  ".DAT .tmp TEMP dès synchronise GLR3.tmp", ".tmp TEMP dès supprime GLR2.DAT",
                  ".DAT/.tmp TEMP dès renomme GLR2.tmp GLR2.DAT", ".DAT TEMP dès synchronise /",
                  ".DAT dès supprime TEMP/GLR2.DAT"));
  EXPECT_THAT(bilan.retours, ElementsAre("anciennes"));
}

TEST(NettoyageTue, SeRattrapeAussiApresUneSoireeDeProgramme) {
  EXPECT_THAT(TueePartout(Nettoie, Entretemps::soiree).retours, ElementsAre("anciennes"));
}

TEST(NettoyageQuiEchoue, LeDitTantQueTempTientLesRecettes) {
  const BilanDesEchecs bilan = EchoueePartout(Nettoie);
  EXPECT_THAT(bilan.issues, ElementsAre("fatal: anciennes", "rien: anciennes"));
  EXPECT_THAT(bilan.muets,
              ElementsAre("dossier? TEMP", "supprime GLR1.tmp", "supprime GLR2.tmp",
                          "supprime GLR3.tmp", "supprime GLR4.tmp", "énumère TEMP",
                          "supprime TEMP/GLR1.DAT", "supprime TEMP/GLR2.DAT",
                          "supprime TEMP/GLR3.DAT", "supprime TEMP/GLR4.DAT", "enlève TEMP"));
}

TEST(NettoyageQuiEchoue, SeRattrapeAussiApresUneSoireeDeProgramme) {
  EXPECT_THAT(EchoueePartout(Nettoie, Entretemps::soiree).issues,
              ElementsAre("fatal: anciennes", "rien: anciennes"));
}

// The safety copies of an accident that nobody cleared away.
class NettoyageSurUnReste : public testing::Test {
 protected:
  NettoyageSurUnReste() {
    std::filesystem::copy(b.dossier.chemin() / "SAUVE", b.dossier.chemin() / "TEMP");
    b.AjouteEncore("Cidre");
  }

  BibliothequeEnUsage b;
};

TEST_F(NettoyageSurUnReste, EstFatalAvantQueRienNeChange) {
  EXPECT_EQ(FinDe([&] { Nettoie(*b.module); }), 1);
  EXPECT_THAT(b.disque.changements(), ElementsAre("enlève TEMP", "crée TEMP"));
  EXPECT_EQ(b.messages.vus, std::vector{Fatal()});
  EXPECT_EQ(b.Recettes(), b.avant);
}

TEST_F(NettoyageSurUnReste, NeFaitPasReprendreDesRecettesPlusVieilles) {
  EXPECT_EQ(FinDe([&] { Nettoie(*b.module); }), 1);
  EXPECT_EQ(SecourtEtRetrouve(b, b.avant), "anciennes");
  EXPECT_FALSE(b.dossier.A("TEMP"));
  Nettoie(*b.module);
  EXPECT_THAT(b.messages.vus, testing::SizeIs(1));
  EXPECT_EQ(b.Recettes(), b.avant);
}

TEST(NettoyageSurDesTmp, EffaceCeuxQuIlTrouve) {
  BibliothequeEnUsage b;
  for (const char* nom : {"GLR1.tmp", "GLR2.tmp", "GLR3.tmp", "GLR4.tmp"}) {
    b.dossier.Ecrit(nom, std::string(3000, 'x'));
  }
  Nettoie(*b.module);
  EXPECT_THAT(b.messages.vus, IsEmpty());
  EXPECT_EQ(b.Recettes(), b.avant);
}

}  // namespace
}  // namespace gastrelle::essai
