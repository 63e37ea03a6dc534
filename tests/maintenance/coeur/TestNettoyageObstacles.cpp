// What lies in the way of the cleaning: copies of another time, folders, links, files left behind.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "doublures/Entrees.h"
#include "doublures/Pannes.h"
#include "maintenance/MaintenanceEssai.h"
#include "maintenance/Nettoyage.h"

namespace gastrelle::essai {
namespace {

namespace fs = std::filesystem;
using testing::Contains;
using testing::ElementsAre;
using testing::Not;
using testing::StartsWith;

class ObstaclesAuNettoyage : public testing::Test {
 protected:
  void SetUp() override {
    GarnitDePertes(b);
    b.Demarre();
    avant = LesQuatre(b.dossier);
    recettes = RecettesVivantes(b.dossier);
  }
  [[nodiscard]] fs::path Place(const char* nom) const { return b.dossier.chemin() / nom; }

  void AttendNettoye() {
    EXPECT_EQ(NettoieRecettes(*b.module), 3);
    EXPECT_EQ(RecettesVivantes(b.dossier), recettes);
    EXPECT_FALSE(fs::exists(fs::symlink_status(Place("TEMP"))));
  }
  /// It fails, the four files are what they were.
  void AttendIntact() {
    EXPECT_THROW(NettoieRecettes(*b.module), ErreurExecution);
    EXPECT_EQ(LesQuatre(b.dossier), avant);
  }
  /// It fails before anything is changed.
  void AttendRienTouche() {
    const auto contenu = Contenu(b.dossier.chemin());
    AttendIntact();
    EXPECT_EQ(Contenu(b.dossier.chemin()), contenu);
  }

  Bibliotheque b;
  DossierEssai ailleurs;
  std::array<std::string, 4> avant;
  std::vector<RecetteEntiere> recettes;
};

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

TEST_F(ObstaclesAuNettoyage, UnDossierDeCopiesQuiEstUnLienArreteSansRienToucherDehors) {
  ailleurs.Ecrit("GLR1.DAT", "à un autre");
  ailleurs.Ecrit("lettre", "à un autre");
  fs::create_directory_symlink(ailleurs.chemin(), Place("TEMP"));
  const auto dehors = Contenu(ailleurs.chemin());
  AttendRienTouche();
  EXPECT_EQ(Contenu(ailleurs.chemin()), dehors);
}

TEST_F(ObstaclesAuNettoyage, UnDossierDeCopiesQuiEstUnLienVersRienArreteAussi) {
  fs::create_symlink(ailleurs.chemin() / "absent", Place("TEMP"));
  AttendRienTouche();
  EXPECT_FALSE(ailleurs.A("absent"));
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

TEST_F(ObstaclesAuNettoyage, UnFichierProvisoireQuiEstUnLienEstDelieSansSuivreLeLien) {
  ailleurs.Ecrit("lettre", "à un autre");
  for (const char* nom : {"GLR1.tmp", "GLR2.tmp", "GLR3.tmp", "GLR4.tmp"}) {
    fs::create_symlink(ailleurs.chemin() / "lettre", Place(nom));
  }
  AttendNettoye();
  EXPECT_EQ(ailleurs.Lit("lettre"), "à un autre");
  for (const std::string& nom : nomsRecettes) {
    EXPECT_TRUE(fs::is_regular_file(fs::symlink_status(Place(nom.c_str())))) << nom;
  }
}

TEST_F(ObstaclesAuNettoyage, UnTubeOuUnPeripheriqueProvisoireEstDelie) {
  for (const Entree& entree : EntreesSpeciales()) {
    entree.pose(Place("GLR4.tmp"));
    AttendNettoye();
  }
}

class ProvisoireImpossible : public ObstaclesAuNettoyage,
                             public testing::WithParamInterface<const char*> {};

TEST_P(ProvisoireImpossible, UnDossierDeSonNomArreteAvantQueRienNeSoitEfface) {
  fs::create_directory(Place(GetParam()));
  AttendIntact();
  EXPECT_EQ(LesQuatre(b.dossier, "TEMP/"), avant);
  EXPECT_THAT(b.disque.changements(), Not(Contains("supprime GLR1.DAT")));
}

TEST_P(ProvisoireImpossible, UnLienVersRienEstDelieEtNeFaitRienDehors) {
  fs::create_symlink(ailleurs.chemin() / "absent", Place(GetParam()));
  AttendNettoye();
  EXPECT_FALSE(ailleurs.A("absent"));
}

INSTANTIATE_TEST_SUITE_P(PourChacun, ProvisoireImpossible,
                         testing::Values("GLR1.tmp", "GLR2.tmp", "GLR3.tmp", "GLR4.tmp"));

TEST_F(ObstaclesAuNettoyage, UnFichierGardeAilleursParUnLienYResteTelQuel) {
  const std::string textes = b.dossier.Lit("GLR3.DAT");
  ailleurs.Ecrit("GLR3.DAT", textes);
  fs::remove(Place("GLR3.DAT"));
  fs::create_symlink(ailleurs.chemin() / "GLR3.DAT", Place("GLR3.DAT"));
  AttendNettoye();
  EXPECT_EQ(ailleurs.Lit("GLR3.DAT"), textes);
  EXPECT_FALSE(fs::is_symlink(Place("GLR3.DAT")));
}

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
