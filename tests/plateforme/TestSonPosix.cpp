// A sound that is a pipe, a socket or a device: nobody may wait for it.

#include <gtest/gtest.h>

#include "doublures/Bibliotheque.h"
#include "doublures/Entrees.h"
#include "plateforme/AttenteDuSon.h"

namespace gastrelle::essai {
namespace {

TEST(SonReel, NAttendNiTubeNiPriseNiPeripherique) {
  const DossierEssai dossier;
  SonSysteme son;
  for (const Entree& entree : EntreesSpeciales()) {
    entree.pose(dossier.chemin() / entree.nom);
    EXPECT_LT(Attente(son, dossier.chemin() / entree.nom), patience) << entree.nom;
  }
}

}  // namespace
}  // namespace gastrelle::essai
