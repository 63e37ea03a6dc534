// A document whose name is a link's, a pipe's or a device's.

#include <filesystem>

#include "doublures/Entrees.h"
#include "sortie/coeur/DocumentEnPanne.h"

namespace gastrelle::essai {
namespace {

TEST_P(DocumentEnPanne, UnLienDeSonNomLuiCedeLaPlaceEtSaCibleReste) {
  PourChaqueCommande([](Essai& essai) {
    const DossierEssai ailleurs;
    ailleurs.Ecrit("cible", "gardée");
    std::filesystem::remove(essai.dossier.chemin() / essai.nom);
    std::filesystem::create_symlink(ailleurs.chemin() / "cible",
                                    essai.dossier.chemin() / essai.nom);
    essai.Envoie();
    EXPECT_FALSE(std::filesystem::is_symlink(essai.dossier.chemin() / essai.nom));
    EXPECT_EQ(ailleurs.Lit("cible"), "gardée");
    essai.AttendReussite();
  });
}

TEST_P(DocumentEnPanne, UnLienQuiNeMeneARienNeMeneRienAilleurs) {
  PourChaqueCommande([](Essai& essai) {
    const DossierEssai ailleurs;
    std::filesystem::remove(essai.dossier.chemin() / essai.nom);
    std::filesystem::create_symlink(ailleurs.chemin() / "absente",
                                    essai.dossier.chemin() / essai.nom);
    essai.disque.EchoueALAppel(1, Panne::permissionRefusee);
    essai.Envoie();
    EXPECT_FALSE(ailleurs.A("absente"));
    essai.AttendEchec();
  });
}

TEST_P(DocumentEnPanne, CeQuiNEstPasUnFichierLuiCedeLaPlace) {
  for (const Entree& entree : EntreesSpeciales()) {
    SCOPED_TRACE(entree.nom);
    Essai essai(GetParam(), commandes[0]);
    std::filesystem::remove(essai.dossier.chemin() / essai.nom);
    entree.pose(essai.dossier.chemin() / essai.nom);
    essai.Envoie();
    ASSERT_TRUE(  // a pipe would never be read to its end
        std::filesystem::is_regular_file(symlink_status(essai.dossier.chemin() / essai.nom)));
    essai.AttendReussite();
  }
}

TEST_P(DocumentEnPanne, CeQuiNEstPasUnFichierEtNeCedePasNEstPasAttendu) {
  for (const Entree& entree : EntreesSpeciales()) {
    SCOPED_TRACE(entree.nom);
    Essai essai(GetParam(), commandes[0]);
    std::filesystem::remove(essai.dossier.chemin() / essai.nom);
    entree.pose(essai.dossier.chemin() / essai.nom);
    essai.disque.EchoueALAppel(1, Panne::permissionRefusee);
    essai.Envoie();
    essai.AttendEchec();
  }
}

}  // namespace
}  // namespace gastrelle::essai
