// Which files may be the picture of a recipe.

#include <gtest/gtest.h>

#include "recettes/ImageRecette.h"

namespace gastrelle {
namespace {

struct Cas {
  const char* chemin;
  GenreImage genre;
  bool refuseeAuChoix;
};

class Extensions : public testing::TestWithParam<Cas> {};

TEST_P(Extensions, DecidentParCeQuiSuitLeDernierPointSansCasse) {
  EXPECT_EQ(GenreDe(GetParam().chemin), GetParam().genre);
  EXPECT_EQ(RefuseeAuChoix(GetParam().chemin), GetParam().refuseeAuChoix);
}

INSTANTIATE_TEST_SUITE_P(
    Images, Extensions,
    testing::Values(
        Cas{"/a/b.exe", GenreImage::refuse, true}, Cas{"b.Com", GenreImage::refuse, true},
        Cas{"b.BAT", GenreImage::refuse, true}, Cas{"b.dll", GenreImage::refuse, true},
        Cas{"b.vbx", GenreImage::refuse, true}, Cas{"b.ocx", GenreImage::refuse, true},
        Cas{"b.doc", GenreImage::refuse, true}, Cas{"b.txt", GenreImage::refuse, true},
        Cas{"b.wri", GenreImage::refuse, true}, Cas{"/a/sans", GenreImage::refuse, true},
        Cas{"/a/finit.", GenreImage::refuse, false}, Cas{"b.gif", GenreImage::affichable, false},
        Cas{"b.JPG", GenreImage::affichable, false}, Cas{"b.bmp", GenreImage::affichable, false},
        Cas{"b.wmf", GenreImage::affichable, false}, Cas{"b.emf", GenreImage::affichable, false},
        Cas{"b.Ico", GenreImage::affichable, false}, Cas{"b.png", GenreImage::autre, false},
        Cas{"b.jpeg", GenreImage::autre, false}, Cas{"b.txt.png", GenreImage::autre, false}));

}  // namespace
}  // namespace gastrelle
