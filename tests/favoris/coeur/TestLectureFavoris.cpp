// Listing the categories and the favourites: what the scans see and repair, and what they leave in
// the working records.

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

class LectureDesCategories : public CoeurFavoris {};

TEST_F(LectureDesCategories, SontListeesVivantesDansLOrdreDesFiches) {
  b.AjouteCategorie("  Artisans ");
  b.Demarre();
  EXPECT_THAT(
      ListeCategories(*b.module),
      ElementsAre(EntreeListe{std::string("Catégorie 002"_1252), 2},
                  EntreeListe{std::string("Catégorie 003"_1252), 3},
                  EntreeListe{std::string("Catégorie 004"_1252), 4}, EntreeListe{"Artisans", 5}));
  EXPECT_THAT(b.disque.journal(), ElementsAre("longueur GLFV1.DAT", "lit GLFV1.DAT 130+520"));
}

TEST_F(LectureDesCategories, SontSauteesSupprimees) {
  b.AjouteCategorie("Artisans");
  b.AjouteCategorie("Boutiques");
  b.Demarre();
  SupprimeCategorie(*b.module, 5);
  const Liste categories = ListeCategories(*b.module);
  EXPECT_EQ(categories.size(), 4U);
  EXPECT_EQ(categories.back(), (EntreeListe{"Boutiques", 6}));
}

TEST_F(LectureDesCategories, NeViventQuAMoinsUn) {
  b.AjouteCategorie("Artisans");
  b.Demarre();
  RecFamille categorie = FicheCategorie(b, 5);
  categorie.actif = 1;
  b.module->bufCategorie.Ecrit(5, categorie);
  EXPECT_EQ(ListeCategories(*b.module).size(), 3U);
}

TEST_F(LectureDesCategories, SArretentAuCompteDeLEnTete) {
  b.AjouteCategorie("Artisans");
  PoseCompte(b, "GLFV1.stp", 3);
  b.Demarre();
  EXPECT_EQ(ListeCategories(*b.module).size(), 3U);
  EXPECT_EQ(CategorieCourante(), "Catégorie 004"_1252);
  EXPECT_EQ(b.module->bufCategorie.nbActifs(), 3);
  EXPECT_THAT(b.disque.changements(), IsEmpty());
}

// Nothing repairs their count: the list ends with the file, and the header stays as it is.
TEST_F(LectureDesCategories, FinissentSansRienDireQuandLEnTeteCompteTrop) {
  PoseCompte(b, "GLFV1.stp", 32767);
  b.Demarre();
  EXPECT_EQ(ListeCategories(*b.module).size(), 3U);
  EXPECT_EQ(b.module->bufCategorie.nbActifs(), 32767);
  EXPECT_EQ(FicheCategorie(b, 1).actif, 32767);
  EXPECT_THAT(b.disque.changements(), IsEmpty());
  EXPECT_THAT(b.messages.vus, IsEmpty());
}

TEST_F(LectureDesCategories, LaissentLaDerniereLueDansLaFicheDeTravail) {
  b.AjouteCategorie("Artisans");
  b.Demarre();
  b.module->bufCategorie.LitCourant(2);
  static_cast<void>(ListeCategories(*b.module));
  EXPECT_EQ(CategorieCourante(), "Artisans");
}

TEST_F(LectureDesCategories, SeListentSansQueLeurFichierSoitDemande) {
  b.Demarre();
  b.dossier.Supprime("GLFV1.DAT");
  EXPECT_EQ(ListeCategories(*b.module).size(), 3U);
  EXPECT_THAT(b.messages.vus, IsEmpty());
}

TEST_F(LectureDesCategories, NeSontAucunesDansUnFichierReduitASonEnTete) {
  b.Demarre();
  b.dossier.Ecrit("GLFV1.DAT", b.dossier.Lit("GLFV1.DAT").substr(0, 130));
  EXPECT_THAT(ListeCategories(*b.module), IsEmpty());
  EXPECT_EQ(b.module->bufCategorie.nbActifs(), 3);
}

TEST_F(LectureDesCategories, EchouentSurUneLectureQuiEchoue) {
  b.Demarre();
  b.disque.EchoueSur("lit GLFV1.DAT", Panne::entreeSortie);
  EXPECT_EQ(PanneDe([&] { static_cast<void>(ListeCategories(*b.module)); }), Panne::entreeSortie);
}

class LectureDesFavoris : public CoeurFavoris {};

TEST_F(LectureDesFavoris, SontListesVivantsDansLOrdreDesFiches) {
  b.AjouteFavori(Favori("  Affineur "));
  b.Demarre();
  const Liste favoris = ListeFavoris(*b.module);
  ASSERT_EQ(favoris.size(), 15U);
  EXPECT_EQ(favoris.front(), (EntreeListe{"Favori 002", 2}));
  EXPECT_EQ(favoris.back(), (EntreeListe{"Affineur", 16}));
  EXPECT_THAT(b.disque.journal(),
              ElementsAre("existe GLFV2.DAT", "longueur GLFV2.DAT", "lit GLFV2.DAT 724+10860"));
  EXPECT_EQ(NomCourant(), "Affineur");
}

TEST_F(LectureDesFavoris, SontSautesSupprimesOuDUnAutreDrapeau) {
  b.AjouteFavori(Favori("Affineur"));
  b.AjouteFavori(Favori("Boucher"));
  b.AjouteFavori(Favori("Charcutier"));
  b.Demarre();
  SupprimeFavori(*b.module, 16);
  RecFavori boucher = FicheFavori(b, 17);
  boucher.actif = 1;
  b.module->bufFavori.Ecrit(17, boucher);
  const Liste favoris = ListeFavoris(*b.module);
  EXPECT_EQ(favoris.size(), 15U);
  EXPECT_EQ(favoris.back(), (EntreeListe{"Charcutier", 18}));
}

TEST_F(LectureDesFavoris, DuMemeNomSontDeuxEntrees) {
  b.AjouteFavori(Favori("Affineur", 2));
  b.AjouteFavori(Favori("Affineur", 2));
  b.Demarre();
  const Liste favoris = FavorisDeLaCategorie(*b.module, 2);
  EXPECT_EQ(favoris.at(5), (EntreeListe{"Affineur", 16}));
  EXPECT_EQ(favoris.at(6), (EntreeListe{"Affineur", 17}));
}

TEST_F(LectureDesFavoris, ReparentUnCompteTropHautEnMemoireEtSurLeDisque) {
  GarnitEntete<RecFavori>(b, "GLFV2.stp");
  PoseCompte(b, "GLFV2.stp", 32767);
  b.Demarre();
  const std::string avant = Entete<RecFavori>(b, "GLFV2.DAT");
  EXPECT_EQ(ListeFavoris(*b.module).size(), 14U);
  EXPECT_EQ(b.module->bufFavori.nbActifs(), 14);
  EXPECT_THAT(b.disque.changements(), ElementsAre("écrit GLFV2.DAT 0+724"));
  EXPECT_EQ(Entete<RecFavori>(b, "GLFV2.DAT"), AvecCompte(avant, 14));
}

TEST_F(LectureDesFavoris, SeListentBienQueLaReparationEchoue) {
  PoseCompte(b, "GLFV2.stp", 20);
  b.Demarre();
  b.disque.EchoueSur("écrit GLFV2.DAT", Panne::disquePlein);
  EXPECT_EQ(ListeFavoris(*b.module).size(), 14U);
  EXPECT_EQ(b.module->bufFavori.nbActifs(), 14);
  EXPECT_EQ(FicheFavori(b, 1).actif, 20);
  EXPECT_THAT(b.messages.vus, IsEmpty());
}

TEST_F(LectureDesFavoris, NeReparentRienQuandLaLectureEchoue) {
  PoseCompte(b, "GLFV2.stp", 20);
  b.Demarre();
  b.disque.EchoueSur("lit GLFV2.DAT", Panne::entreeSortie);
  EXPECT_THROW(static_cast<void>(ListeFavoris(*b.module)), ErreurExecution);
  EXPECT_EQ(b.module->bufFavori.nbActifs(), 20);
  EXPECT_THAT(b.disque.changements(), IsEmpty());
}

TEST_F(LectureDesFavoris, SeCachentDerriereUnCompteTropBasQueRienNeRepare) {
  b.AjouteFavori(Favori("Affineur"));
  b.AjouteFavori(Favori("Boucher"));
  PoseCompte(b, "GLFV2.stp", 15);
  b.Demarre();
  EXPECT_EQ(ListeFavoris(*b.module).back().texte, "Affineur");
  EXPECT_EQ(NomCourant(), "Affineur");
  EXPECT_THAT(b.disque.changements(), IsEmpty());
}

TEST_F(LectureDesFavoris, NeSontAucunsDansUnFichierReduitASonEnTete) {
  b.Demarre();
  b.dossier.Ecrit("GLFV2.DAT", b.dossier.Lit("GLFV2.DAT").substr(0, 724));
  EXPECT_THAT(ListeFavoris(*b.module), IsEmpty());
  EXPECT_EQ(FicheFavori(b, 1).actif, 0);
}

TEST_F(LectureDesFavoris, SansLeurFichierSontUneErreur53ApresSonMessage) {
  b.Demarre();
  b.dossier.Supprime("GLFV2.DAT");
  EXPECT_EQ(PanneDe([&] { static_cast<void>(ListeFavoris(*b.module)); }),
            Panne::fichierIntrouvable);
  EXPECT_THAT(b.messages.vus, ElementsAre(NonTrouve(b, "GLFV2.DAT")));
  EXPECT_THAT(b.disque.journal(), ElementsAre("existe GLFV2.DAT"));
}

// The most that the count of a header holds; one more on file is never reached.
TEST_F(LectureDesFavoris, SontAuPlusTrenteDeuxMilleSeptCentSoixanteSept) {
  RecFavori favori = Favori("Affineur");
  favori.actif = vivant;
  const std::string un = Octets(favori);
  std::string octets = AvecCompte(Entete<RecFavori>(b, "GLFV2.stp"), 32767);
  octets.reserve(32769 * un.size());
  for (int i = 0; i < 32768; ++i) {
    octets += un;
  }
  b.dossier.Ecrit("GLFV2.stp", octets);
  b.Demarre();
  const Liste favoris = ListeFavoris(*b.module);
  ASSERT_EQ(favoris.size(), 32767U);
  EXPECT_EQ(favoris.back().numero, 32768);
  EXPECT_THAT(b.disque.changements(), IsEmpty());
}

class FavorisDUneCategorie : public CoeurFavoris {};

TEST_F(FavorisDUneCategorie, SontLesVivantsDeCetteCategorie) {
  const auto artisans = static_cast<std::int16_t>(b.AjouteCategorie("Artisans"));
  b.AjouteFavori(Favori(" Boucher ", artisans));
  b.AjouteFavori(Favori("Parti", artisans));
  b.AjouteFavori(Favori("Affineur", artisans));
  b.Demarre();
  SupprimeFavori(*b.module, 17);
  EXPECT_THAT(FavorisDeLaCategorie(*b.module, artisans),
              ElementsAre(EntreeListe{"Boucher", 16}, EntreeListe{"Affineur", 18}));
  EXPECT_EQ(FavorisDeLaCategorie(*b.module, 2).size(), 5U);
  EXPECT_THAT(FavorisDeLaCategorie(*b.module, 6), IsEmpty());
}

TEST_F(FavorisDUneCategorie, LaissentLeFavoriAfficheDansLaFicheDeTravail) {
  AjouteAffineur(b);
  b.Demarre();
  static_cast<void>(LitFavori(*b.module, 6));  // neither the first one nor the last of any scan
  EXPECT_EQ(FavorisDeLaCategorie(*b.module, 2).size(), 5U);
  EXPECT_EQ(Octets(b.module->bufFavori.courant()), Octets(FicheFavori(b, 6)));
  EXPECT_EQ(CategorieCourante(), "Catégorie 003"_1252);
}

TEST_F(FavorisDUneCategorie, NeSeCherchentQueJusquAuCompte) {
  AjouteAffineur(b);
  PoseCompte(b, "GLFV2.stp", 14);
  b.Demarre();
  EXPECT_THAT(FavorisDeLaCategorie(*b.module, 5), IsEmpty());
}

TEST_F(FavorisDUneCategorie, NeReparentRienEtNeDemandentPasSiLeFichierEstLa) {
  PoseCompte(b, "GLFV2.stp", 20);
  b.Demarre();
  b.dossier.Supprime("GLFV2.DAT");
  EXPECT_EQ(FavorisDeLaCategorie(*b.module, 2).size(), 5U);
  EXPECT_EQ(b.module->bufFavori.nbActifs(), 20);
  EXPECT_THAT(b.disque.journal(), ElementsAre("longueur GLFV2.DAT", "lit GLFV2.DAT 724+10136"));
  EXPECT_THAT(b.messages.vus, IsEmpty());
}

TEST_F(FavorisDUneCategorie, EchouentSurUneLectureQuiEchoue) {
  b.Demarre();
  b.disque.EchoueSur("lit GLFV2.DAT", Panne::entreeSortie);
  EXPECT_EQ(PanneDe([&] { static_cast<void>(FavorisDeLaCategorie(*b.module, 2)); }),
            Panne::entreeSortie);
}

}  // namespace
}  // namespace gastrelle::essai
