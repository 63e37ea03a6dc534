// What a folder of the disk holds, and what has reached the device.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "doublures/Entrees.h"
#include "doublures/Pannes.h"
#include "plateforme/Disque.h"
#include "plateforme/ErreurExecution.h"

namespace gastrelle::essai {
namespace {

namespace fs = std::filesystem;
using testing::ElementsAre;
using testing::IsEmpty;

class FichiersDUnDossier : public testing::Test {
 protected:
  FichiersDUnDossier() { fs::create_directory(dossier.chemin() / "D"); }

  [[nodiscard]] fs::path Place(const char* nom) const { return dossier.chemin() / nom; }

  DossierEssai dossier;
  DossierEssai ailleurs;
  Disque disque{dossier.chemin()};
};

TEST_F(FichiersDUnDossier, VidesNeSontRien) {
  EXPECT_THAT(disque.FichiersDe("D"), IsEmpty());
}

TEST_F(FichiersDUnDossier, SontDansLOrdreDeLeursOctets) {
  for (const char* nom : {"D/b", "D/a", "D/B", "D/\xc3\xa9", "D/a b", "D/.cache", "D/10", "D/9"}) {
    dossier.Ecrit(nom, "x");
  }
  EXPECT_THAT(disque.FichiersDe("D"),
              ElementsAre(".cache", "10", "9", "B", "a", "a b", "b", "\xc3\xa9"));
}

TEST_F(FichiersDUnDossier, NeSontNiSesDossiersNiCeQuIlsContiennent) {
  fs::create_directory(Place("D/dedans"));
  dossier.Ecrit("D/dedans/x", "x");
  dossier.Ecrit("D/y", "y");
  EXPECT_THAT(disque.FichiersDe("D"), ElementsAre("y"));
}

TEST_F(FichiersDUnDossier, ComptentLesLiensPourEuxMemes) {
  ailleurs.Ecrit("x", "x");
  fs::create_symlink(ailleurs.chemin() / "x", Place("D/fichier"));
  fs::create_directory_symlink(ailleurs.chemin(), Place("D/dossier"));
  fs::create_symlink("absent", Place("D/pendant"));
  fs::create_symlink("boucle", Place("D/boucle"));
  EXPECT_THAT(disque.FichiersDe("D"), ElementsAre("boucle", "dossier", "fichier", "pendant"));
}

TEST_F(FichiersDUnDossier, ComptentTubesEtPrises) {
  for (const Entree& entree : EntreesSpeciales()) {
    entree.pose(Place("D/x"));
    EXPECT_THAT(disque.FichiersDe("D"), ElementsAre("x")) << entree.nom;
    fs::remove(Place("D/x"));
  }
}

TEST_F(FichiersDUnDossier, AbsentEchouent) {
  EXPECT_EQ(PanneDe([&] { disque.FichiersDe("absent"); }), PanneDuSysteme(ENOENT));
}

TEST_F(FichiersDUnDossier, QuiEstUnFichierEchouent) {
  dossier.Ecrit("f", "x");
  EXPECT_EQ(PanneDe([&] { disque.FichiersDe("f"); }), PanneDuSysteme(ENOTDIR));
}

TEST_F(FichiersDUnDossier, UnLienSeSupprimeSansCeQuIlMontre) {
  ailleurs.Ecrit("x", "x");
  fs::create_directory_symlink(ailleurs.chemin(), Place("D/dossier"));
  for (const std::string& nom : disque.FichiersDe("D")) {
    disque.Supprime("D/" + nom);
  }
  disque.SupprimeDossier("D");
  EXPECT_TRUE(ailleurs.A("x"));
  EXPECT_FALSE(dossier.A("D"));
}

TEST_F(FichiersDUnDossier, UnFichierSynchroniseEstTelQuIlAEteEcrit) {
  const auto fichier = disque.Ouvre("X");
  fichier->Ecrit(0, "octets");
  fichier->Synchronise();
  fichier->Synchronise();
  EXPECT_EQ(dossier.Lit("X"), "octets");
  EXPECT_EQ(fichier->Longueur(), 6);
}

TEST_F(FichiersDUnDossier, UnFichierVideOuOuvertPourLireSeSynchroniseAussi) {
  disque.Ouvre("X")->Synchronise();
  disque.OuvrePourLire("X")->Synchronise();
  EXPECT_EQ(dossier.Lit("X"), "");
}

TEST_F(FichiersDUnDossier, LesNomsSeSynchronisentAussiOuLeSystemeNeLePeutPas) {
  EXPECT_NO_THROW(disque.SynchroniseNoms({}));
  EXPECT_NO_THROW(disque.SynchroniseNoms("D"));
  EXPECT_NO_THROW(disque.SynchroniseNoms("absent"));
  EXPECT_NO_THROW(Disque("/proc").SynchroniseNoms("self"));
}

}  // namespace
}  // namespace gastrelle::essai
