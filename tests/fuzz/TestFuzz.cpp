// The corpus replayed as ordinary tests, and the proof that its folders are what they claim: a
// fuzzer that never gets past the first file would find nothing.

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <unistd.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "data/Texte1252.h"
#include "fuzz/DossierReel.h"
#include "fuzz/Entree.h"
#include "fuzz/Graines.h"
#include "fuzz/Parcours.h"

namespace gastrelle::essai {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::Optional;

const std::filesystem::path corpus = DOSSIER_CORPUS;

std::string Octets(const std::filesystem::path& fichier) {
  std::ifstream entree(fichier, std::ios::binary);
  return {std::istreambuf_iterator<char>(entree), {}};
}

Bilan Graine(const std::string& nom) {
  return Parcourt(Octets(corpus / nom));
}

/// Ends the tests when something blocks, which no test could tell any more.
class Patience {
 public:
  Patience() { ::alarm(secondes); }
  Patience(const Patience&) = delete;
  Patience& operator=(const Patience&) = delete;
  ~Patience() { ::alarm(0); }

 private:
  static constexpr unsigned secondes = 60;
};

TEST(Corpus, RejoueToutesLesEntreesGardees) {
  const Patience patience;
  std::size_t rejouees = 0;
  for (const auto& fichier : std::filesystem::directory_iterator(corpus)) {
    SCOPED_TRACE(fichier.path().filename().string());
    EXPECT_NO_THROW(static_cast<void>(Parcourt(Octets(fichier))));
    ++rejouees;
  }
  EXPECT_GE(rejouees, Graines().size());
}

TEST(Corpus, TientLesGrainesTellesQuElles) {
  for (const essai::Graine& graine : Graines()) {
    EXPECT_EQ(Octets(corpus / graine.nom), graine.octets) << graine.nom;
  }
}

TEST(Corpus, UnDossierOrdinaireVaJusquAuCadre) {
  const Bilan bilan = Graine("vide");
  EXPECT_TRUE(bilan.cadre);
  EXPECT_EQ(bilan.fin, std::nullopt);
  EXPECT_THAT(bilan.recettes, IsEmpty());
}

TEST(Corpus, LesFamillesLesRecettesEtLImageSontLues) {
  for (const char* nom : {"deux-familles", "en-fabrique"}) {
    const Bilan bilan = Graine(nom);
    EXPECT_THAT(bilan.familles, ElementsAre(EntreeListe{"Potages", 2},
                                            EntreeListe{std::string("Bœufs et bêtes"_1252), 3}));
    EXPECT_EQ(bilan.recettes.size(), 3U);
    EXPECT_THAT(bilan.textes, ElementsAre("Un velouté."_1252, "Mijot", ""));
    EXPECT_THAT(bilan.images, ElementsAre("/gastrelle/IMAGE/soupe.png"));
    EXPECT_TRUE(bilan.exporte);
  }
}

TEST(Corpus, LaRechercheTrouveDansLesTitresEtDansLesTextes) {
  EXPECT_THAT(Graine("deux-familles").trouvees,
              ElementsAre("Velouté"_1252, "Bœuf à l'ancienne"_1252, "Velouté"_1252));
  EXPECT_THAT(Graine("autres-catalogues").trouvees, ElementsAre("Noël"_1252));
  EXPECT_THAT(Graine("vide").trouvees, IsEmpty());
}

TEST(Corpus, LesRecettesSeNettoientSeVidentEtReviennent) {
  const Bilan bilan = Graine("en-fabrique");
  EXPECT_TRUE(bilan.nettoye);
  EXPECT_TRUE(bilan.videe);
  EXPECT_TRUE(bilan.restauree);
  EXPECT_EQ(bilan.fin, std::nullopt);
}

TEST(Corpus, SansCopiesDeFabriqueLesRecettesSeNettoientSeulement) {
  const Bilan bilan = Graine("deux-familles");
  EXPECT_TRUE(bilan.nettoye);
  EXPECT_FALSE(bilan.videe);
  EXPECT_FALSE(bilan.restauree);
}

TEST(Corpus, LesComptesFauxArretentLesListesSansPlus) {
  EXPECT_EQ(Graine("comptes-trop-bas").recettes.size(), 1U);
  EXPECT_EQ(Graine("comptes-trop-hauts").recettes.size(), 3U);
  EXPECT_THAT(Graine("reduites-aux-entetes").familles, IsEmpty());
}

TEST(Corpus, UneReferenceDemesureeDonneCeQueLeFichierTient) {
  const Bilan bilan = Graine("references");
  EXPECT_EQ(bilan.recettes.size(), 9U);
  EXPECT_THAT(bilan.textes,
              testing::Contains(std::string("GLR3.DAT") + std::string("Un velouté.Mijot"_1252)));
  EXPECT_GT(bilan.pannes, 0U);
}

TEST(Corpus, LesFromagesLesMenusEtLesTrucsSontLus) {
  const Bilan bilan = Graine("autres-catalogues");
  EXPECT_THAT(bilan.fromages.liste, ElementsAre(EntreeListe{"Banon", 2}, EntreeListe{"Brie", 4},
                                                EntreeListe{std::string("Époisses"_1252), 5}));
  EXPECT_THAT(bilan.fromages.textes, ElementsAre("En feuille.", "", ""));
  EXPECT_THAT(bilan.menus.liste,
              ElementsAre(EntreeListe{std::string("Noël"_1252), 2}, EntreeListe{"Noce", 3}));
  EXPECT_THAT(bilan.menus.textes, ElementsAre("Du vin.", ""));
  EXPECT_THAT(bilan.trucs.liste, ElementsAre(EntreeListe{"Blanchir", 2}));
  EXPECT_THAT(bilan.trucs.textes, ElementsAre("A l'eau. !"));
}

TEST(Corpus, LesAutresCataloguesReduitsAuxEntetesSontVides) {
  const Bilan bilan = Graine("reduites-aux-entetes");
  EXPECT_THAT(bilan.fromages.liste, IsEmpty());
  EXPECT_THAT(bilan.menus.liste, IsEmpty());
  EXPECT_THAT(bilan.trucs.liste, IsEmpty());
  EXPECT_THAT(bilan.regions, IsEmpty());
  EXPECT_THAT(bilan.vins.liste, IsEmpty());
  EXPECT_THAT(bilan.cave, ElementsAre("Votre cave est vide !"));
  EXPECT_THAT(bilan.categories, IsEmpty());
  EXPECT_THAT(bilan.favoris.liste, IsEmpty());
}

TEST(Corpus, LesFavorisSontLusEtChanges) {
  const Bilan bilan = Graine("favoris");
  EXPECT_THAT(bilan.categories,
              ElementsAre(EntreeListe{"Artisans", 2}, EntreeListe{std::string("Marchés"_1252), 3}));
  EXPECT_THAT(
      bilan.favoris.liste,
      ElementsAre(EntreeListe{"Affineur", 2}, EntreeListe{"Boucher", 4}, EntreeListe{"Halles", 5}));
  EXPECT_THAT(bilan.favoris.textes, ElementsAre("1 rue HautDouze octets", "", ""));
  EXPECT_TRUE(bilan.favoriPasse);
  EXPECT_EQ(bilan.favorisChanges, 3U);
  EXPECT_EQ(bilan.fin, std::nullopt);
}

TEST(Corpus, LesFavorisFousSontTousListesEtDesAutresAussiChanges) {
  const Bilan bilan = Graine("favoris-fous");
  EXPECT_EQ(bilan.favoris.liste.size(), 21U);
  EXPECT_EQ(bilan.favoris.textes.size(), 17U);  // no negative length, no category below 1
  EXPECT_THAT(bilan.favoris.textes, testing::Contains(testing::SizeIs(512)));  // an address
  EXPECT_THAT(bilan.favoris.textes, testing::Contains(testing::SizeIs(631)));  // notes
  EXPECT_TRUE(bilan.favoriPasse);
  EXPECT_GT(bilan.favorisChanges, 9U);
}

// The first call of the disk behind the start that asks whether a file is there without a guard.
TEST(Corpus, UnFichierQuiManqueSansGardeFinitLeProgrammeApresSonMessage) {
  std::string entree = Octets(corpus / "favoris");
  bool fini = false;
  for (unsigned appel = 100; appel < 1000 && !fini; ++appel) {
    entree[4] = static_cast<char>(appel & 0xFFU);
    entree[5] = static_cast<char>(appel >> 8U);
    const Bilan bilan = Parcourt(entree);
    fini = bilan.fin.has_value();
    EXPECT_TRUE(!fini || bilan.messages.size() == 1U);
  }
  EXPECT_TRUE(fini);
}

TEST(Corpus, LesVinsEtLaCaveSontLusEtChanges) {
  const Bilan bilan = Graine("vins-et-cave");
  EXPECT_THAT(bilan.regions,
              ElementsAre(EntreeListe{"Alpes", 2}, EntreeListe{std::string("Rhône"_1252), 3}));
  EXPECT_THAT(bilan.vins.liste,
              ElementsAre(EntreeListe{"Abymes", 2}, EntreeListe{std::string("Crépy"_1252), 4},
                          EntreeListe{"Gigondas", 5}));
  EXPECT_THAT(bilan.vins.textes, ElementsAre("Dix octetsEn haut.", "", ""));
  ASSERT_EQ(bilan.cave.size(), 9U);
  EXPECT_EQ(bilan.cave.front(), "ABYMES - Région d'origine : Alpes"_1252);
  EXPECT_EQ(bilan.cave.back(), "... Total .......... 8");
  EXPECT_TRUE(bilan.vinPasse);
  EXPECT_EQ(bilan.vinsChanges, 3U);
}

TEST(Corpus, LesVinsFousSontTousListesEtDesAutresAussiChanges) {
  const Bilan bilan = Graine("vins-fous");
  EXPECT_EQ(bilan.vins.liste.size(), 27U);
  EXPECT_THAT(bilan.vins.textes, testing::Contains("GLV3.DATDix octetsEn haut."));
  EXPECT_THAT(bilan.cave, IsEmpty());  // a wine in no region has no line of its own
  EXPECT_TRUE(bilan.vinPasse);
  EXPECT_GT(bilan.vinsChanges, 9U);
}

// A position below 1 is no text; a negative length behind a position is the one failure.
TEST(Corpus, LesReferencesDesAutresCataloguesDonnentCeQueLaReserveTient) {
  const Bilan bilan = Graine("autres-references");
  EXPECT_THAT(bilan.fromages.textes, testing::Contains("GLF2.DATEn feuille."));
  EXPECT_THAT(bilan.menus.textes, testing::Contains("GLM2.DATDu vin."));
  EXPECT_THAT(bilan.trucs.textes, testing::Contains("GLT2.DATA l'eau. !"));
  for (const Lus* lus : {&bilan.fromages, &bilan.menus, &bilan.trucs}) {
    EXPECT_EQ(lus->liste.size(), 9U);
    EXPECT_EQ(lus->textes.size(), 8U);
  }
}

TEST(Corpus, UnCodeHorsDeSaTableNEmpecheQueSonFromage) {
  const Bilan bilan = Graine("codes-faux");
  EXPECT_EQ(bilan.fromages.liste.size(), 14U);
  EXPECT_EQ(bilan.fromages.textes.size(), 1U);
}

TEST(Corpus, SuitLesCheminsDImageQuiMenentQuelquePart) {
  EXPECT_THAT(Graine("images").images,
              ElementsAre("/photos/soupe.png", "/gastrelle/IMAGE/soupe.png"));
}

TEST(Corpus, ChaqueOctetPeutSeTrouverDansUnTitre) {
  std::string titres;
  for (const EntreeListe& recette : Graine("tous-les-octets").recettes) {
    titres += recette.texte;
  }
  for (int octet = 0; octet < 256; ++octet) {
    EXPECT_THAT(titres, testing::Contains(static_cast<char>(octet))) << octet;
  }
}

TEST(Corpus, LesRayonsSontLus) {
  EXPECT_EQ(Graine("rayons").rayons, 8U);
}

TEST(Corpus, LesNotesSontLuesSousToutesLesFinsDeLigne) {
  EXPECT_EQ(Graine("notes").notes, "  Un\r\nDeux\r\n\r\nTrois\r\nQuatre\r\n\r\n");
}

TEST(Corpus, UnMauvaisFichierEtUnFichierAbsentRefusentLeDemarrage) {
  for (const char* nom : {"entetes-faux", "sans-fichier", "panne-au-demarrage"}) {
    const Bilan bilan = Graine(nom);
    EXPECT_FALSE(bilan.cadre) << nom;
    EXPECT_THAT(bilan.fin, Optional(1)) << nom;
  }
}

TEST(Corpus, UnePanneApresLeDemarrageLaisseLeResteSeFaire) {
  const Bilan bilan = Graine("panne-dans-les-listes");
  EXPECT_TRUE(bilan.cadre);
  EXPECT_GT(bilan.pannes, 0U);
}

/// What lies in the program's folder that is no file; the parameter is its name in the corpus.
class ParmiLesIntrus : public testing::TestWithParam<std::string_view> {
 protected:
  static Bilan AvecIntrus(const char* ou) {
    return Graine("intrus-" + std::string(GetParam()) + ou);
  }

  const Patience patience;
};

TEST_P(ParmiLesIntrus, LesNomsDesCopiesEnCoursNeGenentPas) {
  const Bilan bilan = AvecIntrus("-copies");
  EXPECT_THAT(bilan.messages, IsEmpty());
  EXPECT_EQ(bilan.recettes.size(), 3U);
  EXPECT_TRUE(bilan.copie);
}

TEST_P(ParmiLesIntrus, UneCopieDeFabriqueQuiNEstPasUnFichierRefuseLeDemarrage) {
  const Bilan bilan = AvecIntrus("-fabriques");
  const bool unFichier = GetParam() == "lien-fichier";
  EXPECT_EQ(bilan.cadre, unFichier);
  EXPECT_EQ(bilan.messages.size(), unFichier ? 0U : 1U);
}

TEST_P(ParmiLesIntrus, UnFichierDeDonneesQuiNEnEstPasUnEstRemplaceOuDit) {
  const Bilan bilan = AvecIntrus("-donnees");
  EXPECT_EQ(bilan.cadre, bilan.messages.empty());
  EXPECT_EQ(bilan.fin, bilan.cadre ? std::nullopt : std::optional(1));
}

TEST_P(ParmiLesIntrus, LesNotesSeLisentAuBoutDUnLienVersUnFichierEtNullePartAilleurs) {
  const Bilan bilan = AvecIntrus("-notes");
  EXPECT_TRUE(bilan.cadre);
  EXPECT_THAT(bilan.messages, IsEmpty());
  EXPECT_EQ(bilan.notes.empty(), GetParam() != "lien-fichier");
}

TEST_P(ParmiLesIntrus, LaSauvegardeRemplaceToutSaufUnDossier) {
  const Bilan bilan = AvecIntrus("-sauve");
  EXPECT_TRUE(bilan.cadre);
  EXPECT_EQ(bilan.copie, GetParam() != "dossier");
}

/// Each name alone, over folders with their data files and with their factory copies.
TEST_P(ParmiLesIntrus, AucunNomNeBloqueNiNeMeneAilleurs) {
  const auto place = std::find(std::begin(nomsIntrus), std::end(nomsIntrus), GetParam());
  const auto intrus = static_cast<Intrus>(place - std::begin(nomsIntrus));
  for (const char* base : {"deux-familles", "en-fabrique"}) {
    std::string entree = Octets(corpus / base);
    entree[0] = static_cast<char>(static_cast<unsigned char>(entree[0]) | surDisque);
    for (const std::string& nom : NomsDuDossier()) {
      SCOPED_TRACE(std::string(base) + ", " + nom);
      EXPECT_NO_THROW(static_cast<void>(Parcourt(entree + Glisse(nom, intrus))));
    }
  }
}

INSTANTIATE_TEST_SUITE_P(Tous, ParmiLesIntrus, testing::ValuesIn(nomsIntrus),
                         [](const testing::TestParamInfo<std::string_view>& cas) {
                           std::string nom(cas.param);
                           std::replace(nom.begin(), nom.end(), '-', '_');
                           return nom;
                         });

}  // namespace
}  // namespace gastrelle::essai
