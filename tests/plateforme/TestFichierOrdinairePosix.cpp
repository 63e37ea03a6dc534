// Opening what may be anything.

#include <filesystem>
#include <string>
#include <unistd.h>

#include <gtest/gtest.h>

#include "doublures/Bibliotheque.h"
#include "doublures/Entrees.h"
#include "plateforme/FichierOrdinaire.h"

namespace gastrelle::essai {
namespace {

namespace fs = std::filesystem;

TEST(FichierOrdinaire, SOuvreAussiAuBoutDUnLien) {
  const DossierEssai dossier;
  dossier.Ecrit("X", "contenu");
  fs::create_symlink("X", dossier.chemin() / "lien");
  for (const char* nom : {"X", "lien"}) {
    const int numero = OuvreFichierOrdinaire(dossier.chemin() / nom);
    char octets[7] = {};
    ASSERT_EQ(::read(numero, octets, sizeof octets), 7) << nom;
    EXPECT_EQ(std::string(octets, 7), "contenu") << nom;
    ::close(numero);
  }
}

TEST(FichierOrdinaire, RienDAutreNeSOuvreEtRienNEstAttendu) {
  const DossierEssai dossier;
  for (const Entree& entree : EntreesSpeciales()) {
    entree.pose(dossier.chemin() / entree.nom);
    EXPECT_EQ(OuvreFichierOrdinaire(dossier.chemin() / entree.nom), -1) << entree.nom;
  }
  EXPECT_EQ(OuvreFichierOrdinaire(dossier.chemin()), -1);
  EXPECT_EQ(OuvreFichierOrdinaire(dossier.chemin() / "absent"), -1);
}

}  // namespace
}  // namespace gastrelle::essai
