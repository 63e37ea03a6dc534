// Which entries and buttons each window and tab allows.

#include <gtest/gtest.h>

#include "shell/EtatsCadre.h"

namespace gastrelle {
namespace {

struct Attendu {
  std::int16_t code;
  const char* motif;  // print, cut, copy, paste, select, search, send entry, send buttons, picture
};

std::string Lisible(const Motif& motif) {
  std::string texte;
  for (const Etat etat : motif) {
    texte += static_cast<char>(etat);
  }
  return texte;
}

class Motifs : public testing::TestWithParam<Attendu> {};

TEST_P(Motifs, SontCeuxDuContexte) {
  EXPECT_EQ(Lisible(MotifDuContexte(GetParam().code)), GetParam().motif);
}

INSTANTIATE_TEST_SUITE_P(
    Contextes, Motifs,
    testing::Values(Attendu{11, "+-+-++++="}, Attendu{12, "-+++=----"}, Attendu{13, "-+++=----"},
                    Attendu{14, "---------"}, Attendu{15, "---------"}, Attendu{21, "+-+-+-++-"},
                    Attendu{22, "-++++----"}, Attendu{23, "-++++----"}, Attendu{24, "---------"},
                    Attendu{25, "+-----++-"}, Attendu{31, "+-+-++=+-"}, Attendu{32, "-++++-=--"},
                    Attendu{33, "-++++-=--"}, Attendu{34, "------=--"}, Attendu{41, "+-+-+-++-"},
                    Attendu{42, "-++++----"}, Attendu{43, "-++++----"}, Attendu{44, "---------"},
                    Attendu{45, "+-----++-"}, Attendu{46, "+++++----"}, Attendu{47, "+-----++-"},
                    Attendu{51, "------++="}, Attendu{52, "--------="}, Attendu{53, "--------="},
                    Attendu{61, "+-+-++++-"}, Attendu{62, "-++++----"}, Attendu{63, "-++++----"},
                    Attendu{64, "---------"}, Attendu{71, "+-+-+-++-"}, Attendu{72, "-++++----"},
                    Attendu{73, "-++++----"}, Attendu{74, "--------="}, Attendu{75, "+-----++-"},
                    Attendu{90, "+++++----"}, Attendu{100, "+++++----"}));

TEST(Motifs, UnContexteInconnuNeToucheARien) {
  EXPECT_EQ(Lisible(MotifDuContexte(16)), "=========");
  EXPECT_EQ(Lisible(MotifDuContexte(0)), "=========");
}

TEST(Motifs, QuitterUneFenetreEteintToutSaufLEnvoiPourLesMenus) {
  EXPECT_EQ(Lisible(MotifDeSortie(EntreeVue::recettes)), "---------");
  EXPECT_EQ(Lisible(MotifDeSortie(EntreeVue::mesCourses)), "---------");
  EXPECT_EQ(Lisible(MotifDeSortie(EntreeVue::menus)), "------=--");
}

}  // namespace
}  // namespace gastrelle
