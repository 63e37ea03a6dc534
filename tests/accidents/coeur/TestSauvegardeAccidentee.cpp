// A backup copy that is killed, or fails, at any of its calls.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "accidents/Secours.h"
#include "accidents/coeur/Deroulement.h"

namespace gastrelle::essai {
namespace {

using testing::ElementsAre;

TEST(SauvegardeTuee, NeToucheJamaisAuxRecettes) {
  const BilanDesMorts bilan = TueePartout(Sauve);
  EXPECT_THAT(bilan.etats, ElementsAre(".DAT"));
  EXPECT_THAT(bilan.retours, ElementsAre("anciennes"));
}

TEST(SauvegardeTuee, NeToucheJamaisAuxRecettesNonPlusALaSoireeSuivante) {
  EXPECT_THAT(TueePartout(Sauve, Entretemps::soiree).retours, ElementsAre("anciennes"));
}

TEST(SauvegardeQuiEchoue, NeToucheJamaisAuxRecettesEtNeDitRien) {
  EXPECT_THAT(EchoueePartout(Sauve).issues, ElementsAre("rien: anciennes"));
}

TEST(SauvegardeEntiere, RendLesRecettesPerdues) {
  BibliothequeEnUsage b;
  Sauve(*b.module);
  for (const char* nom : {"GLR1.DAT", "GLR3.DAT"}) {
    b.dossier.Supprime(nom);
  }
  EXPECT_EQ(SecourtEtRetrouve(b, {}), "anciennes");
}

TEST(SauvegardeEntiere, RendLesRecettesAbimees) {
  BibliothequeEnUsage b;
  Sauve(*b.module);
  b.dossier.Ecrit("GLR2.DAT", "x");
  Revient(b.dossier.chemin(), Retour::quatreDeSauve);
  b.Redemarre();
  EXPECT_EQ(b.Recettes(), b.avant);
}

}  // namespace
}  // namespace gastrelle::essai
