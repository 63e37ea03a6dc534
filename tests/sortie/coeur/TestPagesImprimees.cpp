// What each window prints, against the pages in `modeles`: every line of the paper, the empty ones
// too.

#include <cstdint>
#include <initializer_list>
#include <ostream>
#include <string>
#include <string_view>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "data/Texte1252.h"
#include "doublures/Bibliotheque.h"
#include "sortie/Impression.h"
#include "sortie/LignesImprimees.h"
#include "sortie/Modeles.h"

namespace gastrelle::essai {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

struct PageAttendue {
  const char* modele;  ///< without "imprime-" and ".txt"
  Vue vue;
  std::int16_t policeGrande = 0;
};

void PrintTo(const PageAttendue& page, std::ostream* sortie) {
  *sortie << page.modele;
}

std::vector<std::string> Tous(std::initializer_list<const char*> utf8) {
  std::vector<std::string> textes;
  for (const char* texte : utf8) {
    textes.push_back(DepuisUtf8(texte));
  }
  return textes;
}

VueRecette Veloute(std::string_view texte) {
  return {DepuisUtf8("Entrées"), DepuisUtf8("Velouté d'asperges"), DepuisUtf8(texte),
          "/dossier/image.png"};
}

/// One line of it is as long as a page of 10 points is wide.
constexpr const char* texteDuVeloute =
    "Éplucher les asperges, garder les pointes, couper le reste en tronçons et les cuire vingt "
    "minutes à feu doux dans un bon bouillon.\r\n\r\nMixer avec les œufs : 2 € de crème, pas plus.";

std::vector<PageAttendue> Pages() {
  const std::string rhone = DepuisUtf8("  Rhône  ");
  const std::string metiers = DepuisUtf8(" Métiers de bouche ");
  const std::string epiciere = DepuisUtf8("L'épicière");
  const std::string chateauChalon = DepuisUtf8("Château-Chalon");
  const std::string noel = DepuisUtf8("Repas de Noël");
  return {
      {"11", Veloute(texteDuVeloute)},
      {"11-grande", Veloute(texteDuVeloute), 1},
      {"11-grande", Veloute(texteDuVeloute), -1},
      {"11-sans-texte", Veloute("")},
      {"21",
       VueFromage{"Fourme d'Ambert", "Auvergne", "Vache", DepuisUtf8("Août"),
                  DepuisUtf8("Décembre"), DepuisUtf8("Pâte persillée.\r\nCroûte à brosser.")}},
      {"21-sans-notes", VueFromage{"Fourme d'Ambert", "", "Vache", "?", "?", ""}, 1},
      {"25", VueFromagesTries{DepuisUtf8(" Chèvre "), Tous({" Banon ", "  Valençay"})}},
      {"25-vide", VueFromagesTries{"Brebis", {}}},
      {"31", VueMenu{noel, DepuisUtf8("Huîtres\r\n\r\nChapon rôti\r\n")}},
      {"31-sans-texte", VueMenu{noel, ""}},
      {"41", VueVin{chateauChalon, "Jura", DepuisUtf8("Vin jaune : à boire chambré.")}},
      {"41-sans-note", VueVin{chateauChalon, "Jura", ""}, 1},
      {"45", VueVinsTries{rhone, Tous({" Condrieu ", "Côte-Rôtie "})}},
      {"45-vide", VueVinsTries{rhone, {}}},
      {"46", VueCaveDuVin{"Arbois",
                          "Jura",
                          {"1", "22", "3", "4", "5", "600", "7", "8", "9"},
                          DepuisUtf8("Derrière la porte,\r\nà gauche.")}},
      {"46-vide", VueCaveDuVin{}},
      {"47", VueCave{Tous({"ABYMES - Région d'origine : Alpes", ".. Blanc ........... 6",
                           "... Total .......... 6", " ", "Nombre total de bouteilles dans ma cave",
                           ".. ROSÉ ............ 3", " en retrait "})}},
      {"47-vide", VueCave{{"Votre cave est vide !"}}, 1},
      {"61", VueTruc{"Blanchir", DepuisUtf8("Plonger à l'eau bouillante.")}},
      {"61-sans-texte", VueTruc{"Blanchir", ""}},
      {"71", VueFavori{epiciere, "Artisans", "1 rue Haute\r\n01000 Bourg", "01 02 03 04 05",
                       "01 02 03 04 06", "a@b.fr", "https://b.fr", DepuisUtf8("Fermé le lundi.")}},
      {"71-vide", VueFavori{epiciere, "", "", "", "", "", "", ""}},
      {"75", VueFavorisTries{metiers, Tous({" Affineur", "L'épicière "})}},
      {"75-vide", VueFavorisTries{metiers, {}}},
      {"90", VueNotes{DepuisUtf8("  Penser à la levure.\r\n\r\nNe pas oublier l'aïoli. ")}},
      {"100", VueCourses{{{"Boucherie", DepuisUtf8("rôti\r\nporc")},
                          {DepuisUtf8("Légumes"), "poireaux"},
                          {"Divers", "sel"}}}},
      {"100-un-rayon", VueCourses{{{"Divers", "sel"}}}, 1},
  };
}

class PagesImprimees : public testing::TestWithParam<PageAttendue> {
 protected:
  Bibliotheque b;
};

TEST_P(PagesImprimees, SontCellesDuModele) {
  b.module->prefs[0].policeGrande = GetParam().policeGrande;
  ImprimeVue(*b.module, GetParam().vue);
  ASSERT_THAT(b.imprimantes.travaux, SizeIs(1));
  std::string page;
  for (const std::string& ligne : b.imprimantes.travaux.front().ToutesLignes()) {
    page += ligne + "\r\n";
  }
  const std::string modele = Modele("imprime-" + std::string(GetParam().modele));
  ASSERT_FALSE(modele.empty());
  EXPECT_EQ(page, modele) << VersUtf8(page);
  EXPECT_TRUE(b.imprimantes.travaux.front().envoye);
  EXPECT_THAT(b.messages.vus, IsEmpty());
  EXPECT_EQ(b.messages.bips, 0);
}

INSTANTIATE_TEST_SUITE_P(, PagesImprimees, testing::ValuesIn(Pages()));

/// A line at the foot that nothing is on can't be seen on a page.
TEST(PiedDesPages, UnTexteVideNeLaissePasDeLigneBlanche) {
  EXPECT_THAT(LignesImprimees(Veloute("")), SizeIs(2));
  EXPECT_THAT(LignesImprimees(VueFromage{}), SizeIs(6));
  EXPECT_THAT(LignesImprimees(VueMenu{}), SizeIs(1));
  EXPECT_THAT(LignesImprimees(VueVin{}), SizeIs(2));
  EXPECT_THAT(LignesImprimees(VueTruc{}), SizeIs(1));
}

TEST(PiedDesPages, LeTitreDeToutLeRapportEstUnSeulTexte) {
  EXPECT_THAT(LignesImprimees(VueCave{{"a", ""}}),
              ElementsAre("\r\nToute ma cave\r\n\r\n", "a", ""));
}

}  // namespace
}  // namespace gastrelle::essai
