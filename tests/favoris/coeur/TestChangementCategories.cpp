// Adding and renaming categories: the bytes on file after each operation, the order of the writes,
// and what survives a failure at each of them.

#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "doublures/Depart.h"
#include "doublures/Pannes.h"
#include "favoris/coeur/CoeurFavoris.h"

namespace gastrelle::essai {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class ChangementDesCategories : public CoeurFavoris {};

TEST_F(ChangementDesCategories, AjouteDerriereLaDernierePuisCompte) {
  b.Demarre();
  AjouteCategorie(*b.module, "Artisans");
  EXPECT_THAT(b.disque.journal(), ElementsAre("existe GLFV1.DAT", "longueur GLFV1.DAT",
                                              "écrit GLFV1.DAT 520+130", "écrit GLFV1.DAT 0+130"));
  EXPECT_EQ(b.dossier.Lit("GLFV1.DAT").substr(520),
            "\xFF\xFF"
            "Artisans" +
                std::string(120, ' '));
  EXPECT_EQ(FicheCategorie(b, 1).actif, 4);
  EXPECT_EQ(b.module->bufCategorie.nbActifs(), 4);
  EXPECT_EQ(CategorieCourante(), "Artisans");
}

TEST_F(ChangementDesCategories, CoupeUnNomALaLargeurDeSonChamp) {
  b.Demarre();
  const std::string plein(128, 'a');
  AjouteCategorie(*b.module, plein);
  AjouteCategorie(*b.module, plein + "bcd");
  EXPECT_EQ(FicheCategorie(b, 5).nomFamille.brut(), plein);
  EXPECT_EQ(FicheCategorie(b, 6).nomFamille.brut(), plein);
  EXPECT_EQ(b.dossier.Lit("GLFV1.DAT").size(), 6U * 130U);
  RenommeCategorie(*b.module, 5, std::string(128, 'c') + "bcd");
  EXPECT_EQ(FicheCategorie(b, 5).nomFamille.brut(), std::string(128, 'c'));
  EXPECT_EQ(FicheCategorie(b, 6).nomFamille.brut(), plein);
}

TEST_F(ChangementDesCategories, VaALaFinMemeApresUneSuppression) {
  b.AjouteCategorie("Artisans");
  b.Demarre();
  SupprimeCategorie(*b.module, 5);
  AjouteCategorie(*b.module, "Boutiques");
  EXPECT_EQ(NomCategorie(b, 5), "Artisans");
  EXPECT_EQ(FicheCategorie(b, 5).actif, supprime);
  EXPECT_EQ(NomCategorie(b, 6), "Boutiques");
  EXPECT_EQ(FicheCategorie(b, 1).actif, 4);
}

TEST_F(ChangementDesCategories, EchoueQuandLeCompteNeTientPlus) {
  b.Demarre();
  b.module->bufCategorie.nbActifs() = 32766;
  AjouteCategorie(*b.module, "La dernière"_1252);
  EXPECT_EQ(FicheCategorie(b, 1).actif, 32767);
  EXPECT_EQ(PanneDe([&] { AjouteCategorie(*b.module, "Trop"); }), Panne::depassement);
  EXPECT_EQ(FicheCategorie(b, 1).actif, 32767);
  EXPECT_EQ(NomCategorie(b, 6), "Trop");
}

TEST_F(ChangementDesCategories, RenommeASaPlaceSansRienLireNiToucherLEnTete) {
  DemarreSurAffineur();
  const std::string avant = b.dossier.Lit("GLFV1.DAT");
  RenommeCategorie(*b.module, 2, "Caves");
  EXPECT_THAT(b.disque.journal(), ElementsAre("existe GLFV1.DAT", "écrit GLFV1.DAT 130+130"));
  RecFamille attendue;
  attendue.actif = vivant;
  attendue.nomFamille = "Caves";
  std::string octets = avant;
  octets.replace(130, 130, Octets(attendue));
  EXPECT_EQ(b.dossier.Lit("GLFV1.DAT"), octets);
  EXPECT_EQ(CategorieCourante(), "Caves");
  EXPECT_EQ(NomCourant(), "Affineur");
}

TEST_F(ChangementDesCategories, GardeLeResteDeLEnTete) {
  b.AjouteCategorie("Artisans");
  b.Demarre();
  const std::string avant = Entete<RecFamille>(b, "GLFV1.DAT");
  AjouteCategorie(*b.module, "Boutiques");
  EXPECT_EQ(Entete<RecFamille>(b, "GLFV1.DAT"), AvecCompte(avant, 5));
  SupprimeCategorie(*b.module, 5);
  EXPECT_EQ(Entete<RecFamille>(b, "GLFV1.DAT"), AvecCompte(avant, 4));
}

TEST_F(ChangementDesCategories, SansLeurFichierNEcriventRien) {
  DemarreSurAffineur();
  b.dossier.Supprime("GLFV1.DAT");
  EXPECT_EQ(PanneDe([&] { AjouteCategorie(*b.module, "x"); }), Panne::fichierIntrouvable);
  EXPECT_EQ(PanneDe([&] { RenommeCategorie(*b.module, 5, "x"); }), Panne::fichierIntrouvable);
  EXPECT_THAT(b.disque.journal(), ElementsAre("existe GLFV1.DAT", "existe GLFV1.DAT"));
  EXPECT_THAT(b.messages.vus, ElementsAre(NonTrouve(b, "GLFV1.DAT"), NonTrouve(b, "GLFV1.DAT")));
  EXPECT_EQ(CategorieCourante(), "Artisans");
}

// Neither asks for the favourites: they don't change with the name of their category.
TEST_F(ChangementDesCategories, NeDemandentNiLesFavorisNiLaReserve) {
  DemarreSurAffineur();
  b.dossier.Supprime("GLFV2.DAT");
  b.dossier.Supprime("GLFV3.DAT");
  AjouteCategorie(*b.module, "Boutiques");
  RenommeCategorie(*b.module, 5, "Magasins");
  EXPECT_EQ(NomCategorie(b, 5), "Magasins");
  EXPECT_THAT(b.messages.vus, IsEmpty());
}

// The flag, the count and the name are in the first half of what is written: half written reads as
// written.
TEST_F(ChangementDesCategories, UnAjoutQuiEchoueNeLaCompteJamaisAvantElle) {
  EchoueAChaqueEcriture(
      2, [](Bibliotheque& avec) { avec.GarnitFavoris(); },
      [](Bibliotheque& avec) { AjouteCategorie(*avec.module, "Artisans"); },
      [](const Bibliotheque& avec, std::size_t n, Maniere maniere) {
        const bool moitie = maniere == Maniere::moitieEcrite;
        EXPECT_EQ(avec.dossier.Lit("GLFV1.DAT").size(), n == 2 ? 650U : moitie ? 585U : 520U);
        EXPECT_EQ(FicheCategorie(avec, 1).actif, n == 2 && moitie ? 4 : 3);
        EXPECT_EQ(NomCategorie(avec, 4), "Catégorie 004"_1252);
      });
}

// A category cut short has no place of its own: the next one is written over it.
TEST_F(ChangementDesCategories, UnAjoutAMoitieFaitEstRecouvertParLeSuivant) {
  b.Demarre();
  b.disque.EchoueALaNiemeEcriture(1, Panne::disquePlein, Maniere::moitieEcrite);
  EXPECT_THROW(AjouteCategorie(*b.module, "Artisans"), ErreurExecution);
  AjouteCategorie(*b.module, "Boutiques");
  EXPECT_EQ(NomCategorie(b, 5), "Boutiques");
  EXPECT_EQ(b.dossier.Lit("GLFV1.DAT").size(), 650U);
  EXPECT_EQ(FicheCategorie(b, 1).actif, 4);
}

TEST_F(ChangementDesCategories, UnNouveauNomQuiEchoueLaisseLAncien) {
  EchoueAChaqueEcriture(
      1, GarnitAvecAffineur, [](Bibliotheque& avec) { RenommeCategorie(*avec.module, 5, "Caves"); },
      [](const Bibliotheque& avec, std::size_t /*n*/, Maniere maniere) {
        EXPECT_EQ(NomCategorie(avec, 5), maniere == Maniere::rienFait ? "Artisans" : "Caves");
        EXPECT_EQ(FicheCategorie(avec, 5).actif, vivant);
        EXPECT_EQ(FicheCategorie(avec, 1).actif, 4);
        EXPECT_EQ(avec.dossier.Lit("GLFV1.DAT").size(), 650U);
      });
}

}  // namespace
}  // namespace gastrelle::essai
