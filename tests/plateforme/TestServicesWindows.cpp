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

TEST(Association, NeLanceAucunProgramme) {
  const DossierEssai dossier;
  for (const char* nom : {"x.exe", "x.BAT", "x.cmd", "x.lnk", "x.vbs", "x.com"}) {
    dossier.Ecrit(nom, "MZ");
    EXPECT_EQ(AssociationSysteme().Ouvre(EnUtf8(dossier.chemin() / nom)), Ouverture::echec) << nom;
  }
}

TEST(Association, NePrendPasPourUnProgrammeUneAdresseQuiFinitCommeLui) {
  EXPECT_EQ(AssociationSysteme().Ouvre("gastrelle-sans-programme:anne@exemple.com"),
            Ouverture::aucuneAssociation);
}

TEST(Association, TrouveUnDocumentParSonAdresse) {
  const DossierEssai dossier("Ma cuisine d'été");
  dossier.Ecrit("page.gastrelle-sans-programme", "x");
  std::string adresse = "file:///";
  for (const char c : EnUtf8(dossier.chemin() / "page.gastrelle-sans-programme")) {
    adresse += c == '\\' ? std::string("/") : c == ' ' ? std::string("%20") : std::string(1, c);
  }
  EXPECT_EQ(AssociationSysteme().Ouvre(adresse + "#contact"), Ouverture::aucuneAssociation);
  EXPECT_EQ(AssociationSysteme().Ouvre("file://serveur/x.txt"), Ouverture::echec);
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
