// What lies in the way of the cleaning: links, pipes, devices.

#include "doublures/Entrees.h"
#include "maintenance/coeur/ObstaclesAuNettoyage.h"

namespace gastrelle::essai {
namespace {

namespace fs = std::filesystem;

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

TEST_P(ProvisoireImpossible, UnLienVersRienEstDelieEtNeFaitRienDehors) {
  fs::create_symlink(ailleurs.chemin() / "absent", Place(GetParam()));
  AttendNettoye();
  EXPECT_FALSE(ailleurs.A("absent"));
}

TEST_F(ObstaclesAuNettoyage, UnFichierGardeAilleursParUnLienYResteTelQuel) {
  const std::string textes = b.dossier.Lit("GLR3.DAT");
  ailleurs.Ecrit("GLR3.DAT", textes);
  fs::remove(Place("GLR3.DAT"));
  fs::create_symlink(ailleurs.chemin() / "GLR3.DAT", Place("GLR3.DAT"));
  AttendNettoye();
  EXPECT_EQ(ailleurs.Lit("GLR3.DAT"), textes);
  EXPECT_FALSE(fs::is_symlink(Place("GLR3.DAT")));
}

}  // namespace
}  // namespace gastrelle::essai
