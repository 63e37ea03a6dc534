// Keeping the preferences: the bytes on file, the calls, every failure.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "data/Texte1252.h"
#include "doublures/Bibliotheque.h"
#include "maintenance/Preferences.h"

namespace gastrelle::essai {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

const std::string troisUns("\1\0\1\0\1\0", 6);
const std::string troisZeros(6, '\0');

class EnregistrementPreferences : public testing::Test {
 protected:
  void SetUp() override { b.Demarre(); }

  bool Enregistre() { return EnregistrePreferences(*b.module, {1, 1, 1}); }
  std::string Fichier() { return b.dossier.Lit("GLPREF.DAT"); }
  std::string EnVigueur() { return Octets(b.module->prefs[0]); }

  static MessageVu Refus() {
    return {
        std::string("Erreur E/S disque. Les modifications n'ont pas été prises en compte."_1252),
        Icone::critique, "Gastrelle 2005"};
  }

  Bibliotheque b;
};

TEST_F(EnregistrementPreferences, EcritLEnregistrementUnEtLeMetEnVigueur) {
  EXPECT_TRUE(Enregistre());
  EXPECT_EQ(Fichier(), troisUns);
  EXPECT_EQ(EnVigueur(), troisUns);
  EXPECT_THAT(b.disque.journal(), ElementsAre("existe GLPREF.DAT", "écrit GLPREF.DAT 0+6"));
  EXPECT_THAT(b.messages.vus, IsEmpty());
}

TEST_F(EnregistrementPreferences, RouvreUnFichierInutilisableSansLeChercher) {
  b.module->Place(Donnees::GLPREF).reset();
  EXPECT_TRUE(Enregistre());
  EXPECT_THAT(b.disque.journal(), ElementsAre("ouvre GLPREF.DAT", "écrit GLPREF.DAT 0+6"));
  EXPECT_EQ(EnVigueur(), troisUns);
  EXPECT_NE(b.module->Place(Donnees::GLPREF), nullptr);
}

TEST_F(EnregistrementPreferences, UnFichierDisparuEstUneErreurDeDisque) {
  b.dossier.Supprime("GLPREF.DAT");
  EXPECT_FALSE(Enregistre());
  EXPECT_THAT(b.messages.vus, ElementsAre(Refus()));
  EXPECT_EQ(EnVigueur(), troisZeros);
  EXPECT_EQ(b.module->Place(Donnees::GLPREF), nullptr);
  EXPECT_FALSE(b.dossier.A("GLPREF.DAT"));
}

TEST_F(EnregistrementPreferences, LEssaiSuivantRecreeLeFichierDisparu) {
  b.dossier.Supprime("GLPREF.DAT");
  EXPECT_FALSE(Enregistre());
  EXPECT_TRUE(Enregistre());
  EXPECT_EQ(Fichier(), troisUns);
  EXPECT_EQ(EnVigueur(), troisUns);
}

TEST_F(EnregistrementPreferences, UneRechercheQuiEchoueValFichierDisparu) {
  b.disque.EchoueALAppel(1, Panne::entreeSortie);
  EXPECT_FALSE(Enregistre());
  EXPECT_THAT(b.messages.vus, ElementsAre(Refus()));
  EXPECT_EQ(Fichier(), troisZeros);
}

TEST_F(EnregistrementPreferences, UneEcritureQuiEchoueGardeLesAnciennesEtFermeLeFichier) {
  b.disque.EchoueALAppel(2, Panne::disquePlein);
  EXPECT_FALSE(Enregistre());
  EXPECT_THAT(b.messages.vus, ElementsAre(Refus()));
  EXPECT_EQ(EnVigueur(), troisZeros);
  EXPECT_EQ(b.module->Place(Donnees::GLPREF), nullptr);
}

TEST_F(EnregistrementPreferences, UneEcritureCoupeeNeMetRienEnVigueur) {
  b.disque.EchoueALAppel(2, Panne::disquePlein, Maniere::moitieEcrite);
  EXPECT_FALSE(Enregistre());
  EXPECT_EQ(EnVigueur(), troisZeros);
}

TEST_F(EnregistrementPreferences, UneOuvertureQuiEchoueNEcritRien) {
  b.module->Place(Donnees::GLPREF).reset();
  b.disque.EchoueSur("ouvre GLPREF.DAT", Panne::permissionRefusee);
  EXPECT_FALSE(Enregistre());
  EXPECT_THAT(b.disque.changements(), IsEmpty());
  EXPECT_THAT(b.messages.vus, ElementsAre(Refus()));
  EXPECT_EQ(EnVigueur(), troisZeros);
  EXPECT_EQ(b.module->Place(Donnees::GLPREF), nullptr);
}

TEST_F(EnregistrementPreferences, UneEcritureQuiEchoueApresReouvertureRefermeLeFichier) {
  b.module->Place(Donnees::GLPREF).reset();
  b.disque.EchoueSur("écrit GLPREF.DAT", Panne::disquePlein);
  EXPECT_FALSE(Enregistre());
  EXPECT_EQ(b.module->Place(Donnees::GLPREF), nullptr);
}

TEST_F(EnregistrementPreferences, LeDemarrageSuivantLesRetrouve) {
  EXPECT_TRUE(EnregistrePreferences(*b.module, {0, 1, 0}));
  b.Redemarre();
  EXPECT_EQ(EnVigueur(), std::string("\0\0\1\0\0\0", 6));
}

}  // namespace
}  // namespace gastrelle::essai
