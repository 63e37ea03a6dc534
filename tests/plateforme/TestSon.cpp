// The sound, as the system plays it or not: nobody may wait for it.

#include <filesystem>

#include <gtest/gtest.h>

#include "doublures/Bibliotheque.h"
#include "plateforme/AttenteDuSon.h"

namespace gastrelle::essai {
namespace {

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
