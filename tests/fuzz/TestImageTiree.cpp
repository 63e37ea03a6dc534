// The corpus of pictures replayed as ordinary tests.

#include <filesystem>
#include <fstream>
#include <iterator>

#include <gtest/gtest.h>

#include "fuzz/ImageTiree.h"

namespace gastrelle::essai {
namespace {

const std::filesystem::path corpus = DOSSIER_CORPUS_IMAGES;

std::string Octets(const std::filesystem::path& fichier) {
  std::ifstream entree(fichier, std::ios::binary);
  return {std::istreambuf_iterator<char>(entree), {}};
}

TEST(CorpusImages, RejoueToutesLesEntreesGardees) {
  std::size_t rejouees = 0;
  for (const auto& fichier : std::filesystem::directory_iterator(corpus)) {
    SCOPED_TRACE(fichier.path().filename().string());
    EXPECT_NO_THROW(static_cast<void>(LitImageTiree(Octets(fichier))));
    ++rejouees;
  }
  EXPECT_GE(rejouees, GrainesImages().size());
}

TEST(CorpusImages, TientLesGrainesTellesQuElles) {
  for (const Graine& graine : GrainesImages()) {
    EXPECT_EQ(Octets(corpus / graine.nom), graine.octets) << graine.nom;
  }
}

TEST(CorpusImages, UneImageEnormeEstRefuseeDansLaSeconde) {
  constexpr qint64 uneSeconde = 1000;
  for (const Graine& graine : GrainesImages()) {
    if (graine.nom.ends_with("-enorme")) {
      const ImageLue lue = LitImageTiree(graine.octets);
      EXPECT_TRUE(lue.nulle) << graine.nom;
      EXPECT_LT(lue.duree, uneSeconde) << graine.nom;
    }
  }
}

TEST(CorpusImages, UnePetiteImageEntiereEstLue) {
  const ImageLue entiere = LitImageTiree(Octets(corpus / "png-entiere-petite"));
  EXPECT_FALSE(entiere.nulle);
  EXPECT_EQ(entiere.annoncee, QSize(8, 8));
  EXPECT_FALSE(LitImageTiree(Octets(corpus / "octets-png")).nulle);
  EXPECT_TRUE(LitImageTiree(Octets(corpus / "octets-aucun")).nulle);
  const ImageLue reduite = LitImageTiree(Octets(corpus / "png-entiere-reduite"));
  EXPECT_FALSE(reduite.nulle);
  EXPECT_EQ(reduite.annoncee, QSize(512, 512));
}

}  // namespace
}  // namespace gastrelle::essai
