// The catalogues as they are read from good sources.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "data/Texte1252.h"
#include "usine/SourcesEssai.h"

namespace gastrelle::usine {
namespace {

using testing::Each;
using testing::ElementsAre;
using testing::Field;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;

TEST(Catalogues, LesBonnesSourcesPassent) {
  SourcesEssai sources;
  sources.Compile();
  EXPECT_THAT(sources.journal.refus(), IsEmpty());
}

TEST(Catalogues, GardentLOrdreDesSources) {
  SourcesEssai sources;
  const Catalogues c = sources.Compile();
  EXPECT_THAT(c.familles, ElementsAre("Potages", "Desserts"));
  EXPECT_THAT(c.recettes,
              ElementsAre(Field(&Recette::titre, "Velout\xE9"), Field(&Recette::titre, "Bisque"),
                          Field(&Recette::titre, "Flan")));
  EXPECT_EQ(c.vins.front().nom, "Vin 1");
  EXPECT_EQ(c.vins.back().nom, "Vin 563");
}

TEST(Catalogues, DesignentLesGroupesParLeurFiche) {
  SourcesEssai sources;
  const Catalogues c = sources.Compile();
  EXPECT_THAT(c.recettes, ElementsAre(Field(&Recette::idFamille, 2), Field(&Recette::idFamille, 2),
                                      Field(&Recette::idFamille, 3)));
  EXPECT_EQ(c.vins.front().idRegion, 2);
  EXPECT_EQ(c.vins.back().idRegion, 28);
  EXPECT_THAT(c.favoris, Each(Field(&Favori::idCategorie, 3)));
}

TEST(Catalogues, ComposentLeTexteDUneRecette) {
  SourcesEssai sources;
  EXPECT_EQ(VersUtf8(sources.Compile().recettes.front().texte),
            "Pour 4 personnes\r\n"
            "Préparation\u00A0: 20 min\r\n"
            "Cuisson\u00A0: 1 h\r\n"
            "Saison\u00A0: été\r\n"
            "\r\n"
            "Ingrédients\r\n"
            "- 1 oignon\r\n"
            "- Sel\r\n"
            "\r\n"
            "Étapes\r\n"
            "1. Éplucher.\r\n"
            "2. Cuire le tout\u00A0: Velouté.\r\n"
            "3. Servir.\r\n"
            "\r\n"
            "Conseil\u00A0: Ce plat se prépare très bien la veille.");
}

TEST(Catalogues, LaissentUneRecetteSansCuissonEtAvecRepos) {
  SourcesEssai sources;
  sources.Remplace("recettes/potages.toml", "cuisson = \"1 h\"", "repos = \"une nuit\"");
  const std::string texte = VersUtf8(sources.Compile().recettes.front().texte);
  EXPECT_THAT(texte, HasSubstr("20 min\r\nRepos\u00A0: une nuit\r\nSaison\u00A0: été\r\n\r\n"));
  EXPECT_THAT(sources.journal.refus(), IsEmpty());
}

TEST(Catalogues, DisentLaRegionDUneRecetteQuiEnAUne) {
  SourcesEssai sources;
  sources.Remplace("recettes/potages.toml", "saison = \"été\"",
                   "saison = \"de l'automne au printemps\"\nregion = \"Île-de-France\"");
  EXPECT_THAT(VersUtf8(sources.Compile().recettes.front().texte),
              HasSubstr("Saison\u00A0: de l'automne au printemps\r\n"
                        "Région\u00A0: Île-de-France\r\n\r\nIngrédients"));
  EXPECT_THAT(sources.journal.refus(), IsEmpty());
}

TEST(Catalogues, PreferentLImageDUneRecetteACelleDeSaFamille) {
  SourcesEssai sources;
  sources.AjouteImage("bisque.png");
  sources.Remplace("recettes/potages.toml", "titre = \"Bisque\"",
                   "titre = \"Bisque\"\nimage = \"bisque.png\"");
  EXPECT_THAT(sources.Compile().recettes,
              ElementsAre(Field(&Recette::image, "/potages.png"),
                          Field(&Recette::image, "/bisque.png"), Field(&Recette::image, "")));
  EXPECT_THAT(sources.journal.refus(), IsEmpty());
}

TEST(Catalogues, DonnentAuxRecettesLImageDeLeurFamille) {
  SourcesEssai sources;
  EXPECT_THAT(sources.Compile().recettes,
              ElementsAre(Field(&Recette::image, "/potages.png"),
                          Field(&Recette::image, "/potages.png"), Field(&Recette::image, "")));
}

TEST(Catalogues, CodentLeLaitEtLesMois) {
  SourcesEssai sources;
  sources.Remplace("fromages.toml", "lait = \"vache\"", "lait = \"brebis\"");
  sources.Remplace("fromages.toml", "de = \"mai\"", "de = \"décembre\"");
  sources.Remplace("fromages.toml", "a = \"octobre\"", "a = \"?\"");
  const Fromage fromage = sources.Compile().fromages.front();
  EXPECT_EQ(fromage.lait, 3);
  EXPECT_EQ(fromage.premierMois, 12);
  EXPECT_EQ(fromage.dernierMois, 0);
}

TEST(Catalogues, ComposentLesDeuxLignesDUneAdresse) {
  SourcesEssai sources;
  EXPECT_EQ(sources.Compile().favoris.front().adresse, "1, rue du Four\r\n21000 Dijon");
}

TEST(Catalogues, RangentLesNotesDUneAnnee) {
  SourcesEssai sources;
  sources.Remplace("millesimes.toml", "alsace = 2", "alsace = 5");
  const Catalogues c = sources.Compile();
  EXPECT_THAT(c.millesimes, SizeIs(3));
  EXPECT_THAT(c.millesimes.front(), ElementsAre(2, 2, 2, 2, 2, 5, 2, 2, 2));
}

TEST(Catalogues, DisentToutesLesFautesEnUneFois) {
  SourcesEssai sources;
  sources.Remplace("menus.toml", "titre = \"Menu 3\"", "titre = \"\"");
  sources.Remplace("trucs.toml", "titre = \"Truc 9\"", "titre = \"Truc 8\"");
  sources.Compile();
  EXPECT_THAT(sources.journal.refus(), SizeIs(2));
}

}  // namespace
}  // namespace gastrelle::usine
