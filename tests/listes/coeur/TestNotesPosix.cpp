// The file of the notes where its name is a link, or isn't a file's.

#include <filesystem>

#include "doublures/Entrees.h"
#include "doublures/Pannes.h"
#include "listes/coeur/CoeurNotes.h"

namespace gastrelle::essai {
namespace {

namespace fs = std::filesystem;

TEST_F(Notes, SontRefuseesDeCeQuiNEstPasUnFichierSansAttendrePersonne) {
  for (const Entree& entree : EntreesSpeciales()) {
    const fs::path chemin = b.dossier.chemin() / "MesNotes.txt";
    entree.pose(chemin);
    EXPECT_EQ(PanneDe([&] { static_cast<void>(LitNotes(*b.module)); }), Panne::accesFichier)
        << entree.nom;
    EXPECT_EQ(Ecrites("Neuf"), "Neuf\r\n") << entree.nom;
    fs::remove(chemin);
  }
}

TEST_F(Notes, SeLisentAuBoutDUnLienEtSEcriventASaPlace) {
  const DossierEssai ailleurs;
  ailleurs.Ecrit("notes", "Ailleurs\r\n");
  const fs::path chemin = b.dossier.chemin() / "MesNotes.txt";
  fs::create_symlink(ailleurs.chemin() / "notes", chemin);
  EXPECT_EQ(LitNotes(*b.module), "Ailleurs");
  EXPECT_EQ(Ecrites("Ici"), "Ici\r\n");
  EXPECT_FALSE(fs::is_symlink(chemin));
  EXPECT_EQ(ailleurs.Lit("notes"), "Ailleurs\r\n");
}

TEST_F(Notes, NeSuiventPasUnLienQuiNeMeneNullePart) {
  const DossierEssai ailleurs;
  fs::create_symlink(ailleurs.chemin() / "absent", b.dossier.chemin() / "MesNotes.txt");
  EXPECT_EQ(LitNotes(*b.module), "");
  EXPECT_EQ(Ecrites("Ici"), "Ici\r\n");
  EXPECT_FALSE(ailleurs.A("absent"));
}

}  // namespace
}  // namespace gastrelle::essai
