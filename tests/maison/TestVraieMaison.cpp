// The checks on this very house.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "maison/Arbre.h"
#include "maison/Maison.h"

namespace gastrelle::essai {
namespace {

using testing::IsEmpty;

const std::filesystem::path racine = DOSSIER_SOURCES;

TEST(VraieMaison, SesQuatreDossiersSontLus) {
  for (const char* dossier : {"src", "usine", "tests", "bancs"}) {
    EXPECT_THAT(Sources(racine, dossier), testing::Not(IsEmpty())) << dossier;
  }
}

TEST(VraieMaison, AucunEtageNInclutUnEtagePlusHaut) {
  EXPECT_THAT(IncluantPlusHaut(racine), IsEmpty());
}

TEST(VraieMaison, LesPiecesVoisinesNeSIncluentPas) {
  EXPECT_THAT(PiecesQuiSIncluent(racine), IsEmpty());
}

TEST(VraieMaison, LesControlesNeConnaissentAucunCatalogue) {
  EXPECT_THAT(ControlesAvecCatalogue(racine), IsEmpty());
}

TEST(VraieMaison, LesFenetresNeNommentAucunFichier) {
  EXPECT_THAT(FenetresNommantUnFichier(racine), IsEmpty());
}

TEST(VraieMaison, QtResteAuDessusDuCoeur) {
  EXPECT_THAT(QtSousLesFenetres(racine), IsEmpty());
}

TEST(VraieMaison, LesInclusionsNeTournentPasEnRond) {
  EXPECT_THAT(Cycles(racine), IsEmpty());
}

TEST(VraieMaison, LesFichiersRestentCourts) {
  EXPECT_THAT(TropLongs(racine), IsEmpty());
}

TEST(VraieMaison, RienNEstLaisseInacheve) {
  EXPECT_THAT(Inacheves(racine), IsEmpty());
}

TEST(VraieMaison, ToutesLesSourcesSontCompilees) {
  EXPECT_THAT(NonCompiles(racine), IsEmpty());
}

}  // namespace
}  // namespace gastrelle::essai
