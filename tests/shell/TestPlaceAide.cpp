// Where the help's window stands when it is first opened.

#include <gtest/gtest.h>

#include "shell/PlaceAide.h"

namespace gastrelle::essai {
namespace {

constexpr QRect grand(0, 0, 1920, 1050);
constexpr QSize taille(980, 640);

QRect Aide(const QRect& ecran, const QSize& sienne, const QRect& programme) {
  return {CoinAide(ecran, sienne, programme), sienne};
}

TEST(PlaceDeLAide, SaTailleEstDe980Sur640OuTientDansLEcran) {
  EXPECT_EQ(TailleAide(grand), taille);
  EXPECT_EQ(TailleAide({0, 0, 1024, 600}), QSize(870, 510));
  EXPECT_EQ(TailleAide({0, 0, 960, 540}), QSize(816, 459));
}

TEST(PlaceDeLAide, ElleSeMetACoteDuProgrammeSIlYALaPlace) {
  EXPECT_EQ(Aide(grand, taille, {20, 30, 800, 600}).topLeft(), QPoint(820, 30));
  EXPECT_EQ(Aide(grand, taille, {1100, 30, 800, 600}).topLeft(), QPoint(120, 30));
}

TEST(PlaceDeLAide, SousLeProgrammeSiLaPlaceEstLa) {
  EXPECT_EQ(Aide({0, 0, 1080, 1920}, taille, {0, 0, 1000, 700}).topLeft(), QPoint(0, 700));
}

TEST(PlaceDeLAide, SansPlaceElleCouvreLeMoinsPossible) {
  // At the right edge it covers the program by 260 of its 800 pixels; at the left one by all.
  EXPECT_EQ(Aide({0, 0, 1520, 700}, taille, {0, 0, 800, 700}).topLeft(), QPoint(540, 0));
}

TEST(PlaceDeLAide, ElleResteSurLEcranDuProgramme) {
  const QRect second(1920, 40, 1366, 728);
  for (const QRect& programme : {second, QRect(1920, 40, 800, 600), QRect(2400, 300, 800, 460),
                                 QRect(1900, 600, 300, 300), QRect()}) {
    EXPECT_TRUE(second.contains(Aide(second, taille, programme))) << programme.x();
  }
}

}  // namespace
}  // namespace gastrelle::essai
