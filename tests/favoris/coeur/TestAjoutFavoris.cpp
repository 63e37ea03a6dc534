// Adding and deleting favourites: the bytes on file, the order of the writes, and what survives a
// failure at each of them.

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

class AjoutDeFavoris : public CoeurFavoris {
 protected:
  static FavoriSaisi Saisi() {
    return {"Boucher",
            3,
            {"2 rue Bas.", "06 07", "06 08", "boucher@exemple.fr", "exemple.fr/boucher",
             "Le samedi !!"}};
  }

  /// The record that it becomes, without its texts.
  static RecFavori Attendu() {
    RecFavori attendu = Favori("Boucher", 3);
    attendu.actif = vivant;
    attendu.telephone = "06 07";
    attendu.fax = "06 08";
    attendu.email = "boucher@exemple.fr";
    attendu.siteWeb = "exemple.fr/boucher";
    return attendu;
  }
};

TEST_F(AjoutDeFavoris, EcritAdressePuisNotesPuisFichePuisEntete) {
  b.Demarre();
  EXPECT_EQ(AjouteFavori(*b.module, Saisi()), 16);
  EXPECT_THAT(
      b.disque.journal(),
      ElementsAre("existe GLFV2.DAT", "existe GLFV3.DAT", "longueur GLFV3.DAT",
                  "écrit GLFV3.DAT 9+10", "longueur GLFV3.DAT", "écrit GLFV3.DAT 19+12",
                  "longueur GLFV2.DAT", "écrit GLFV2.DAT 10860+724", "écrit GLFV2.DAT 0+724"));
  RecFavori attendu = Attendu();
  attendu.posAdresse = 10;
  attendu.lgAdresse = 10;
  attendu.posTexte = 20;
  attendu.lgTexte = 12;
  EXPECT_EQ(b.dossier.Lit("GLFV2.DAT").substr(10860), Octets(attendu));
  EXPECT_EQ(b.dossier.Lit("GLFV3.DAT"), "GLFV3.DAT2 rue Bas.Le samedi !!");
  EXPECT_EQ(FicheFavori(b, 1).actif, 15);
  EXPECT_EQ(b.module->bufFavori.nbActifs(), 15);
  EXPECT_EQ(Octets(b.module->bufFavori.courant()), Octets(attendu));
}

TEST_F(AjoutDeFavoris, SansTexteNeToucheNiNeDemandeLaReserve) {
  b.Demarre();
  b.dossier.Supprime("GLFV3.DAT");
  FavoriSaisi saisi = Saisi();
  saisi.textes.adresse.clear();
  saisi.textes.notes.clear();
  EXPECT_EQ(AjouteFavori(*b.module, saisi), 16);
  EXPECT_THAT(b.disque.journal(),
              ElementsAre("existe GLFV2.DAT", "longueur GLFV2.DAT", "écrit GLFV2.DAT 10860+724",
                          "écrit GLFV2.DAT 0+724"));
  EXPECT_EQ(Octets(FicheFavori(b, 16)), Octets(Attendu()));
}

TEST_F(AjoutDeFavoris, DUnSeulTexteNEcritQueCeluiLa) {
  b.Demarre();
  FavoriSaisi saisi = Saisi();
  saisi.textes.notes.clear();
  AjouteFavori(*b.module, saisi);
  EXPECT_EQ(FicheFavori(b, 16).posAdresse, 10);
  EXPECT_EQ(FicheFavori(b, 16).posTexte, 0);
  saisi = Saisi();
  saisi.textes.adresse.clear();
  AjouteFavori(*b.module, saisi);
  EXPECT_EQ(FicheFavori(b, 17).posAdresse, 0);
  EXPECT_EQ(FicheFavori(b, 17).lgAdresse, 0);
  EXPECT_EQ(FicheFavori(b, 17).posTexte, 20);
  EXPECT_EQ(FicheFavori(b, 17).lgTexte, 12);
  EXPECT_EQ(b.dossier.Lit("GLFV3.DAT"), "GLFV3.DAT2 rue Bas.Le samedi !!");
}

// The length of the pool is asked of the file for each of the two.
TEST_F(AjoutDeFavoris, MetChaqueTexteALaFinDeLaReserveTelleQuElleEstAlors) {
  b.Demarre();
  bool ecrite = false;
  b.disque.pendant = [&](const std::string& ligne) {
    if (ecrite && ligne == "longueur GLFV3.DAT") {
      b.dossier.Ecrit("GLFV3.DAT", b.dossier.Lit("GLFV3.DAT") + "d'ailleurs");
    }
    ecrite = ecrite || ligne == "écrit GLFV3.DAT 9+10";
  };
  AjouteFavori(*b.module, Saisi());
  b.disque.pendant = {};
  EXPECT_EQ(FicheFavori(b, 16).posTexte, 30);
  EXPECT_EQ(b.dossier.Lit("GLFV3.DAT"), "GLFV3.DAT2 rue Bas.d'ailleursLe samedi !!");
}

TEST_F(AjoutDeFavoris, GardeDesTextesAussiLongsQueLeursZones) {
  b.Demarre();
  FavoriSaisi saisi = Saisi();
  saisi.textes.adresse.assign(512, 'a');
  saisi.textes.notes.assign(30000, 'n');
  AjouteFavori(*b.module, saisi);
  EXPECT_EQ(FicheFavori(b, 16).lgAdresse, 512);
  EXPECT_EQ(FicheFavori(b, 16).posTexte, 10 + 512);
  EXPECT_EQ(FicheFavori(b, 16).lgTexte, 30000);
  EXPECT_EQ(b.dossier.Lit("GLFV3.DAT"),
            "GLFV3.DAT" + std::string(512, 'a') + std::string(30000, 'n'));
}

TEST_F(AjoutDeFavoris, CoupeChaqueChampASaLargeur) {
  b.Demarre();
  AjouteFavori(*b.module, {std::string(129, 'n'),
                           2,
                           {"", std::string(33, 't'), std::string(33, 'f'), std::string(257, 'e'),
                            std::string(257, 's'), ""}});
  RecFavori attendu = Favori(std::string(128, 'n'));
  attendu.actif = vivant;
  attendu.telephone = std::string(32, 't');
  attendu.fax = std::string(32, 'f');
  attendu.email = std::string(256, 'e');
  attendu.siteWeb = std::string(256, 's');
  EXPECT_EQ(Octets(FicheFavori(b, 16)), Octets(attendu));
}

TEST_F(AjoutDeFavoris, NHeriteDeRienDuFavoriAffiche) {
  DemarreSurAffineur();
  AjouteFavori(*b.module, {"Nu", 2, {}});
  RecFavori attendu = Favori("Nu");
  attendu.actif = vivant;
  EXPECT_EQ(Octets(FicheFavori(b, 17)), Octets(attendu));
}

// Nothing goes in the place of what the working record refers to: that is somebody else's.
TEST_F(AjoutDeFavoris, LaisseLesTextesDuFavoriAffiche) {
  DemarreSurAffineur();
  AjouteFavori(*b.module, {"Boucher", 2, {"Bas", "", "", "", "", "Bref"}});
  EXPECT_EQ(b.dossier.Lit("GLFV3.DAT"), "GLFV3.DAT1 rue HautDouze octetsBasBref");
  EXPECT_EQ(FicheFavori(b, 17).posAdresse, 32);
  EXPECT_EQ(FicheFavori(b, 17).posTexte, 35);
}

TEST_F(AjoutDeFavoris, PrendDeuxFoisLeMemeNom) {
  b.Demarre();
  EXPECT_EQ(AjouteFavori(*b.module, Saisi()), 16);
  EXPECT_EQ(AjouteFavori(*b.module, Saisi()), 17);
  EXPECT_EQ(NomFavori(b, 16), NomFavori(b, 17));
  EXPECT_EQ(FicheFavori(b, 17).posAdresse, 32);
  EXPECT_EQ(FicheFavori(b, 17).posTexte, 42);
  EXPECT_EQ(FicheFavori(b, 1).actif, 16);
}

TEST_F(AjoutDeFavoris, LaPlaceDUnFavoriSupprimeNeSertPlus) {
  DemarreSurAffineur();
  SupprimeFavori(*b.module, 16);
  EXPECT_EQ(AjouteFavori(*b.module, Saisi()), 17);
  EXPECT_EQ(NomFavori(b, 16), "Affineur");
  EXPECT_EQ(FicheFavori(b, 1).actif, 15);
}

TEST_F(AjoutDeFavoris, DansUneCategorieDeNumeroQuiTientOuNEcritRien) {
  b.Demarre();
  FavoriSaisi saisi = Saisi();
  saisi.categorie = 32768;
  EXPECT_EQ(PanneDe([&] { AjouteFavori(*b.module, saisi); }), Panne::depassement);
  EXPECT_THAT(b.disque.changements(), IsEmpty());
  saisi.categorie = 32767;
  AjouteFavori(*b.module, saisi);
  EXPECT_EQ(FicheFavori(b, 16).idCategorie, 32767);
}

TEST_F(AjoutDeFavoris, QuiNeTientPlusDansLeCompteEchoue) {
  b.Demarre();
  b.module->bufFavori.nbActifs() = 32766;
  AjouteFavori(*b.module, Saisi());
  EXPECT_EQ(FicheFavori(b, 1).actif, 32767);
  EXPECT_EQ(PanneDe([&] { AjouteFavori(*b.module, Saisi()); }), Panne::depassement);
  EXPECT_EQ(FicheFavori(b, 1).actif, 32767);
  EXPECT_EQ(NomFavori(b, 17), "Boucher");
}

TEST_F(AjoutDeFavoris, SansUnFichierFinitAussitotLeProgramme) {
  DemarreSurAffineur();
  for (const char* nom : {"GLFV3.DAT", "GLFV2.DAT"}) {
    b.dossier.Supprime(nom);
    b.messages.vus.clear();
    EXPECT_EQ(FinDe([&] { AjouteFavori(*b.module, Saisi()); }), 1);
    EXPECT_THAT(b.messages.vus, ElementsAre(NonTrouve(b, nom), Fatal()));
  }
  EXPECT_EQ(b.messages.bips, 2);
  EXPECT_THAT(b.disque.journal(),
              ElementsAre("existe GLFV2.DAT", "existe GLFV3.DAT", "existe GLFV2.DAT"));
  EXPECT_EQ(NomCourant(), "Affineur");
}

TEST_F(AjoutDeFavoris, NeDemandePasLesCategories) {
  b.Demarre();
  b.dossier.Supprime("GLFV1.DAT");
  EXPECT_EQ(AjouteFavori(*b.module, Saisi()), 16);
}

TEST_F(AjoutDeFavoris, NeChangeQueLeCompteDeLEnTete) {
  GarnitEntete<RecFavori>(b, "GLFV2.stp");
  b.Demarre();
  const std::string avant = Entete<RecFavori>(b, "GLFV2.DAT");
  AjouteFavori(*b.module, Saisi());
  EXPECT_EQ(Entete<RecFavori>(b, "GLFV2.DAT"), AvecCompte(avant, 15));
  SupprimeFavori(*b.module, 16);
  EXPECT_EQ(Entete<RecFavori>(b, "GLFV2.DAT"), AvecCompte(avant, 14));
}

// What stands on file when a write fails: texts without a reference, a favourite without its count,
// never a reference to a text that isn't there.
TEST_F(AjoutDeFavoris, QuiEchoueNeLaisseJamaisDeReferenceSansTexte) {
  EchoueAChaqueEcriture(
      4, [](Bibliotheque& avec) { avec.GarnitFavoris(); },
      [](Bibliotheque& avec) { AjouteFavori(*avec.module, Saisi()); },
      [](const Bibliotheque& avec, std::size_t n, Maniere maniere) {
        const bool moitie = maniere == Maniere::moitieEcrite;
        EXPECT_EQ(avec.dossier.Lit("GLFV3.DAT"), std::string("GLFV3.DAT2 rue Bas.Le samedi !!")
                                                     .substr(0, n > 2              ? 31
                                                                : n == 2 && moitie ? 25
                                                                : n == 2           ? 19
                                                                : moitie           ? 14
                                                                                   : 9));
        EXPECT_EQ(avec.dossier.Lit("GLFV2.DAT").size(), n > 3              ? 11584U
                                                        : n == 3 && moitie ? 11222U
                                                                           : 10860U);
        EXPECT_EQ(FicheFavori(avec, 1).actif, n == 4 && moitie ? 15 : 14);
        EXPECT_EQ(NomFavori(avec, 15), "Favori 015");
      });
}

class SuppressionDeFavori : public CoeurFavoris {};

TEST_F(SuppressionDeFavori, NEffaceQueSonDrapeauEtLeDecompte) {
  DemarreSurAffineur();
  std::string favoris = b.dossier.Lit("GLFV2.DAT");
  const std::string categories = b.dossier.Lit("GLFV1.DAT");
  const std::string reserve = b.dossier.Lit("GLFV3.DAT");
  b.module->bufFavori.LitCourant(2);
  b.disque.OublieJournal();
  SupprimeFavori(*b.module, 16);
  EXPECT_THAT(b.disque.journal(),
              ElementsAre("existe GLFV2.DAT", "lit GLFV2.DAT 10860+724",
                          "écrit GLFV2.DAT 10860+724", "écrit GLFV2.DAT 0+724"));
  favoris.replace(10860, 2, 2, '\0');
  EXPECT_EQ(b.dossier.Lit("GLFV2.DAT"), AvecCompte(favoris, 14));
  EXPECT_EQ(b.dossier.Lit("GLFV1.DAT"), categories);
  EXPECT_EQ(b.dossier.Lit("GLFV3.DAT"), reserve);
  EXPECT_EQ(Octets(b.module->bufFavori.courant()), Octets(FicheFavori(b, 16)));
}

// The page refuses them; here a number is a number.
TEST_F(SuppressionDeFavori, LesDerniersProtegesPrecedentLesPremiersQuiPartent) {
  DemarreSurAffineur();
  EXPECT_EQ(derniereCategorieProtegee, 4);
  EXPECT_EQ(dernierFavoriProtege, 15);
  PoseBorneDesVins(b, 1);
  SupprimeFavori(*b.module, dernierFavoriProtege + 1);
  SupprimeCategorie(*b.module, derniereCategorieProtegee + 1);
  EXPECT_EQ(FicheFavori(b, 1).actif, DernierProtege(Donnees::GLFV2) - 1);
  EXPECT_EQ(FicheCategorie(b, 1).actif, DernierProtege(Donnees::GLFV1) - 1);
}

TEST_F(SuppressionDeFavori, QuiNeSeLitPasNEcritRien) {
  DemarreSurAffineur();
  b.disque.EchoueSur("lit GLFV2.DAT", Panne::entreeSortie);
  EXPECT_EQ(PanneDe([&] { SupprimeFavori(*b.module, 16); }), Panne::entreeSortie);
  EXPECT_THAT(b.disque.changements(), IsEmpty());
}

TEST_F(SuppressionDeFavori, NeDemandeQueSonFichier) {
  DemarreSurAffineur();
  b.dossier.Supprime("GLFV1.DAT");
  b.dossier.Supprime("GLFV3.DAT");
  SupprimeFavori(*b.module, 16);
  b.dossier.Supprime("GLFV2.DAT");
  b.disque.OublieJournal();
  EXPECT_EQ(PanneDe([&] { SupprimeFavori(*b.module, 15); }), Panne::fichierIntrouvable);
  EXPECT_THAT(b.messages.vus, ElementsAre(NonTrouve(b, "GLFV2.DAT")));
  EXPECT_THAT(b.disque.journal(), ElementsAre("existe GLFV2.DAT"));
}

TEST_F(SuppressionDeFavori, QuiNeTientPlusDansLeCompteEchoue) {
  DemarreSurAffineur();
  b.module->bufFavori.nbActifs() = -32768;
  EXPECT_EQ(PanneDe([&] { SupprimeFavori(*b.module, 16); }), Panne::depassement);
  EXPECT_EQ(FicheFavori(b, 16).actif, supprime);
  EXPECT_EQ(FicheFavori(b, 1).actif, 15);
}

TEST_F(SuppressionDeFavori, QuiEchoueGardeCeQuiEstDejaEcrit) {
  EchoueAChaqueEcriture(
      2, GarnitAvecAffineur, [](Bibliotheque& avec) { SupprimeFavori(*avec.module, 16); },
      [](const Bibliotheque& avec, std::size_t n, Maniere maniere) {
        // The flag and the count are in the first half: what is half written reads as written.
        const std::size_t faites = maniere == Maniere::moitieEcrite ? n : n - 1;
        EXPECT_EQ(FicheFavori(avec, 16).actif, faites > 0 ? supprime : vivant);
        EXPECT_EQ(FicheFavori(avec, 1).actif, faites > 1 ? 14 : 15);
        EXPECT_EQ(NomFavori(avec, 16), "Affineur");
        EXPECT_EQ(FicheFavori(avec, 16).lgTexte, 12);
      });
}

}  // namespace
}  // namespace gastrelle::essai
