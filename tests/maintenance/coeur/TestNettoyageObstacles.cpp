// What lies in the way of the cleaning: copies of another time, folders, links, files left behind.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "doublures/Pannes.h"
#include "maintenance/coeur/ObstaclesAuNettoyage.h"

namespace gastrelle::essai {
namespace {

namespace fs = std::filesystem;
using testing::Contains;
using testing::ElementsAre;
using testing::Not;
using testing::StartsWith;

TEST_F(ObstaclesAuNettoyage, UnDossierDeCopiesVideEstOteEtRefait) {
  fs::create_directory(Place("TEMP"));
  AttendNettoye();
  const auto changements = b.disque.changements();
  EXPECT_THAT(std::vector(changements.begin(), changements.begin() + 3),
              ElementsAre("enlève TEMP", "crée TEMP", "copie GLR1.DAT TEMP/GLR1.DAT"));
}

TEST_F(ObstaclesAuNettoyage, UnDossierDeCopiesQuiContientUnFichierArreteToutAvantLePremierPas) {
  fs::create_directory(Place("TEMP"));
  b.dossier.Ecrit("TEMP/GLR2.DAT", "des recettes d'avant");
  b.dossier.Ecrit("GLR3.tmp", "des textes d'avant");
  AttendRienTouche();
}

TEST_F(ObstaclesAuNettoyage, UnDossierDeCopiesQuiContientUnDossierArreteAussi) {
  fs::create_directories(Place("TEMP/autre"));
  AttendRienTouche();
}

TEST_F(ObstaclesAuNettoyage, UnFichierDuNomDuDossierArreteAussi) {
  b.dossier.Ecrit("TEMP", "un fichier");
  AttendRienTouche();
}

TEST_F(ObstaclesAuNettoyage, UnePanneDeLaRechercheDuDossierVautDossierAbsent) {
  b.disque.EchoueSur("dossier? TEMP", Panne::entreeSortie);
  AttendNettoye();
}

TEST_F(ObstaclesAuNettoyage, DesFichiersProvisoiresOubliesSontSupprimesAvantDEtreRefaits) {
  for (const char* nom : {"GLR1.tmp", "GLR2.tmp", "GLR3.tmp", "GLR4.tmp"}) {
    b.dossier.Ecrit(nom, std::string(100'000, 'x'));
  }
  AttendNettoye();
  const std::vector<std::string> journal = b.disque.journal();
  for (const std::string nom : {"GLR1.tmp", "GLR2.tmp", "GLR3.tmp", "GLR4.tmp"}) {
    const auto ote = std::find(journal.begin(), journal.end(), "supprime " + nom);
    ASSERT_NE(ote, journal.end()) << nom;
    EXPECT_EQ(*(ote + 1), "crée " + nom);
    EXPECT_FALSE(b.dossier.A(nom));
  }
  EXPECT_LT(b.dossier.Lit("GLR3.DAT").size(), 100U);
}

TEST_P(ProvisoireImpossible, UnDossierDeSonNomArreteAvantQueRienNeSoitEfface) {
  fs::create_directory(Place(GetParam()));
  AttendIntact();
  EXPECT_EQ(LesQuatre(b.dossier, "TEMP/"), avant);
  EXPECT_THAT(b.disque.changements(), Not(Contains("supprime GLR1.DAT")));
}

INSTANTIATE_TEST_SUITE_P(PourChacun, ProvisoireImpossible,
                         testing::Values("GLR1.tmp", "GLR2.tmp", "GLR3.tmp", "GLR4.tmp"));

TEST_F(ObstaclesAuNettoyage, CeQuiVientDansLeDossierDesCopiesPendantCeTempsEnSortAussi) {
  b.disque.pendant = [&](const std::string& ligne) {
    if (ligne == "énumère TEMP") {
      b.dossier.Ecrit("TEMP/autre", "x");
    }
  };
  AttendNettoye();
}

TEST_F(ObstaclesAuNettoyage, DesCopiesQuiNeSOtentPasRestentSansUnMot) {
  for (const char* debut : {"énumère TEMP", "supprime TEMP/GLR2.DAT", "enlève TEMP"}) {
    b.disque.EchoueSur(debut, Panne::permissionRefusee);
    EXPECT_EQ(NettoieRecettes(*b.module), 3) << debut;
    EXPECT_EQ(RecettesVivantes(b.dossier), recettes);
    EXPECT_TRUE(b.dossier.A("TEMP"));
    b.disque.Guerit();
    b.dossier.Supprime("TEMP");
  }
}

TEST_F(ObstaclesAuNettoyage, DesCopiesQuiNeSOuvrentPlusArretentAvantDeRebatir) {
  b.disque.pendant = [&](const std::string& ligne) {
    if (ligne == "copie GLR4.DAT TEMP/GLR4.DAT") {
      b.dossier.Ecrit("GLR1.DAT", std::string(260, 'x'));
    }
  };
  EXPECT_EQ(PanneDe([&] { NettoieRecettes(*b.module); }), Panne::fichierIntrouvable);
  EXPECT_THAT(b.disque.changements(), Not(Contains(StartsWith("écrit"))));
  EXPECT_EQ(LesQuatre(b.dossier, "TEMP/"), avant);
}

}  // namespace
}  // namespace gastrelle::essai
