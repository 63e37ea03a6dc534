// What the folder on the disk of the machine takes for a harm, and what not.

#include <filesystem>
#include <fstream>
#include <stdexcept>

#include <gtest/gtest.h>

#include "fuzz/DossierReel.h"

namespace gastrelle::essai {
namespace {

namespace fs = std::filesystem;

class SurveillanceDuDossier : public testing::Test {
 protected:
  [[nodiscard]] fs::path dedans() const { return dossier.chemin(); }
  [[nodiscard]] fs::path dehors() const { return dedans().parent_path() / "dehors"; }
  void Pose(const char* nom, Intrus intrus) { dossier.Pose(Glisse(nom, intrus)); }
  void Ecrit(const std::string& nom) { dossier.disque().Ouvre(nom)->Ecrit(0, "programme"); }

  DossierReel dossier;
};

TEST_F(SurveillanceDuDossier, LesNomsDuProgrammeSontPermis) {
  dossier.Pose({});
  dossier.disque().CreeDossier("SAUVE");
  dossier.disque().CreeDossier("IMAGE");
  dossier.disque().CreeDossier("TEMP");
  for (const char* nom :
       {"GLR1.DAT", "GLPREF.DAT", "SAUVE/GLR4.DAT", "GLR4.tmp", "TEMP/GLR1.DAT"}) {
    Ecrit(nom);
  }
  EXPECT_NO_THROW(dossier.Verifie());
}

TEST_F(SurveillanceDuDossier, UnNomProvisoireLaisseEstDit) {
  dossier.Pose({});
  for (const char* nom : {"GLR1.DAT~", "GLR1.DAT.a7", "SAUVE/GLF1.DAT", "GLF1.tmp"}) {
    dossier.disque().CreeDossier("SAUVE");
    Ecrit(nom);
    EXPECT_THROW(dossier.Verifie(), std::logic_error) << nom;
    fs::remove_all(dedans() / nom);
    fs::remove(dedans() / "SAUVE");
  }
}

TEST_F(SurveillanceDuDossier, UnFichierEcritParUnLienEstDit) {
  Pose("GLR1.DAT~", Intrus::lienFichier);
  EXPECT_NO_THROW(dossier.Verifie());
  Ecrit("GLR1.DAT~");
  EXPECT_THROW(dossier.Verifie(), std::logic_error);
}

TEST_F(SurveillanceDuDossier, UnFichierCreeParUnLienEstDit) {
  Pose("GLPREF.DAT", Intrus::lienPendant);
  std::ofstream(dedans() / "GLPREF.DAT") << "x";
  EXPECT_THROW(dossier.Verifie(), std::logic_error);
}

TEST_F(SurveillanceDuDossier, UnNomProvisoirePrisEstDit) {
  for (const Intrus intrus : {Intrus::tube, Intrus::prise, Intrus::lienSurSoi}) {
    Pose("GLR1.DAT~", intrus);
    EXPECT_NO_THROW(dossier.Verifie());
    fs::remove(dedans() / "GLR1.DAT~");
    EXPECT_THROW(dossier.Verifie(), std::logic_error);
  }
}

TEST_F(SurveillanceDuDossier, UnFichierDeDonneesGardeAilleursYEstEcrit) {
  Ecrit("GLMC.DAT");
  Pose("GLMC.DAT", Intrus::lienFichier);
  EXPECT_EQ(dossier.disque().Ouvre("GLMC.DAT")->Longueur(), 9);
  dossier.disque().Ouvre("GLMC.DAT")->Ecrit(9, " ailleurs");
  EXPECT_TRUE(fs::is_symlink(dedans() / "GLMC.DAT"));
  EXPECT_NO_THROW(dossier.Verifie());
}

TEST_F(SurveillanceDuDossier, UneSauvegardeGardeeAilleursYEstEcriteEtRienDAutre) {
  Pose("SAUVE", Intrus::lienDossier);
  Ecrit("SAUVE/GLR2.DAT");
  EXPECT_NO_THROW(dossier.Verifie());
  Ecrit("SAUVE/GLR2.DAT~");
  EXPECT_THROW(dossier.Verifie(), std::logic_error);
}

TEST_F(SurveillanceDuDossier, ChaqueIntrusEstLaSousChaqueNom) {
  for (std::size_t i = 0; i < nombreIntrus; ++i) {
    for (const std::string& nom : NomsDuDossier()) {
      DossierReel autre;
      autre.Pose(Glisse(nom, static_cast<Intrus>(i)));
      EXPECT_TRUE(fs::exists(fs::symlink_status(fs::path(autre.chemin()) / nom)))
          << nomsIntrus[i] << " : " << nom;
    }
  }
}

}  // namespace
}  // namespace gastrelle::essai
