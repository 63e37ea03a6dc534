// A favourite read for display: its category, its fields and its two texts, whatever the record
// says of them, and what is left in the working records.

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

class FavoriLuEnEntier : public CoeurFavoris {};

TEST_F(FavoriLuEnEntier, DonneSaCategorieEtTousSesTextes) {
  AjouteAffineur(b);
  b.Demarre();
  const FavoriLu lu = LitFavori(*b.module, 16);
  EXPECT_EQ(lu.categorie, "Artisans");
  EXPECT_EQ(lu.textes.adresse, "1 rue Haut");
  EXPECT_EQ(lu.textes.telephone, "01 02 03 04 05");
  EXPECT_EQ(lu.textes.fax, "01 02 03 04 06");
  EXPECT_EQ(lu.textes.email, "affineur@exemple.fr");
  EXPECT_EQ(lu.textes.siteWeb, "https://exemple.fr");
  EXPECT_EQ(lu.textes.notes, "Douze octets");
  EXPECT_THAT(b.disque.journal(),
              ElementsAre("existe GLFV2.DAT", "existe GLFV1.DAT", "existe GLFV3.DAT",
                          "lit GLFV2.DAT 10860+724", "lit GLFV1.DAT 520+130", "longueur GLFV3.DAT",
                          "lit GLFV3.DAT 9+10", "longueur GLFV3.DAT", "lit GLFV3.DAT 19+12"));
  EXPECT_EQ(Octets(b.module->bufFavori.courant()), Octets(FicheFavori(b, 16)));
  EXPECT_EQ(Octets(b.module->bufCategorie.courant()), Octets(FicheCategorie(b, 5)));
}

TEST_F(FavoriLuEnEntier, SansTexteNeLitPasLaReserve) {
  b.Demarre();
  const FavoriLu lu = LitFavori(*b.module, 2);
  EXPECT_EQ(lu.categorie, "Catégorie 002"_1252);
  EXPECT_EQ(lu.textes.adresse + lu.textes.notes, "");
  EXPECT_THAT(b.disque.journal(),
              ElementsAre("existe GLFV2.DAT", "existe GLFV1.DAT", "existe GLFV3.DAT",
                          "lit GLFV2.DAT 724+724", "lit GLFV1.DAT 130+130"));
}

TEST_F(FavoriLuEnEntier, ASesTextesEntiersJusquALaLimiteDeLeurZone) {
  const std::string adresse(512, 'a');
  const std::string notes(30000, 'n');
  b.AjouteFavori(Favori("Affineur"), adresse, notes);
  b.AjouteFavori(Favori("Boucher"), adresse + "trop", notes + "trop");
  b.Demarre();
  for (const std::int32_t numero : {16, 17}) {
    const FavoriLu lu = LitFavori(*b.module, numero);
    EXPECT_EQ(lu.textes.adresse, adresse);
    EXPECT_EQ(lu.textes.notes, notes);
  }
  EXPECT_EQ(b.module->bufFavori.courant().lgAdresse, 516);
  EXPECT_EQ(b.module->bufFavori.courant().lgTexte, 30004);
}

TEST_F(FavoriLuEnEntier, RogneSesQuatreChampsAuxDeuxBouts) {
  DemarreAvec([](RecFavori& favori) {
    favori.telephone = "  01 02";
    favori.fax = "   03 04   ";
    favori.email = " a@b.fr ";
    favori.siteWeb = "     ";
  });
  const FavoriLu lu = LitFavori(*b.module, 16);
  EXPECT_EQ(lu.textes.telephone, "01 02");
  EXPECT_EQ(lu.textes.fax, "03 04");
  EXPECT_EQ(lu.textes.email, "a@b.fr");
  EXPECT_EQ(lu.textes.siteWeb, "");
}

// A field as wide as the file allows has no blank to lose.
TEST_F(FavoriLuEnEntier, GardeUnChampPlein) {
  const std::string champ(256, 'w');
  DemarreAvec([&](RecFavori& favori) {
    favori.telephone = champ;
    favori.email = champ;
    favori.siteWeb = champ;
  });
  const FavoriLu lu = LitFavori(*b.module, 16);
  EXPECT_EQ(lu.textes.telephone, std::string(32, 'w'));
  EXPECT_EQ(lu.textes.email, champ);
  EXPECT_EQ(lu.textes.siteWeb, champ);
}

TEST_F(FavoriLuEnEntier, RogneLeCourrierEtLeSiteDansLaFicheDeTravailEtEuxSeuls) {
  DemarreAvec([](RecFavori& favori) {
    favori.telephone = " 01";
    favori.fax = " 02";
    favori.email = " a@b.fr";
    favori.siteWeb = "  b.fr";
  });
  RecFavori attendu = FicheFavori(b, 16);
  static_cast<void>(LitFavori(*b.module, 16));
  attendu.email = "a@b.fr";
  attendu.siteWeb = "b.fr";
  EXPECT_EQ(Octets(b.module->bufFavori.courant()), Octets(attendu));
  EXPECT_THAT(b.disque.changements(), IsEmpty());
}

TEST_F(FavoriLuEnEntier, VautSansTexteQuandSesPositionsSontSousUn) {
  DemarreAvec([](RecFavori& favori) {
    favori.posAdresse = 0;
    favori.posTexte = -20;
    favori.lgTexte = -1;
  });
  const FavoriLu lu = LitFavori(*b.module, 16);
  EXPECT_EQ(lu.textes.adresse + lu.textes.notes, "");
  EXPECT_EQ(b.disque.journal().back(), "lit GLFV1.DAT 520+130");
}

TEST_F(FavoriLuEnEntier, ACeQueLaReserveTientDUneReferenceQuiEnSort) {
  DemarreAvec([](RecFavori& favori) {
    favori.posAdresse = 26;
    favori.lgAdresse = 2'147'483'647;
    favori.posTexte = 2'147'483'647;
  });
  const FavoriLu lu = LitFavori(*b.module, 16);
  EXPECT_EQ(lu.textes.adresse, "octets");
  EXPECT_EQ(lu.textes.notes, "");
}

TEST_F(FavoriLuEnEntier, EchoueSurUneLongueurNegative) {
  b.Demarre();
  for (std::int32_t RecFavori::*const longueur : {&RecFavori::lgAdresse, &RecFavori::lgTexte}) {
    RecFavori favori = Favori("Affineur");
    favori.posAdresse = 1;
    favori.posTexte = 1;
    favori.*longueur = -1;
    b.module->bufFavori.Ecrit(16, favori);
    EXPECT_EQ(PanneDe([&] { static_cast<void>(LitFavori(*b.module, 16)); }), Panne::appelIncorrect);
  }
}

TEST_F(FavoriLuEnEntier, EchoueSansCategorieDeNumeroPossible) {
  b.Demarre();
  for (const std::int16_t categorie : {std::int16_t{0}, std::int16_t{-2}, std::int16_t{-32768}}) {
    b.module->bufFavori.Ecrit(16, Favori("Affineur", categorie));
    EXPECT_EQ(PanneDe([&] { static_cast<void>(LitFavori(*b.module, 16)); }),
              Panne::numeroEnregistrement);
    EXPECT_EQ(NomCourant(), "Affineur");
  }
}

// What lies behind the end of the file reads as zeros.
TEST_F(FavoriLuEnEntier, SeLitDansUneCategorieQueLeFichierNeTientPas) {
  DemarreAvec([](RecFavori& favori) { favori.idCategorie = 32767; });
  const FavoriLu lu = LitFavori(*b.module, 16);
  EXPECT_EQ(lu.categorie, std::string(128, '\0'));
  EXPECT_EQ(lu.textes.notes, "Douze octets");
}

TEST_F(FavoriLuEnEntier, SeLitSupprimeAvecSaCategorieSupprimee) {
  AjouteAffineur(b);
  b.Demarre();
  PoseBorneDesVins(b, 16);
  SupprimeCategorie(*b.module, 5);
  const FavoriLu lu = LitFavori(*b.module, 16);
  EXPECT_EQ(lu.categorie, "Artisans");
  EXPECT_EQ(lu.textes.adresse, "1 rue Haut");
  EXPECT_EQ(b.module->bufFavori.courant().actif, supprime);
  EXPECT_EQ(b.module->bufCategorie.courant().actif, supprime);
}

class FavoriDontUnFichierManque : public CoeurFavoris,
                                  public testing::WithParamInterface<const char*> {};

TEST_P(FavoriDontUnFichierManque, EstDitPuisEchoueAvantTouteLecture) {
  AjouteAffineur(b);
  b.Demarre();
  b.dossier.Supprime(GetParam());
  for (const std::int32_t numero : {2, 16}) {  // without a text, with both
    b.messages.vus.clear();
    EXPECT_EQ(PanneDe([&] { static_cast<void>(LitFavori(*b.module, numero)); }),
              Panne::fichierIntrouvable);
    EXPECT_THAT(b.messages.vus, ElementsAre(NonTrouve(b, GetParam())));
  }
  EXPECT_THAT(b.disque.journal(), testing::Each(testing::StartsWith("existe")));
}

INSTANTIATE_TEST_SUITE_P(Tous, FavoriDontUnFichierManque,
                         testing::Values("GLFV1.DAT", "GLFV2.DAT", "GLFV3.DAT"),
                         [](const testing::TestParamInfo<const char*>& cas) {
                           return std::string(cas.param).substr(0, 5);
                         });

TEST_F(FavoriLuEnEntier, EstDitSansSonPremierFichierDAbord) {
  b.Demarre();
  for (const char* nom : {"GLFV3.DAT", "GLFV1.DAT", "GLFV2.DAT"}) {
    b.dossier.Supprime(nom);
    b.messages.vus.clear();
    EXPECT_THROW(static_cast<void>(LitFavori(*b.module, 2)), ErreurExecution);
    EXPECT_THAT(b.messages.vus, ElementsAre(NonTrouve(b, nom)));
  }
}

}  // namespace
}  // namespace gastrelle::essai
