// Changing a favourite: where each of its two texts goes, the bytes on file, the order of the
// writes, and what survives a failure at each of them.

#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "doublures/Depart.h"
#include "doublures/Pannes.h"
#include "favoris/coeur/CoeurFavoris.h"

namespace gastrelle::essai {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class ChangementDesFavoris : public CoeurFavoris {
 protected:
  /// "Affineur" under another name, in category 3, every field being new.
  static FavoriSaisi Saisi(std::string_view adresse, std::string_view notes) {
    return {"Boucher",
            3,
            {std::string(adresse), "06 07", "06 08", "boucher@exemple.fr", "exemple.fr/boucher",
             std::string(notes)}};
  }

  static RecFavori Attendu(ReferenceTexte adresse, ReferenceTexte notes) {
    RecFavori attendu = Favori("Boucher", 3);
    attendu.actif = vivant;
    attendu.telephone = "06 07";
    attendu.fax = "06 08";
    attendu.email = "boucher@exemple.fr";
    attendu.siteWeb = "exemple.fr/boucher";
    attendu.posAdresse = adresse.position;
    attendu.lgAdresse = adresse.longueur;
    attendu.posTexte = notes.position;
    attendu.lgTexte = notes.longueur;
    return attendu;
  }

  /// Reads "Affineur" again, as a choice in the list does, and changes it.
  void RelitEtChange(std::string_view adresse, std::string_view notes) {
    LitAffineur(b);
    ChangeFavori(*b.module, 16, Saisi(adresse, notes));
  }

  /// The change of "Affineur", each of its `ecritures` writes failing in turn.
  template <class Verifie>
  static void ChangeEnEchouant(std::size_t ecritures, std::string_view adresse,
                               std::string_view notes, Verifie verifie) {
    EchoueAChaqueEcriture(
        ecritures, GarnitAvecAffineur,
        [&](Bibliotheque& avec) {
          LitAffineur(avec);
          ChangeFavori(*avec.module, 16, Saisi(adresse, notes));
        },
        verifie);
  }

  /// The record of "Affineur" on file is what it was, or new up to its e-mail, where its half ends.
  static void VerifieFiche(const Bibliotheque& avec, bool moitie) {
    const RecFavori fiche = FicheFavori(avec, 16);
    EXPECT_EQ(NomFavori(avec, 16), moitie ? "Boucher" : "Affineur");
    EXPECT_EQ(fiche.idCategorie, moitie ? 3 : 5);
    EXPECT_EQ(Rogne(fiche.siteWeb.brut()), "https://exemple.fr");
    EXPECT_EQ(fiche.posTexte, 20);
    EXPECT_EQ(fiche.lgTexte, 12);
    EXPECT_EQ(FicheFavori(avec, 1).actif, 15);
  }
};

/// New texts for "Affineur", and what becomes of them.
struct Remplacement {
  const char* nom;
  const char* adresse;
  const char* notes;
  LigneRayon ouAdresse;
  LigneRayon ouNotes;
  const char* reserve;
  std::vector<std::string> journal;
};

class TextesRemplaces : public ChangementDesFavoris,
                        public testing::WithParamInterface<Remplacement> {};

TEST_P(TextesRemplaces, RestentASaPlaceOuPassentALaFin) {
  DemarreSurAffineur();
  const Remplacement& r = GetParam();
  const std::string avant = b.dossier.Lit("GLFV2.DAT");
  ChangeFavori(*b.module, 16, Saisi(r.adresse, r.notes));
  EXPECT_THAT(b.disque.journal(), testing::ElementsAreArray(r.journal));
  LigneRayon ouAdresse = r.ouAdresse;
  LigneRayon ouNotes = r.ouNotes;
  const RecFavori attendu =
      Attendu({ouAdresse.posTexte, ouAdresse.lgTexte}, {ouNotes.posTexte, ouNotes.lgTexte});
  EXPECT_EQ(b.dossier.Lit("GLFV2.DAT"), avant.substr(0, 10860) + Octets(attendu));
  EXPECT_EQ(b.dossier.Lit("GLFV3.DAT"), r.reserve);
  EXPECT_EQ(Octets(b.module->bufFavori.courant()), Octets(attendu));
  const TextesFavori relus = LitFavori(*b.module, 16).textes;
  EXPECT_EQ(relus.adresse, r.adresse);
  EXPECT_EQ(relus.notes, r.notes);
}

INSTANTIATE_TEST_SUITE_P(
    Cas, TextesRemplaces,
    testing::Values(Remplacement{"MemeLongueur",
                                 "2 rue Bas.",
                                 "Douze lettre",
                                 {10, 10},
                                 {20, 12},
                                 "GLFV3.DAT2 rue Bas.Douze lettre",
                                 {"existe GLFV2.DAT", "existe GLFV3.DAT", "écrit GLFV3.DAT 9+10",
                                  "écrit GLFV3.DAT 19+12", "écrit GLFV2.DAT 10860+724"}},
                    Remplacement{"UnOctetDePlus",
                                 "11 rue Haut",
                                 "Treize octets",
                                 {32, 11},
                                 {43, 13},
                                 "GLFV3.DAT1 rue HautDouze octets11 rue HautTreize octets",
                                 {"existe GLFV2.DAT", "existe GLFV3.DAT", "longueur GLFV3.DAT",
                                  "écrit GLFV3.DAT 31+11", "longueur GLFV3.DAT",
                                  "écrit GLFV3.DAT 42+13", "écrit GLFV2.DAT 10860+724"}},
                    Remplacement{"AdresseSeulePlusLongue",
                                 "11 rue Haut",
                                 "Douze octets",
                                 {32, 11},
                                 {20, 12},
                                 "GLFV3.DAT1 rue HautDouze octets11 rue Haut",
                                 {"existe GLFV2.DAT", "existe GLFV3.DAT", "longueur GLFV3.DAT",
                                  "écrit GLFV3.DAT 31+11", "écrit GLFV3.DAT 19+12",
                                  "écrit GLFV2.DAT 10860+724"}},
                    Remplacement{"NotesSeulesPlusLongues",
                                 "1 rue Haut",
                                 "Treize octets",
                                 {10, 10},
                                 {32, 13},
                                 "GLFV3.DAT1 rue HautDouze octetsTreize octets",
                                 {"existe GLFV2.DAT", "existe GLFV3.DAT", "écrit GLFV3.DAT 9+10",
                                  "longueur GLFV3.DAT", "écrit GLFV3.DAT 31+13",
                                  "écrit GLFV2.DAT 10860+724"}},
                    Remplacement{"PlusCourts",
                                 "2 rue",
                                 "Huit let",
                                 {10, 5},
                                 {20, 8},
                                 "GLFV3.DAT2 rue HautHuit lettets",
                                 {"existe GLFV2.DAT", "existe GLFV3.DAT", "écrit GLFV3.DAT 9+5",
                                  "écrit GLFV3.DAT 19+8", "écrit GLFV2.DAT 10860+724"}},
                    Remplacement{"AdresseVide",
                                 "",
                                 "Bref",
                                 {0, 0},
                                 {20, 4},
                                 "GLFV3.DAT1 rue HautBrefe octets",
                                 {"existe GLFV2.DAT", "existe GLFV3.DAT", "écrit GLFV3.DAT 19+4",
                                  "écrit GLFV2.DAT 10860+724"}},
                    Remplacement{"NotesVides",
                                 "Bref",
                                 "",
                                 {10, 4},
                                 {0, 0},
                                 "GLFV3.DATBrefe HautDouze octets",
                                 {"existe GLFV2.DAT", "existe GLFV3.DAT", "écrit GLFV3.DAT 9+4",
                                  "écrit GLFV2.DAT 10860+724"}},
                    Remplacement{"DeuxVides",
                                 "",
                                 "",
                                 {0, 0},
                                 {0, 0},
                                 "GLFV3.DAT1 rue HautDouze octets",
                                 {"existe GLFV2.DAT", "écrit GLFV2.DAT 10860+724"}}),
    [](const testing::TestParamInfo<Remplacement>& cas) { return std::string(cas.param.nom); });

// What was shortened has lost its room: the old length comes back at the end only.
TEST_F(ChangementDesFavoris, DesTextesRaccourcisPuisRallongesPassentALaFin) {
  DemarreSurAffineur();
  RelitEtChange("Bref", "Bref");
  RelitEtChange("1 rue Haut", "Douze octets");
  EXPECT_EQ(FicheFavori(b, 16).posAdresse, 32);
  EXPECT_EQ(FicheFavori(b, 16).posTexte, 42);
  EXPECT_EQ(b.dossier.Lit("GLFV3.DAT"), "GLFV3.DATBrefe HautBrefe octets1 rue HautDouze octets");
}

TEST_F(ChangementDesFavoris, DesTextesVidesPuisRemplisPassentALaFin) {
  DemarreSurAffineur();
  RelitEtChange("", "");
  RelitEtChange("a", "n");
  EXPECT_EQ(FicheFavori(b, 16).posAdresse, 32);
  EXPECT_EQ(FicheFavori(b, 16).posTexte, 33);
  EXPECT_EQ(b.dossier.Lit("GLFV3.DAT"), "GLFV3.DAT1 rue HautDouze octetsan");
}

TEST_F(ChangementDesFavoris, DesTextesAussiLongsQueLeursZonesSeRemplacentSurPlace) {
  DemarreSurAffineur();
  RelitEtChange(std::string(512, 'a'), std::string(30000, 'n'));
  const RecFavori avant = FicheFavori(b, 16);
  EXPECT_EQ(avant.posAdresse, 32);
  EXPECT_EQ(avant.lgAdresse, 512);
  EXPECT_EQ(avant.posTexte, 544);
  EXPECT_EQ(avant.lgTexte, 30000);
  RelitEtChange(std::string(512, 'b'), std::string(30000, 'o'));
  EXPECT_EQ(Octets(FicheFavori(b, 16)), Octets(avant));
  EXPECT_EQ(b.dossier.Lit("GLFV3.DAT"),
            "GLFV3.DAT1 rue HautDouze octets" + std::string(512, 'b') + std::string(30000, 'o'));
}

// The box shows the first 512 bytes of an address from elsewhere; what it takes back fits in place.
TEST_F(ChangementDesFavoris, UneAdressePlusLongueQueSaZoneSeRemplaceSurPlace) {
  b.AjouteFavori(Favori("Affineur"), std::string(600, 'a'), "");
  b.Demarre();
  RelitEtChange(std::string(512, 'b'), "");
  EXPECT_EQ(FicheFavori(b, 16).posAdresse, 10);
  EXPECT_EQ(FicheFavori(b, 16).lgAdresse, 512);
  EXPECT_EQ(b.dossier.Lit("GLFV3.DAT"), "GLFV3.DAT" + std::string(512, 'b') + std::string(88, 'a'));
}

TEST_F(ChangementDesFavoris, LesAnciennesReferencesSontCellesDeLaFicheDeTravail) {
  DemarreSurAffineur();
  b.module->bufFavori.courant().lgAdresse = 3;
  b.module->bufFavori.courant().posTexte = 21;
  ChangeFavori(*b.module, 16, Saisi("Bref", "Bref"));
  EXPECT_EQ(FicheFavori(b, 16).posAdresse, 32);
  EXPECT_EQ(FicheFavori(b, 16).posTexte, 21);
}

TEST_F(ChangementDesFavoris, UneLongueurSansPositionEstUnePanneAvantTouteEcriture) {
  DemarreAvec([](RecFavori& favori) { favori.posAdresse = 0; });
  LitAffineur(b);
  EXPECT_EQ(PanneDe([&] { ChangeFavori(*b.module, 16, Saisi("Bref", "Bref")); }),
            Panne::numeroEnregistrement);
  EXPECT_THAT(b.disque.changements(), IsEmpty());
}

TEST_F(ChangementDesFavoris, UneLongueurNegativeEnvoieLeTexteALaFin) {
  DemarreSurAffineur();
  b.module->bufFavori.courant().lgTexte = -5;
  ChangeFavori(*b.module, 16, Saisi("", "n"));
  EXPECT_EQ(FicheFavori(b, 16).posTexte, 32);
}

TEST_F(ChangementDesFavoris, CoupeChaqueChampASaLargeurEtLaisseLaFicheSuivante) {
  AjouteAffineur(b);
  b.AjouteFavori(Favori("Voisin"));
  b.Demarre();
  const std::string voisin = Octets(FicheFavori(b, 17));
  LitAffineur(b);
  const std::string longue(300, 'x');
  ChangeFavori(*b.module, 16, {longue, 2, {"", longue, longue, longue, longue, ""}});
  const RecFavori fiche = FicheFavori(b, 16);
  EXPECT_EQ(fiche.nomFavori.brut(), std::string(128, 'x'));
  EXPECT_EQ(fiche.telephone.brut(), std::string(32, 'x'));
  EXPECT_EQ(fiche.fax.brut(), std::string(32, 'x'));
  EXPECT_EQ(fiche.email.brut(), std::string(256, 'x'));
  EXPECT_EQ(fiche.siteWeb.brut(), std::string(256, 'x'));
  EXPECT_EQ(Octets(FicheFavori(b, 17)), voisin);
}

TEST_F(ChangementDesFavoris, UnFavoriDeFabriqueSeChangeAussi) {
  b.Demarre();
  static_cast<void>(LitFavori(*b.module, 15));
  ChangeFavori(*b.module, 15, Saisi("", ""));
  EXPECT_EQ(NomFavori(b, 15), "Boucher");
  EXPECT_EQ(FicheFavori(b, 1).actif, 14);
}

TEST_F(ChangementDesFavoris, UnFavoriSupprimeRevitQuandOnLeChange) {
  DemarreSurAffineur();
  SupprimeFavori(*b.module, 16);
  RelitEtChange("", "");
  EXPECT_EQ(FicheFavori(b, 16).actif, vivant);
  EXPECT_EQ(FicheFavori(b, 1).actif, 14);
}

// That is all it takes to move a favourite: the categories know nothing of it.
TEST_F(ChangementDesFavoris, UneAutreCategorieNeChangeQueSaFiche) {
  DemarreSurAffineur();
  const std::string categories = b.dossier.Lit("GLFV1.DAT");
  ChangeFavori(*b.module, 16, Saisi("1 rue Haut", "Douze octets"));
  EXPECT_EQ(b.dossier.Lit("GLFV1.DAT"), categories);
  EXPECT_THAT(FavorisDeLaCategorie(*b.module, 5), IsEmpty());
  EXPECT_EQ(FavorisDeLaCategorie(*b.module, 3).back(), (EntreeListe{"Boucher", 16}));
}

TEST_F(ChangementDesFavoris, UneCategorieDeNumeroQuiNeTientPasNEcritRien) {
  DemarreSurAffineur();
  FavoriSaisi saisi = Saisi("Bref", "Bref");
  saisi.categorie = 32768;
  EXPECT_EQ(PanneDe([&] { ChangeFavori(*b.module, 16, saisi); }), Panne::depassement);
  EXPECT_THAT(b.disque.changements(), IsEmpty());
}

TEST_F(ChangementDesFavoris, SansUnFichierFinitAussitotLeProgramme) {
  DemarreSurAffineur();
  for (const char* nom : {"GLFV3.DAT", "GLFV2.DAT"}) {
    b.dossier.Supprime(nom);
    for (const FavoriSaisi& saisi : {Saisi("Bref", ""), Saisi("", "Bref")}) {
      b.messages.vus.clear();
      EXPECT_EQ(FinDe([&] { ChangeFavori(*b.module, 16, saisi); }), 1);
      EXPECT_THAT(b.messages.vus, ElementsAre(NonTrouve(b, nom), Fatal()));
    }
  }
  EXPECT_THAT(b.disque.changements(), IsEmpty());
  EXPECT_EQ(NomCourant(), "Affineur");
}

TEST_F(ChangementDesFavoris, SansTexteNeDemandePasLaReserve) {
  DemarreSurAffineur();
  b.dossier.Supprime("GLFV3.DAT");
  ChangeFavori(*b.module, 16, Saisi("", ""));
  EXPECT_EQ(NomFavori(b, 16), "Boucher");
  EXPECT_THAT(b.messages.vus, IsEmpty());
}

// The references on file lead to the old texts, or to the new ones where these are whole.
TEST_F(ChangementDesFavoris, DesTextesPlusLongsQuiEchouentLaissentLesAnciennesReferences) {
  ChangeEnEchouant(3, "11 rue Haut", "Treize octets",
                   [](const Bibliotheque& avec, std::size_t n, Maniere maniere) {
                     const bool moitie = maniere == Maniere::moitieEcrite;
                     EXPECT_EQ(
                         avec.dossier.Lit("GLFV3.DAT"),
                         std::string("GLFV3.DAT1 rue HautDouze octets11 rue HautTreize octets")
                             .substr(0, n > 2              ? 55
                                        : n == 2 && moitie ? 48
                                        : n == 2           ? 42
                                        : moitie           ? 36
                                                           : 31));
                     VerifieFiche(avec, n == 3 && moitie);
                     EXPECT_EQ(FicheFavori(avec, 16).posAdresse, n == 3 && moitie ? 32 : 10);
                     EXPECT_EQ(FicheFavori(avec, 16).lgAdresse, n == 3 && moitie ? 11 : 10);
                   });
}

// The one change that overwrites what a record on file refers to.
TEST_F(ChangementDesFavoris, DesTextesPlusCourtsQuiEchouentLaissentLaFiche) {
  ChangeEnEchouant(
      3, "2 rue Ba", "Bref", [](const Bibliotheque& avec, std::size_t n, Maniere maniere) {
        const bool moitie = maniere == Maniere::moitieEcrite;
        EXPECT_EQ(avec.dossier.Lit("GLFV3.DAT"), n == 3 ? "GLFV3.DAT2 rue BautBrefe octets"
                                                 : n == 2 && moitie
                                                     ? "GLFV3.DAT2 rue BautBruze octets"
                                                 : n == 2 ? "GLFV3.DAT2 rue BautDouze octets"
                                                 : moitie ? "GLFV3.DAT2 rue HautDouze octets"
                                                          : "GLFV3.DAT1 rue HautDouze octets");
        VerifieFiche(avec, n == 3 && moitie);
        EXPECT_EQ(FicheFavori(avec, 16).posAdresse, 10);
        EXPECT_EQ(FicheFavori(avec, 16).lgAdresse, n == 3 && moitie ? 8 : 10);
      });
}

TEST_F(ChangementDesFavoris, DesTextesVidesQuiEchouentLaissentLaReserve) {
  ChangeEnEchouant(1, "", "", [](const Bibliotheque& avec, std::size_t /*n*/, Maniere maniere) {
    const bool moitie = maniere == Maniere::moitieEcrite;
    EXPECT_EQ(avec.dossier.Lit("GLFV3.DAT"), "GLFV3.DAT1 rue HautDouze octets");
    VerifieFiche(avec, moitie);
    EXPECT_EQ(FicheFavori(avec, 16).posAdresse, moitie ? 0 : 10);
  });
}

TEST_F(ChangementDesFavoris, EchoueQuandLaLongueurDeLaReserveNeSeLitPas) {
  DemarreSurAffineur();
  b.disque.EchoueSur("longueur GLFV3.DAT", Panne::entreeSortie);
  EXPECT_EQ(PanneDe([&] { ChangeFavori(*b.module, 16, Saisi("Bref", "Treize octets")); }),
            Panne::entreeSortie);
  EXPECT_THAT(b.disque.changements(), ElementsAre("écrit GLFV3.DAT 9+4"));
}

}  // namespace
}  // namespace gastrelle::essai
