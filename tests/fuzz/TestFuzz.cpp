// The corpus replayed as ordinary tests, and the proof that its folders are what they claim: a
// fuzzer that never gets past the first file would find nothing.

#include <cstdint>
#include <filesystem>
#include <fstream>
#include <iterator>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "data/Texte1252.h"
#include "fuzz/Entree.h"
#include "fuzz/Graines.h"
#include "fuzz/Parcours.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* octets, std::size_t longueur);

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

Bilan Graine(const char* nom) {
  return Parcourt(Octets(corpus / nom));
}

TEST(Corpus, RejoueToutesLesEntreesGardees) {
  std::size_t rejouees = 0;
  for (const auto& fichier : std::filesystem::directory_iterator(corpus)) {
    SCOPED_TRACE(fichier.path().filename().string());
    const std::string octets = Octets(fichier);
    const std::vector<std::uint8_t> entree(octets.begin(), octets.end());
    EXPECT_NO_THROW(LLVMFuzzerTestOneInput(entree.data(), entree.size()));
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
  }
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

}  // namespace
}  // namespace gastrelle::essai
