// The sound, as the system plays it or not: nobody may wait for it.

#include <chrono>
#include <filesystem>

#include <gtest/gtest.h>

#include "doublures/Bibliotheque.h"
#include "doublures/Entrees.h"
#include "plateforme/Son.h"

namespace gastrelle::essai {
namespace {

/// Far more than a sound takes to begin, far less than a pipe takes that nobody writes to.
constexpr std::chrono::seconds patience{5};

/// How long the program is held up by a sound.
std::chrono::steady_clock::duration Attente(Son& son, const std::filesystem::path& fichier) {
  const auto debut = std::chrono::steady_clock::now();
  son.Joue(fichier);
  return std::chrono::steady_clock::now() - debut;
}

TEST(SonReel, NAttendNiTubeNiPriseNiPeripherique) {
  const DossierEssai dossier;
  SonSysteme son;
  for (const Entree& entree : EntreesSpeciales()) {
    entree.pose(dossier.chemin() / entree.nom);
    EXPECT_LT(Attente(son, dossier.chemin() / entree.nom), patience) << entree.nom;
  }
}

TEST(SonReel, SeTaitQuandLeFichierManqueOuNEstPasUnSon) {
  const DossierEssai dossier;
  dossier.Ecrit("Exclamation", "pas un son");
  SonSysteme son;
  for (const auto& fichier :
       {dossier.chemin() / "absent", dossier.chemin(), dossier.chemin() / "Exclamation"}) {
    EXPECT_LT(Attente(son, fichier), patience) << fichier;
  }
}

}  // namespace
}  // namespace gastrelle::essai
