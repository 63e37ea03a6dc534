// An emptying or a reinitialising that is killed, or fails, at any of its calls: where the recipes
// are, and the way back.

#include <algorithm>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "accidents/Secours.h"
#include "accidents/coeur/Deroulement.h"
#include "doublures/Pannes.h"

namespace gastrelle::essai {
namespace {

using testing::ElementsAre;

/// The calls whose failure nobody is told: what is old and in the way is deleted if it can be.
const std::vector<std::string> muets{
    "supprime GLR1.tmp",       "supprime GLR2.tmp",       "supprime GLR3.tmp",
    "supprime GLR4.tmp",       "supprime GLR1.tmp",       "supprime GLR2.tmp",
    "supprime GLR3.tmp",       "supprime GLR4.tmp",       "supprime SAUVE/GLR1.DAT",
    "supprime SAUVE/GLR2.DAT", "supprime SAUVE/GLR3.DAT", "supprime SAUVE/GLR4.DAT"};

const auto issues = ElementsAre("Fichier GLR1.stp: anciennes", "Fichier GLR2.stp: anciennes",
                                "Fichier GLR3.stp: anciennes", "Fichier GLR4.stp: anciennes",
                                "fatal: anciennes", "rien: neuves");

const auto retours = ElementsAre("anciennes", "neuves dès supprime GLR2.tmp");

TEST(EffacementTue, LaisseToujoursLesRecettesEntieresQuelquePart) {
  const BilanDesMorts bilan = TueePartout(Vide);
  EXPECT_THAT(bilan.etats,
              ElementsAre(".DAT", ".DAT/.tmp dès supprime GLR2.tmp", ".tmp dès ouvre GLR1.DAT",
                          ".tmp, neuves dès la moitié de écrit GLR4.DAT 0+18",
                          "neuves dès supprime GLR2.tmp"));
  EXPECT_THAT(bilan.retours, retours);
}

TEST(EffacementTue, SeRattrapeAussiApresUneSoireeDeProgramme) {
  EXPECT_THAT(TueePartout(Vide, Entretemps::soiree).retours, retours);
}

TEST(EffacementQuiEchoue, LeDitTantQueLesAnciennesRecettesSontLa) {
  const BilanDesEchecs bilan = EchoueePartout(Vide);
  EXPECT_THAT(bilan.issues, issues);
  EXPECT_EQ(bilan.muets, muets);
}

TEST(EffacementQuiEchoue, SeRattrapeAussiApresUneSoireeDeProgramme) {
  EXPECT_THAT(EchoueePartout(Vide, Entretemps::soiree).issues, issues);
}

TEST(ReinitialisationTuee, LaisseToujoursLesRecettesEntieresQuelquePart) {
  const BilanDesMorts bilan = TueePartout(Reinitialise);
  EXPECT_THAT(
      bilan.etats,
      ElementsAre(".DAT", ".DAT/.tmp dès supprime GLR2.tmp", ".tmp dès copie GLR1.stp GLR1.DAT",
                  ".tmp, neuves dès ouvre GLR4.DAT", "neuves dès supprime GLR2.tmp"));
  EXPECT_THAT(bilan.retours, retours);
}

TEST(ReinitialisationTuee, SeRattrapeAussiApresUneSoireeDeProgramme) {
  EXPECT_THAT(TueePartout(Reinitialise, Entretemps::soiree).retours, retours);
}

TEST(ReinitialisationQuiEchoue, LeDitTantQueLesAnciennesRecettesSontLa) {
  const BilanDesEchecs bilan = EchoueePartout(Reinitialise);
  EXPECT_THAT(bilan.issues, issues);
  EXPECT_EQ(bilan.muets, muets);
}

TEST(ReinitialisationQuiEchoue, SeRattrapeAussiApresUneSoireeDeProgramme) {
  EXPECT_THAT(EchoueePartout(Reinitialise, Entretemps::soiree).issues, issues);
}

// A file that can't be put aside: the others get their names back.

DisqueEssai& DisqueDe(Module1& module) {
  return static_cast<DisqueEssai&>(module.services.disque);
}

void VideMalgreGLR4(Module1& module) {
  DisqueDe(module).EchoueSur("renomme GLR4.DAT", Panne::accesFichier);
  Vide(module);
}

TEST(RemiseEnPlaceTuee, SeRattrape) {
  EXPECT_THAT(TueePartout(VideMalgreGLR4).retours, ElementsAre("anciennes"));
}

TEST(RemiseEnPlaceTuee, SeRattrapeAussiApresUneSoireeDeProgramme) {
  EXPECT_THAT(TueePartout(VideMalgreGLR4, Entretemps::soiree).retours, ElementsAre("anciennes"));
}

// One of them can't get its name back either.
class RemiseEnPlaceManquee : public testing::Test {
 protected:
  void EchoueARendre(const std::string& lignes) {
    b.disque.EchoueSur("renomme GLR4.DAT", Panne::accesFichier);
    b.disque.pendant = [this, lignes](const std::string& ligne) {
      if (ligne.starts_with("renomme GLR3.tmp")) {
        b.disque.EchoueSur(lignes, Panne::accesFichier);
      }
    };
    EXPECT_EQ(FinDe([&] { Vide(*b.module); }), 1);
    b.disque.pendant = {};
    b.disque.Guerit();
  }

  BibliothequeEnUsage b;
};

TEST_F(RemiseEnPlaceManquee, SeRattrapeParLesNomsQuiManquent) {
  EchoueARendre("renomme GLR2.tmp");
  EXPECT_FALSE(b.dossier.A("GLR2.DAT"));
  EXPECT_FALSE(b.dossier.A("GLR1.tmp"));
  EXPECT_EQ(SecourtEtRetrouve(b, {}), "anciennes");
}

TEST_F(RemiseEnPlaceManquee, DeTousSeRattrapeAussiApresUneSoireeDeProgramme) {
  EchoueARendre("renomme GLR");
  PasseUneSoiree(b);
  EXPECT_EQ(SecourtEtRetrouve(b, {}), "anciennes");
}

// The names alone don't tell this one from an emptying whose tidying was cut: whoever remembers the
// fatal message gives the .tmp file its name.
TEST_F(RemiseEnPlaceManquee, ApresUneSoireeSeRattrapeParQuiSeSouvientDuMessage) {
  EchoueARendre("renomme GLR2.tmp");
  PasseUneSoiree(b);
  EXPECT_EQ(RetourPour(NomsPresents(b.dossier.chemin())), Retour::datTelsQuels);
  Revient(b.dossier.chemin(), Retour::tousLesTmp);
  b.Redemarre();
  EXPECT_EQ(b.Recettes(), b.avant);
}

// What an older accident left under the names that are needed.
class RemplacementSurDesRestes : public testing::TestWithParam<const char*> {
 protected:
  RemplacementSurDesRestes() {
    for (const char* nom : {"GLR1.tmp", "GLR2.tmp", "GLR3.tmp", "GLR4.tmp"}) {
      b.dossier.Ecrit(nom, std::string(3000, 'x'));
    }
  }

  /// Dies before the call of that line.
  void MeurtAvant(const std::string& ligne) {
    BibliothequeEnUsage modele;
    Vide(*modele.module);
    const auto coups = CoupsDe(modele.disque.journal());
    const auto coup = std::find_if(coups.begin(), coups.end(),
                                   [&](const Coup& celui) { return celui.ligne == ligne; });
    ASSERT_NE(coup, coups.end());
    Tue(b.disque, *coup, [&] { Vide(*b.module); });
  }

  BibliothequeEnUsage b;
};

TEST_F(RemplacementSurDesRestes, LesEfface) {
  Vide(*b.module);
  for (const char* nom : {"GLR1.tmp", "GLR2.tmp", "GLR3.tmp", "GLR4.tmp"}) {
    EXPECT_FALSE(b.dossier.A(nom)) << nom;
  }
  EXPECT_EQ(b.Recettes().recettes.size(), 1U);
}

TEST_P(RemplacementSurDesRestes, TueSeRattrapeSansEux) {
  MeurtAvant(GetParam());
  EXPECT_EQ(SecourtEtRetrouve(b, {}), "anciennes");
}

// After an evening the missing files are there again, as the factory made them, and the old .tmp
// files can't be told from those of the accident: the backup copy of the evening before is left.
TEST_P(RemplacementSurDesRestes, TueApresUneSoireeSeRattrapeParLaSauvegardeDAvant) {
  const auto sauve = b.dossier.chemin() / "SAUVE";
  MeurtAvant(GetParam());
  const DossierEssai ailleurs;
  std::filesystem::copy(sauve, ailleurs.chemin() / "SAUVE");
  PasseUneSoiree(b);
  std::filesystem::remove_all(sauve);
  std::filesystem::copy(ailleurs.chemin() / "SAUVE", sauve);
  Revient(b.dossier.chemin(), Retour::quatreDeSauve);
  b.Redemarre();
  EXPECT_EQ(b.Recettes().recettes.size() + 1, b.avant.recettes.size());
}

INSTANTIATE_TEST_SUITE_P(EnRoute, RemplacementSurDesRestes,
                         testing::Values("renomme GLR1.DAT GLR1.tmp", "supprime GLR2.tmp",
                                         "supprime GLR3.tmp", "supprime GLR4.tmp",
                                         "renomme GLR4.DAT GLR4.tmp"));

}  // namespace
}  // namespace gastrelle::essai
