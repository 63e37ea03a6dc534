// The texts that a search reads: whole, wherever they lie, in whatever pieces; and what becomes of
// it when the disk fails.

#include <algorithm>
#include <filesystem>
#include <limits>
#include <numeric>
#include <utility>

#include "doublures/Depart.h"
#include "doublures/Pannes.h"
#include "recherche/coeur/RechercheEssai.h"

namespace gastrelle::essai {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr std::size_t piece = 262144;     // read at once of a long text
constexpr std::size_t enAvance = 131072;  // read at once of short ones

class TextesCherches : public CatalogueEssai {
 protected:
  [[nodiscard]] std::int32_t LongueurReserve() const {
    return static_cast<std::int32_t>(b.dossier.Lit(NomTextes()).size());
  }
};
INSTANTIATE_TEST_SUITE_P(Catalogues, TextesCherches, lesTroisCatalogues, NomDuCatalogue);

TEST_P(TextesCherches, UnTexteAuDelaDeCeQuiSAfficheSeChercheEtSeMontreEntier) {
  const std::string texte = std::string(90000, 'x') + "muscade";
  Pose({{"Soupe", texte}});
  EXPECT_EQ(Premiere("Muscade")->texte, texte);
  EXPECT_EQ(Premiere("soupe")->texte, texte);
}

TEST_P(TextesCherches, UnMotSeTrouveAToutesLesPlacesDesMorceaux) {
  const std::string mot = "muscade";
  for (const std::size_t bord : {piece, 2 * piece - (mot.size() - 1)}) {
    for (std::size_t place = bord - mot.size() - 1; place <= bord + 1; ++place) {
      std::string texte(3 * piece, 'x');
      texte.replace(place, mot.size(), mot);
      Pose({{"Soupe", texte}});
      ASSERT_TRUE(Premiere(mot)) << place;
      texte[place + 3] = '-';
      Pose({{"Soupe", texte}});
      ASSERT_FALSE(Premiere(mot)) << place;
    }
  }
}

TEST_P(TextesCherches, UnTexteQuiFinitAvecUnMorceauSeChercheJusquAuBout) {
  for (const std::size_t longueur :
       {piece - 1, piece, piece + 1, piece + 5, piece + 6, piece + 7, 2 * piece}) {
    const std::string texte = std::string(longueur - 7, 'x') + "muscade";
    Pose({{"Soupe", texte}});
    EXPECT_TRUE(Premiere("muscade")) << longueur;
    EXPECT_FALSE(Premiere("muscades")) << longueur;
    // The byte behind the text belongs to another one.
    PointeVers(2, LongueurReserve() - static_cast<std::int32_t>(longueur) + 1,
               static_cast<std::int32_t>(longueur) - 1);
    EXPECT_FALSE(Premiere("muscade")) << longueur;
  }
}

TEST_P(TextesCherches, UnTexteUnPeuPlusCourtQueCeQuOnChercheNeLArretePas) {
  const std::string quoi = "noix de muscade";
  for (std::size_t longueur = 1; longueur <= quoi.size() + 1; ++longueur) {
    Pose({{"Soupe", (quoi + "s").substr(0, longueur)}});
    EXPECT_EQ(Premiere(quoi).has_value(), longueur >= quoi.size()) << longueur;
  }
}

TEST_P(TextesCherches, CeQuOnChercheEstAussiLongQuOnVeut) {
  for (const std::size_t longueur : std::initializer_list<std::size_t>{
           32767, piece - 1, piece, piece + 1, piece + 2, 3 * piece}) {
    const std::string quoi = std::string(longueur - 1, 'q') + "r";
    for (const std::size_t devant : std::initializer_list<std::size_t>{0, 1, piece, 2 * longueur}) {
      Pose({{"Soupe", std::string(devant, 'x') + quoi}});
      EXPECT_TRUE(Premiere(quoi)) << longueur << ' ' << devant;
      EXPECT_FALSE(Premiere("x" + std::string(devant, 'x') + quoi)) << longueur << ' ' << devant;
    }
  }
}

TEST_P(TextesCherches, DesTextesQuiSeSuiventSeTrouventTousQuelleQueSoitLaPlaceDeLeurMot) {
  // Some of them end where the reading ahead ends.
  std::vector<FicheEssai> fiches;
  std::vector<std::int32_t> attendus;
  for (int i = 0; i < 400; ++i) {
    const auto taille = static_cast<std::size_t>(1 + i * 7 % 1500);
    const bool avec = i % 3 == 0;
    fiches.push_back({"n", std::string(taille, 'x') + (avec ? "muscade" : "muscad")});
    if (avec) {
      attendus.push_back(i + 2);
    }
  }
  Pose(fiches);
  EXPECT_THAT(Toutes("muscade"), testing::ElementsAreArray(attendus));
  EXPECT_THAT(Toutes("muscadx"), IsEmpty());
}

TEST_P(TextesCherches, LaFinDeLAvanceNeCoupePasUnMot) {
  for (std::size_t reste = 0; reste <= 8; ++reste) {
    const std::size_t lesAutres = enAvance - 5 * 24000 - reste;
    Pose({{"a", "x"},
          {"b", std::string(24000, 'x')},
          {"c", std::string(24000, 'x')},
          {"d", std::string(24000, 'x')},
          {"e", std::string(24000, 'x')},
          {"f", std::string(24000, 'x')},
          {"g", std::string(lesAutres, 'x')},
          {"h", "muscade"},
          {"i", "musc"},
          {"j", "ade"}});
    EXPECT_THAT(Toutes("muscade"), ElementsAre(9)) << reste;
  }
}

TEST_P(TextesCherches, LesTextesSontDansNImporteQuelOrdreDansLaReserve) {
  Pose({{"a", "ail"}, {"b", "bette"}, {"c", "coing"}, {"d", "dinde"}, {"e", "endive"}, {"f"}});
  struct Reference {
    std::int32_t position;
    std::int32_t longueur;
  };
  std::vector<Reference> references;
  for (std::int32_t numero = 2; numero <= 6; ++numero) {
    Change(numero, [&](auto& e) { references.push_back({e.posTexte, e.lgTexte}); });
  }
  std::vector<std::size_t> ordre(references.size());
  std::iota(ordre.begin(), ordre.end(), std::size_t{0});
  do {
    for (std::size_t i = 0; i < ordre.size(); ++i) {
      PointeVers(static_cast<std::int32_t>(i) + 2, references[ordre[i]].position,
                 references[ordre[i]].longueur);
    }
    for (const auto& [mot, rang] : {std::pair{"ail", 0}, {"coing", 2}, {"endive", 4}}) {
      const auto place = std::find(ordre.begin(), ordre.end(), static_cast<std::size_t>(rang));
      ASSERT_THAT(Toutes(mot), ElementsAre(static_cast<std::int32_t>(place - ordre.begin()) + 2));
    }
  } while (std::next_permutation(ordre.begin(), ordre.end()));
}

TEST_P(TextesCherches, UnePlaceSansLongueurEtUneLongueurSansPlaceNeSontPasDesTextes) {
  Pose({{"Soupe", "muscade"}, {"Tarte", "muscade"}, {"Z"}});
  std::int32_t position = 0;
  Change(2, [&](auto& e) { position = e.posTexte; });
  PointeVers(2, position, 0);
  PointeVers(3, 0, 7);
  EXPECT_THAT(Toutes("muscade"), IsEmpty());
  EXPECT_EQ(Premiere("soupe")->texte, "");
  EXPECT_EQ(Premiere("tarte")->texte, "");
  PointeVers(2, position, -1);
  EXPECT_EQ(Premiere("soupe")->texte, "");
  EXPECT_THAT(Toutes("muscade"), IsEmpty());
}

TEST_P(TextesCherches, UnePlaceNegativeEstUnePanne) {
  Pose({{"Soupe", "muscade"}, {"Z"}});
  for (const std::int32_t position : {-1, -8, std::numeric_limits<std::int32_t>::min()}) {
    PointeVers(2, position, 7);
    EXPECT_EQ(PanneDe([&] { Toutes("muscade"); }), Panne::numeroEnregistrement);
    EXPECT_EQ(PanneDe([&] { Toutes("soupe"); }), Panne::numeroEnregistrement);
  }
}

TEST_P(TextesCherches, AuDelaDuFichierLeTexteEstCeQuIlEnReste) {
  Pose({{"Soupe", "muscade"}, {"Z"}});
  const std::int32_t bout = LongueurReserve();
  constexpr std::int32_t tres = std::numeric_limits<std::int32_t>::max();
  for (const std::int32_t longueur : {8, 300000, tres}) {
    PointeVers(2, bout - 6, longueur);
    EXPECT_EQ(Premiere("muscade")->texte, "muscade") << longueur;
    EXPECT_FALSE(Premiere("muscadet")) << longueur;
    PointeVers(2, bout + 1, longueur);
    EXPECT_FALSE(Premiere("muscade")) << longueur;
    EXPECT_EQ(Premiere("soupe")->texte, "") << longueur;
    PointeVers(2, tres, longueur);
    EXPECT_FALSE(Premiere("muscade")) << longueur;
  }
}

TEST_P(TextesCherches, UnTexteDemesureSeFouilleEntierEtSeMontreEnPartie) {
  constexpr std::int32_t longueur = Reserve::plafond + 1;
  Pose({{"Soupe", "muscade"}, {"Z"}});
  std::filesystem::resize_file(b.dossier.chemin() / NomTextes(), std::size_t{longueur} + 8);
  PointeVers(2, 9, longueur);
  EXPECT_FALSE(Premiere("girofle"));
  EXPECT_EQ(Premiere("muscade")->texte.size(), std::size_t{Reserve::plafond});
  EXPECT_EQ(Premiere("soupe")->texte.size(), std::size_t{Reserve::plafond});
}

TEST_P(TextesCherches, UnFichierQuiManqueSeDitEtEstUnePanne) {
  Pose({{"Soupe", "muscade"}, {"Oie", "muscade"}, {"Z"}});
  for (const std::string& nom : {NomFiches(), NomTextes()}) {
    Recherche recherche = Cherche("muscade");
    EXPECT_TRUE(recherche.Suivante());
    const std::string octets = b.dossier.Lit(nom);
    b.dossier.Supprime(nom);
    b.pointeur.Sablier();
    b.messages.vus.clear();
    // Also for a title, and also where nothing would be read of that file any more.
    EXPECT_EQ(PanneDe([&] { Premiere("soupe"); }), Panne::fichierIntrouvable);
    EXPECT_EQ(PanneDe([&] { static_cast<void>(recherche.Suivante()); }), Panne::fichierIntrouvable);
    EXPECT_THAT(b.messages.vus, ElementsAre(NonTrouve(b, nom), NonTrouve(b, nom)));
    EXPECT_FALSE(b.pointeur.sablier);
    b.dossier.Ecrit(nom, octets);
  }
}

TEST_P(TextesCherches, DeDeuxFichiersQuiManquentSeDitCeluiDesFiches) {
  Pose({{"Soupe"}});
  b.dossier.Supprime(NomFiches());
  b.dossier.Supprime(NomTextes());
  EXPECT_EQ(PanneDe([&] { Premiere("x"); }), Panne::fichierIntrouvable);
  EXPECT_THAT(b.messages.vus, ElementsAre(NonTrouve(b, NomFiches())));
}

/// Short texts that follow each other, one that doesn't fit into one piece, one of no place.
std::vector<FicheEssai> FichesVariees() {
  return {{"Ail", "un"}, {"Soupe", "muscade"}, {"Oie", std::string(piece, 'x') + "muscade"},
          {"Muscade"},   {"Fin", "rien"},      {"Fin", "rien non plus"}};
}

// Texts that lie together are read together; where that fails the one that is asked for is read
// alone. Any other failure ends the search.
TEST_P(TextesCherches, AChaqueAppelDuDisqueQuiEchoueFinitOuTrouveLaMemeChose) {
  Pose(FichesVariees());
  const std::vector<std::int32_t> entiere = Toutes("muscade");
  EXPECT_THAT(entiere, ElementsAre(3, 4, 5));
  const std::vector<std::string> appels = b.disque.journal();
  ASSERT_GT(appels.size(), 15U);
  std::size_t enAvanceVus = 0;
  for (std::size_t n = 1; n <= appels.size(); ++n) {
    const std::string& appel = appels[n - 1];
    SCOPED_TRACE(appel);
    Bibliotheque avec;
    avec.Demarre();
    PoseFiches(avec, catalogue(), FichesVariees());
    const auto deTravail = [&] {
      return AvecFiches(*avec.module, catalogue(), [](auto& fichier) {
        return Octets(fichier.entete()) + Octets(fichier.courant());
      });
    };
    const std::string avant = deTravail();
    avec.disque.EchoueALAppel(n, Panne::entreeSortie);
    Recherche recherche(*avec.module, catalogue(), "muscade");
    const bool va = Reussit([&] {
      for (const std::int32_t numero : entiere) {
        EXPECT_EQ(recherche.Suivante()->numero, numero);
        EXPECT_FALSE(recherche.EstFinie());
      }
      EXPECT_FALSE(recherche.Suivante());
    });
    const bool lueEnAvance = appel.ends_with("+131072");
    enAvanceVus += lueEnAvance ? 1 : 0;
    EXPECT_EQ(va, lueEnAvance);
    EXPECT_EQ(avec.messages.vus.size(), appel.starts_with("existe") ? 1U : 0U);
    EXPECT_EQ(deTravail(), avant);
    EXPECT_THAT(avec.disque.changements(), IsEmpty());
    EXPECT_FALSE(avec.module->erreurFatale);
  }
  EXPECT_GT(enAvanceVus, 0U);
}

TEST_P(TextesCherches, UneReserveIllisibleEstUnePanneEtUnTitreSansTexteSeTrouveEncore) {
  Pose({{"Ail"}, {"Soupe", "muscade"}, {"Oie", "ail"}});
  b.disque.EchoueSur("lit " + NomTextes(), Panne::entreeSortie);
  EXPECT_TRUE(Premiere("ail"));
  EXPECT_EQ(PanneDe([&] { Premiere("muscade"); }), Panne::entreeSortie);
  EXPECT_EQ(PanneDe([&] { Premiere("soupe"); }), Panne::entreeSortie);
}

}  // namespace
}  // namespace gastrelle::essai
