// What the other services answer where the system has its own ways: what is opened by association,
// the limits, the demands to stop.

#include <string>

#include <gtest/gtest.h>

#include "doublures/Bibliotheque.h"
#include "plateforme/Association.h"
#include "plateforme/Clavier.h"
#include "plateforme/Contraintes.h"
#include "plateforme/DemandeArret.h"
#include "plateforme/TexteChemin.h"

namespace gastrelle::essai {
namespace {

TEST(Association, DitQuAucunProgrammeNOuvreUnGenreInconnu) {
  const DossierEssai dossier;
  dossier.Ecrit("recette.gastrelle-sans-programme", "x");
  EXPECT_EQ(
      AssociationSysteme().Ouvre(EnUtf8(dossier.chemin() / "recette.gastrelle-sans-programme")),
      Ouverture::aucuneAssociation);
}

TEST(Association, NOuvreNiTexteQuelconqueNiCheminQuiDependDUnDossier) {
  for (const char* cible : {"", "recette.txt", "\\recette.txt", "c:recette.txt", "IMAGE\\x.jpg"}) {
    EXPECT_EQ(AssociationSysteme().Ouvre(cible), Ouverture::echec) << cible;
  }
  EXPECT_EQ(AssociationSysteme().Ouvre(std::string("C:\\x\0.txt", 9)), Ouverture::echec);
}

TEST(Contraintes, LesFichiersPermisSontTousCeuxQuOnDemande) {
  EXPECT_EQ(FichiersPermis(64), 64);
}

TEST(DemandeArret, NeSeLitPasDUnDescripteur) {
  EXPECT_LT(DemandeArret().descripteur(), 0);
}

TEST(Clavier, DitSesVerrous) {
  EXPECT_TRUE(ClavierSysteme().Lit().has_value());
}

}  // namespace
}  // namespace gastrelle::essai
