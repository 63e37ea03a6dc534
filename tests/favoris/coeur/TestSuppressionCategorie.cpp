// A category goes with its favourites, as far as the wines' file lets the cascade see: the bytes on
// file, the order of the writes, and what survives a failure at each of them.

#include <filesystem>
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

// Favourites 2, 5, 8, 11 and 14 of the factory are in category 2.
class SuppressionDeCategorie : public CoeurFavoris {
 protected:
  /// The favourites of a category that live on file.
  static std::vector<int> Survivants(const Bibliotheque& avec, std::int32_t categorie) {
    std::vector<int> numeros;
    const std::size_t nombre = avec.dossier.Lit("GLFV2.DAT").size() / 724;
    for (std::size_t numero = 2; numero <= nombre; ++numero) {
      const RecFavori favori = FicheFavori(avec, numero);
      if (favori.actif == vivant && favori.idCategorie == categorie) {
        numeros.push_back(static_cast<int>(numero));
      }
    }
    return numeros;
  }

  /// The bytes of a file of favourites with some deleted, the header counting `compte`.
  static std::string SansFavoris(std::string octets, const std::vector<std::size_t>& numeros,
                                 std::int16_t compte) {
    for (const std::size_t numero : numeros) {
      octets.replace((numero - 1) * 724, 2, 2, '\0');
    }
    return AvecCompte(std::move(octets), compte);
  }

  /// "Artisans" (5) with `nombre` favourites from number 16 on.
  void GarnitArtisans(int nombre) {
    const auto artisans = static_cast<std::int16_t>(b.AjouteCategorie("Artisans"));
    for (int i = 0; i < nombre; ++i) {
      b.AjouteFavori(Favori("Affineur", artisans));
    }
  }
};

TEST_F(SuppressionDeCategorie, SupprimeSesFavorisUnAUnChacunDecompteAussitotEtElleEnDernier) {
  b.Demarre();
  PoseBorneDesVins(b, 7);
  SupprimeCategorie(*b.module, 2);
  EXPECT_THAT(
      b.disque.journal(),
      ElementsAre("existe GLFV1.DAT", "existe GLFV2.DAT", "longueur GLV2.DAT",
                  "lit GLFV2.DAT 724+4344", "écrit GLFV2.DAT 724+724", "écrit GLFV2.DAT 0+724",
                  "écrit GLFV2.DAT 2896+724", "écrit GLFV2.DAT 0+724", "lit GLFV1.DAT 130+130",
                  "écrit GLFV1.DAT 130+130", "écrit GLFV1.DAT 0+130"));
  EXPECT_THAT(Survivants(b, 2), ElementsAre(8, 11, 14));
  EXPECT_EQ(FicheCategorie(b, 2).actif, supprime);
  EXPECT_EQ(b.module->bufFavori.nbActifs(), 12);
  EXPECT_EQ(b.module->bufCategorie.nbActifs(), 2);
}

TEST_F(SuppressionDeCategorie, NEffaceQueDesDrapeauxEtDesComptes) {
  GarnitEntete<RecFavori>(b, "GLFV2.stp");
  AjouteAffineur(b);
  b.Demarre();
  PoseBorneDesVins(b, 16);
  const std::string favoris = b.dossier.Lit("GLFV2.DAT");
  std::string categories = b.dossier.Lit("GLFV1.DAT");
  const std::string reserve = b.dossier.Lit("GLFV3.DAT");
  const std::string vins = b.dossier.Lit("GLV2.DAT");
  SupprimeCategorie(*b.module, 5);
  EXPECT_EQ(b.dossier.Lit("GLFV2.DAT"), SansFavoris(favoris, {16}, 14));
  categories.replace(520, 2, 2, '\0');
  EXPECT_EQ(b.dossier.Lit("GLFV1.DAT"), AvecCompte(categories, 3));
  EXPECT_EQ(b.dossier.Lit("GLFV3.DAT"), reserve);
  EXPECT_EQ(b.dossier.Lit("GLV2.DAT"), vins);
}

TEST_F(SuppressionDeCategorie, LaisseLesFavorisDesAutresCategories) {
  b.Demarre();
  PoseBorneDesVins(b, 15);
  const std::string favoris = b.dossier.Lit("GLFV2.DAT");
  SupprimeCategorie(*b.module, 3);
  EXPECT_EQ(b.dossier.Lit("GLFV2.DAT"), SansFavoris(favoris, {3, 6, 9, 12, 15}, 9));
}

TEST_F(SuppressionDeCategorie, DecompteChaqueFavoriAuMomentOuIlPart) {
  b.Demarre();
  PoseBorneDesVins(b, 5);
  std::vector<int> comptes;
  b.disque.pendant = [&](const std::string& ligne) {
    if (ligne.starts_with("écrit GLFV2.DAT")) {
      comptes.push_back(FicheFavori(b, 1).actif);
    }
  };
  SupprimeCategorie(*b.module, 2);
  b.disque.pendant = {};
  EXPECT_THAT(comptes, ElementsAre(14, 14, 13, 13));  // as it stands before each write
  EXPECT_EQ(FicheFavori(b, 1).actif, 12);
}

TEST_F(SuppressionDeCategorie, NeToucheNiNeDecompteUnFavoriDejaSupprimeOuDUnAutreDrapeau) {
  GarnitArtisans(3);
  b.Demarre();
  PoseBorneDesVins(b, 18);
  SupprimeFavori(*b.module, 16);
  RecFavori autre = FicheFavori(b, 17);
  autre.actif = 1;
  b.module->bufFavori.Ecrit(17, autre);
  b.disque.OublieJournal();
  SupprimeCategorie(*b.module, 5);
  EXPECT_THAT(b.disque.changements(),
              ElementsAre("écrit GLFV2.DAT 12308+724", "écrit GLFV2.DAT 0+724",
                          "écrit GLFV1.DAT 520+130", "écrit GLFV1.DAT 0+130"));
  EXPECT_EQ(FicheFavori(b, 17).actif, 1);
  EXPECT_EQ(FicheFavori(b, 1).actif, 15);
}

// Whatever the header counts.
TEST_F(SuppressionDeCategorie, TrouveSesFavorisDerriereUnCompteTropBas) {
  GarnitArtisans(2);
  b.Demarre();
  PoseBorneDesVins(b, 17);
  b.module->bufFavori.nbActifs() = 1;
  SupprimeCategorie(*b.module, 5);
  EXPECT_THAT(Survivants(b, 5), IsEmpty());
  EXPECT_EQ(FicheFavori(b, 1).actif, -1);
}

TEST_F(SuppressionDeCategorie, SansFavoriNEcritQueLaCategorie) {
  b.AjouteCategorie("Artisans");
  b.Demarre();
  PoseBorneDesVins(b, 15);
  const std::string favoris = b.dossier.Lit("GLFV2.DAT");
  SupprimeCategorie(*b.module, 5);
  EXPECT_THAT(b.disque.changements(),
              ElementsAre("écrit GLFV1.DAT 520+130", "écrit GLFV1.DAT 0+130"));
  EXPECT_EQ(b.dossier.Lit("GLFV2.DAT"), favoris);
}

/// The length of the wines' file, and the last favourite that it lets the cascade see.
struct Borne {
  std::uintmax_t longueur;
  std::size_t dernier;
};

class BorneDeLaSuppression : public SuppressionDeCategorie,
                             public testing::WithParamInterface<Borne> {};

// All of the factory's favourites are put in one category for it.
TEST_P(BorneDeLaSuppression, EstAuPlusPresEtAuPairSurLaMoitie) {
  b.AjouteCategorie("Artisans");
  b.Demarre();
  for (std::int64_t numero = 2; numero <= 15; ++numero) {
    RecFavori favori = Favori("Affineur", 5);
    favori.actif = vivant;
    b.module->bufFavori.Ecrit(numero, favori);
  }
  std::filesystem::resize_file(b.dossier.chemin() / "GLV2.DAT", GetParam().longueur);
  const std::string avant = b.dossier.Lit("GLFV2.DAT");
  b.disque.OublieJournal();
  SupprimeCategorie(*b.module, 5);
  std::vector<std::size_t> visites;
  for (std::size_t numero = 2; numero <= GetParam().dernier; ++numero) {
    visites.push_back(numero);
  }
  EXPECT_EQ(b.dossier.Lit("GLFV2.DAT"),
            SansFavoris(avant, visites, static_cast<std::int16_t>(14 - visites.size())));
  EXPECT_EQ(b.disque.changements().size(), 2 * visites.size() + 2);
  EXPECT_EQ(FicheCategorie(b, 5).actif, supprime);
}

INSTANTIATE_TEST_SUITE_P(
    Longueurs, BorneDeLaSuppression,
    testing::Values(Borne{0, 0}, Borne{104, 0}, Borne{362, 0}, Borne{363, 1}, Borne{724, 1},
                    Borne{1085, 1}, Borne{1086, 2}, Borne{1087, 2}, Borne{1448, 2}, Borne{1809, 2},
                    Borne{1810, 2}, Borne{1811, 3}, Borne{2533, 3}, Borne{2534, 4}, Borne{2535, 4},
                    Borne{3257, 4}, Borne{3258, 4}, Borne{3259, 5}),
    [](const testing::TestParamInfo<Borne>& cas) { return std::to_string(cas.param.longueur); });

TEST_F(SuppressionDeCategorie, VoitQuatreVingtUnFavorisAvecLesVinsDeFabrique) {
  b.GarnitVins();
  GarnitArtisans(70);
  b.Demarre();
  SupprimeCategorie(*b.module, 5);
  EXPECT_THAT(Survivants(b, 5), ElementsAre(82, 83, 84, 85));
  EXPECT_EQ(FicheFavori(b, 1).actif, 14 + 4);
  EXPECT_EQ(FicheFavori(b, 82).idCategorie, 5);  // of a category that isn't there any more
}

// Each wine makes the file longer by 104 bytes: (564 + 4) * 104 / 724 is above 81.5.
TEST_F(SuppressionDeCategorie, VoitUnFavoriDePlusAvecQuatreVinsDePlus) {
  b.GarnitVins();
  for (int i = 0; i < 4; ++i) {
    b.AjouteVin(RecVin{});
  }
  GarnitArtisans(70);
  b.Demarre();
  SupprimeCategorie(*b.module, 5);
  EXPECT_THAT(Survivants(b, 5), ElementsAre(83, 84, 85));
}

// A walk fetches 90 records at a time, from record 2 on: 92 begins the second part.
TEST_F(SuppressionDeCategorie, SupprimeSesFavorisDUnePartieLueDuFichierALaSuivante) {
  GarnitArtisans(100);
  b.Demarre();
  PoseBorneDesVins(b, 110);
  SupprimeCategorie(*b.module, 5);
  EXPECT_THAT(Survivants(b, 5), ElementsAre(111, 112, 113, 114, 115));
  EXPECT_EQ(b.disque.journal().at(3), "lit GLFV2.DAT 724+65160");
  EXPECT_EQ(b.disque.changements().size(), 2U * 95U + 2U);
}

TEST_F(SuppressionDeCategorie, NEcritRienDerriereLaFinDeSonFichier) {
  GarnitArtisans(2);
  b.Demarre();
  PoseBorneDesVins(b, 500);
  const std::string favoris = b.dossier.Lit("GLFV2.DAT");
  SupprimeCategorie(*b.module, 5);
  EXPECT_EQ(b.dossier.Lit("GLFV2.DAT"), SansFavoris(favoris, {16, 17}, 14));
}

TEST_F(SuppressionDeCategorie, LaisseDansLesFichesDeTravailLaCategorieEtLeDernierFavoriVisite) {
  DemarreSurAffineur();
  PoseBorneDesVins(b, 9);
  SupprimeCategorie(*b.module, 5);
  EXPECT_EQ(Octets(b.module->bufFavori.courant()), Octets(FicheFavori(b, 9)));
  EXPECT_EQ(Octets(b.module->bufCategorie.courant()), Octets(FicheCategorie(b, 5)));
  EXPECT_EQ(b.module->bufCategorie.courant().actif, supprime);
}

TEST_F(SuppressionDeCategorie, SansFavoriAVisiterLaisseCeluiQuiEstAffiche) {
  DemarreSurAffineur();
  PoseBorneDesVins(b, 1);
  SupprimeCategorie(*b.module, 5);
  EXPECT_EQ(NomCourant(), "Affineur");
  EXPECT_EQ(b.module->bufFavori.courant().actif, vivant);
  EXPECT_THAT(Survivants(b, 5), ElementsAre(16));
  EXPECT_EQ(b.disque.journal().at(3), "lit GLFV1.DAT 520+130");
}

TEST_F(SuppressionDeCategorie, NeDemandeNiLesVinsNiLaReserve) {
  DemarreSurAffineur();
  PoseBorneDesVins(b, 16);
  b.dossier.Supprime("GLV2.DAT");
  b.dossier.Supprime("GLFV3.DAT");
  SupprimeCategorie(*b.module, 5);
  EXPECT_THAT(Survivants(b, 5), IsEmpty());
  EXPECT_THAT(b.messages.vus, IsEmpty());
}

TEST_F(SuppressionDeCategorie, SansUnDesDeuxFichiersNEcritRien) {
  DemarreSurAffineur();
  for (const char* nom : {"GLFV2.DAT", "GLFV1.DAT"}) {
    b.dossier.Supprime(nom);
    b.messages.vus.clear();
    EXPECT_EQ(PanneDe([&] { SupprimeCategorie(*b.module, 5); }), Panne::fichierIntrouvable);
    EXPECT_THAT(b.messages.vus, ElementsAre(NonTrouve(b, nom)));
  }
  EXPECT_THAT(b.disque.journal(),
              ElementsAre("existe GLFV1.DAT", "existe GLFV2.DAT", "existe GLFV1.DAT"));
}

TEST_F(SuppressionDeCategorie, NePerdRienQuandLesFavorisNeSeLisentPas) {
  DemarreSurAffineur();
  PoseBorneDesVins(b, 16);
  for (const char* appel : {"longueur GLV2.DAT", "lit GLFV2.DAT"}) {
    b.disque.EchoueSur(appel, Panne::entreeSortie);
    EXPECT_EQ(PanneDe([&] { SupprimeCategorie(*b.module, 5); }), Panne::entreeSortie);
  }
  EXPECT_THAT(b.disque.changements(), IsEmpty());
}

// The category is read behind its favourites: they are gone by then.
TEST_F(SuppressionDeCategorie, NePerdQueSesFavorisQuandElleNeSeLitPas) {
  DemarreSurAffineur();
  PoseBorneDesVins(b, 16);
  b.disque.EchoueSur("lit GLFV1.DAT", Panne::entreeSortie);
  EXPECT_EQ(PanneDe([&] { SupprimeCategorie(*b.module, 5); }), Panne::entreeSortie);
  EXPECT_THAT(Survivants(b, 5), IsEmpty());
  EXPECT_EQ(FicheFavori(b, 1).actif, 14);
  EXPECT_EQ(FicheCategorie(b, 5).actif, vivant);
  EXPECT_EQ(FicheCategorie(b, 1).actif, 4);
}

// The flags and the counts are in the first half of what is written: half written reads as written.
TEST_F(SuppressionDeCategorie, QuiEchoueGardeCeQuiEstDejaEcrit) {
  EchoueAChaqueEcriture(
      6, [](Bibliotheque& avec) { avec.GarnitFavoris(); },
      [](Bibliotheque& avec) {
        PoseBorneDesVins(avec, 7);
        SupprimeCategorie(*avec.module, 2);
      },
      [](const Bibliotheque& avec, std::size_t n, Maniere maniere) {
        const std::size_t faites = maniere == Maniere::moitieEcrite ? n : n - 1;
        EXPECT_EQ(FicheFavori(avec, 2).actif, faites > 0 ? supprime : vivant);
        EXPECT_EQ(FicheFavori(avec, 5).actif, faites > 2 ? supprime : vivant);
        EXPECT_EQ(FicheFavori(avec, 8).actif, vivant);
        EXPECT_EQ(FicheFavori(avec, 1).actif, faites > 3 ? 12 : faites > 1 ? 13 : 14);
        EXPECT_EQ(FicheCategorie(avec, 2).actif, faites > 4 ? supprime : vivant);
        EXPECT_EQ(FicheCategorie(avec, 1).actif, faites > 5 ? 2 : 3);
        EXPECT_EQ(NomFavori(avec, 2), "Favori 002");
        EXPECT_EQ(NomCategorie(avec, 2), "Catégorie 002"_1252);
      });
}

}  // namespace
}  // namespace gastrelle::essai
