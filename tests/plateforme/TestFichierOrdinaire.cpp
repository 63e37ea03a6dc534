// Opening a file for who reads it by means of his own, and the program's own folder.

#include <filesystem>
#include <string>
#include <unistd.h>

#include <gtest/gtest.h>

#include "doublures/Bibliotheque.h"
#include "plateforme/DossierProgramme.h"
#include "plateforme/FichierOrdinaire.h"
#include "plateforme/TexteChemin.h"

namespace gastrelle::essai {
namespace {

TEST(FichierOrdinaire, SeLitParSonNumero) {
  const DossierEssai dossier;
  dossier.Ecrit("crème", "con\r\n\x1atenu");
  const int numero = OuvreFichierOrdinaire(dossier.chemin() / CheminDe("crème"));
  std::string octets(20, '#');
  const auto lus = ::read(numero, octets.data(), 20);
  ::close(numero);
  EXPECT_EQ(octets.substr(0, static_cast<std::size_t>(lus)), "con\r\n\x1atenu");
}

TEST(FichierOrdinaire, NEstNiUnDossierNiRien) {
  const DossierEssai dossier;
  EXPECT_EQ(OuvreFichierOrdinaire(dossier.chemin()), -1);
  EXPECT_EQ(OuvreFichierOrdinaire(dossier.chemin() / "absent"), -1);
}

TEST(DossierProgramme, EstCeluiDuProgrammeQuiTourne) {
  EXPECT_TRUE(std::filesystem::exists(DossierDuProgramme() / PROGRAMME_DU_COEUR));
}

}  // namespace
}  // namespace gastrelle::essai
