// The codes of the windows and their tabs.

#include <gtest/gtest.h>

#include "data/Contextes.h"

namespace gastrelle {
namespace {

TEST(Contextes, LaDizaineDitLaFenetreEtLUniteLOnglet) {
  EXPECT_EQ(Contexte(EntreeVue::recettes, ongletListe), 11);
  EXPECT_EQ(Contexte(EntreeVue::fromages, 5), 25);
  EXPECT_EQ(Contexte(EntreeVue::menus, 4), 34);
  EXPECT_EQ(Contexte(EntreeVue::vins, 7), 47);
  EXPECT_EQ(Contexte(EntreeVue::millesimes, 3), 53);
  EXPECT_EQ(Contexte(EntreeVue::termesTrucsAstuces, 1), 61);
  EXPECT_EQ(Contexte(EntreeVue::favoris, 5), 75);
  EXPECT_EQ(Contexte(EntreeVue::mesNotes), 90);
  EXPECT_EQ(Contexte(EntreeVue::mesCourses), 100);
}

TEST(Contextes, UnCodeNEstQueDUneFenetre) {
  for (std::size_t vue = 0; vue < nombreVues; ++vue) {
    const auto celle = static_cast<EntreeVue>(vue);
    for (std::size_t autre = 0; autre < nombreVues; ++autre) {
      EXPECT_EQ(EstContexteDe(Contexte(static_cast<EntreeVue>(autre), 1), celle), autre == vue);
    }
    EXPECT_FALSE(EstContexteDe(sansContexte, celle));
  }
  EXPECT_TRUE(EstContexteDe(90, EntreeVue::mesNotes));
  EXPECT_FALSE(EstContexteDe(100, EntreeVue::mesNotes));
  EXPECT_TRUE(EstContexteDe(100, EntreeVue::mesCourses));
}

}  // namespace
}  // namespace gastrelle
