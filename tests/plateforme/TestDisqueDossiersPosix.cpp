// What a folder of the disk holds beside files: links, pipes, sockets.

#include <gmock/gmock.h>

#include "doublures/Entrees.h"
#include "doublures/Pannes.h"
#include "plateforme/ErreurExecution.h"
#include "plateforme/FichiersDUnDossier.h"

namespace gastrelle::essai {
namespace {

namespace fs = std::filesystem;
using testing::ElementsAre;

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

TEST_F(FichiersDUnDossier, LesNomsSeSynchronisentAussiOuLeSystemeNeLePeutPas) {
  EXPECT_NO_THROW(disque.SynchroniseNoms({}));
  EXPECT_NO_THROW(disque.SynchroniseNoms("D"));
  EXPECT_NO_THROW(disque.SynchroniseNoms("absent"));
  EXPECT_NO_THROW(Disque("/proc").SynchroniseNoms("self"));
}

}  // namespace
}  // namespace gastrelle::essai
