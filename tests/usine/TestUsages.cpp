// The ways of the house: each breach is told with its place, and what only looks like one passes.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "data/Texte1252.h"
#include "usine/Usages.h"

namespace gastrelle::usine {
namespace {

using testing::HasSubstr;

struct CasUsage {
  const char* nom;
  unsigned portees;
  const char* texte;
  const char* raison;    ///< part of it
  std::size_t position;  ///< in bytes
};

class Ecart : public testing::TestWithParam<CasUsage> {};

TEST_P(Ecart, EstDitAvecSaPlace) {
  const auto faute = FauteUsage(DepuisUtf8(GetParam().texte), GetParam().portees);
  ASSERT_TRUE(faute);
  EXPECT_THAT(faute->raison, HasSubstr(GetParam().raison));
  EXPECT_EQ(faute->position, GetParam().position);
}

using usages::cuisine;
using usages::fourneau;
using usages::ingredient;
using usages::phrase;
using usages::portrait;
using usages::recette;
using usages::vin;

INSTANTIATE_TEST_SUITE_P(
    Usages, Ecart,
    testing::Values(
        CasUsage{"Minutes", phrase, "Cuire 10 minutes.", "min, h ou s", 8},
        CasUsage{"Heure", phrase, "Cuire 1 heure.", "min, h ou s", 7},
        CasUsage{"Secondes", phrase, "Cuire 30 secondes.", "min, h ou s", 8},
        CasUsage{"MinutesDerriereHeures", phrase, "Cuire 1 h 30 min.", "sans min", 6},
        CasUsage{"PainDEpices", phrase, "Un pain d'épices.", "« pain d'épice »", 3},
        CasUsage{"Imperatif", phrase, "Ne salez pas.", "infinitif", 3},
        CasUsage{"ImperatifEnTete", phrase, "Retirez-la.", "infinitif", 0},
        CasUsage{"Vous", phrase, "Ce que vous aimez.", "infinitif", 7},
        CasUsage{"Votre", phrase, "Avec votre vin.", "infinitif", 5},
        CasUsage{"Vos", phrase, "Vos vins.", "infinitif", 0},
        CasUsage{"CroixEnLettre", phrase, "Moule de 30 x 40 cm.", "signe ×", 12},
        CasUsage{"CroixCollee", phrase, "Moule de 30x40 cm.", "signe ×", 11},
        CasUsage{"CroixEntreUnites", phrase, "De 3 cm x 4 cm.", "signe ×", 8},
        CasUsage{"MoinsEnTraitDUnion", phrase, "Garder à -18 °C.", "signe moins", 9},
        CasUsage{"ChaleursParOu", phrase, "Servir à 16 ou 17 °C.", "« ou »", 9},
        CasUsage{"Kougelhopf", phrase, "Un kougelhopf.", "« kouglof »", 3},
        CasUsage{"Caneles", phrase, "Canelés tièdes.", "« cannelé »", 0},
        CasUsage{"Dorades", phrase, "Deux dorades.", "« daurade »", 5},
        CasUsage{"TarteFlambee", phrase, "Une tarte flambée.", "« flammekueche »", 4},
        CasUsage{"Sulfurise", phrase, "Un papier sulfurisé.", "« papier cuisson »", 3},
        CasUsage{"ConcentreDeTomates", phrase, "Le concentré de tomates.", "de tomate »", 3},
        CasUsage{"SteakFrites", phrase, "Un steak frites.", "« steak-frites »", 3},
        CasUsage{"XeresSansAccent", phrase, "Le vinaigre de xeres.", "xérès", 3},
        CasUsage{"Tris", phrase, "Par tris successifs.", "« tries »", 4},
        CasUsage{"TrisEnFinDePhrase", phrase, "En deux tris.", "« tries »", 8},
        CasUsage{"Granit", phrase, "Du granit rose.", "« granite »", 3},
        CasUsage{"ServiceEntreDeux", portrait, "Servir à 14 à 16 °C.", "trait d'union", 9},
        CasUsage{"AgeEnLettres", vin, "De 4 à dix ans.", "âge en chiffres", 10},
        CasUsage{"AgeCompose", vin, "Garder vingt-cinq ans.", "âge en chiffres", 17},
        CasUsage{"Centenaire", vin, "Il a cent ans.", "âge en chiffres", 9},
        CasUsage{"Hectares", vin, "Sur 29 hectares.", "ha attendu", 7},
        CasUsage{"SansThermostat", cuisine, "Chauffer le four à 180 °C.", "thermostat", 19},
        CasUsage{"SecondeChaleurDeLaPhrase", cuisine,
                 "Mettre au four à 220 °C (th. 7-8), puis 30 min à 180 °C.", "thermostat", 49},
        CasUsage{"Enfourner", cuisine, "Huiler et enfourner à 200 °C.", "thermostat", 22},
        CasUsage{"FourDerriereLHuile", cuisine, "Verser l'huile et passer au four à 200 °C.",
                 "thermostat", 35},
        CasUsage{"BaisserEnTete", cuisine, "Baisser à 150 °C.", "thermostat", 10},
        CasUsage{"ChaleurSansFour", fourneau, "Cuire 30 min à 180 °C.", "thermostat", 15},
        CasUsage{"FauxThermostat", cuisine, "Le four à 200 °C (th. 7).", "thermostat faux", 10},
        CasUsage{"ThermostatSansMoitie", cuisine, "Le four à 190 °C (th. 6).", "thermostat", 10},
        CasUsage{"ThermostatDeTrop", cuisine, "Le four à 210 °C (th. 7-8).", "thermostat", 10},
        CasUsage{"FourBaisse", cuisine, "Puis baisser à 150 °C.", "thermostat", 15},
        CasUsage{"FourAvant", cuisine, "Sortir du four chauffé vers 150 °C.", "thermostat", 28},
        CasUsage{"FaussePrecision", recette, "Cuire 33 min.", "multiple de 5", 6},
        CasUsage{"DixSeptMinutes", recette, "Cuire 17 min.", "multiple de 5", 6},
        CasUsage{"PersilEnCuilleres", ingredient, "2 cuillères de persil haché", "brins", 15},
        CasUsage{"FaussePrecisionAuDebut", recette, "Cuire 13 à 15 min.", "multiple de 5", 6},
        CasUsage{"TropDeBrins", ingredient, "20 brins de persil plat", "brins", 12},
        CasUsage{"PersilEnTete", ingredient, "Persil plat", "brins", 0},
        CasUsage{"PersilEnGrammes", ingredient, "20 g de persil plat", "brins", 8},
        CasUsage{"CremeIndecise", ingredient, "20 cl de crème fraîche", "épaisse", 9},
        CasUsage{"CremeIndeciseEnTete", ingredient, "Crème fraîche", "épaisse", 0},
        CasUsage{"SelVirgulePoivre", ingredient, "Sel, poivre", "Sel et poivre", 0},
        CasUsage{"SelVirgulePoivreEnBas", ingredient, "Du sel, poivre", "Sel et poivre", 3}),
    [](const auto& cas) { return std::string(cas.param.nom); });

struct CasJuste {
  unsigned portees;
  const char* texte;
};

class SansEcart : public testing::TestWithParam<CasJuste> {};

TEST_P(SansEcart, Passe) {
  const auto faute = FauteUsage(DepuisUtf8(GetParam().texte), GetParam().portees);
  EXPECT_FALSE(faute) << faute->raison;
}

constexpr unsigned toutes = phrase | portrait | vin | cuisine | fourneau | recette | ingredient;

INSTANTIATE_TEST_SUITE_P(
    Usages, SansEcart,
    testing::Values(
        CasJuste{toutes, "Cuire 10 min, puis 1 h 30, puis 30 s."},
        CasJuste{toutes, "Une vingtaine de minutes, une demi-heure."},
        CasJuste{toutes, "Chez lui, assez de nez ; un rendez-vous au Forez."},
        CasJuste{toutes, "Rendez-vous à Villeneuve-lez-Avignon."},
        CasJuste{toutes, "14 minces tranches de jambon persillé, sans faux x."},
        CasJuste{toutes, "Moule de 30 × 40 cm, gardé à –18 °C, en 2003-2004."},
        CasJuste{
            toutes,
            "Du kouglof, des cannelés, une daurade, des tries, triste, du granite granitique."},
        CasJuste{toutes, "Une dizaine d'années, un an, dix vins, cent anses."},
        CasJuste{toutes, "Une dizaine d'hectares, 29 ha."}, CasJuste{toutes, "Servir à 14-16 °C."},
        CasJuste{phrase | cuisine | recette, "La sonde marque 52 à 54 °C."},
        CasJuste{toutes, "Le four à 180 °C (th. 6), puis à 200 °C (th. 6-7)."},
        CasJuste{toutes, "Baisser à 210 °C (th. 7). Frire dans l'huile à 170 °C."},
        CasJuste{cuisine, "Cuire 30 min à 180 °C."},
        CasJuste{toutes, "Arrêter la confiture à 105 °C."},
        CasJuste{toutes, "Sortir du four quand la sonde marque 94 °C."},
        CasJuste{toutes, "Sortir du four. Cuire le sirop à 118 °C."},
        CasJuste{toutes, "Le riz 18 min, les macarons 12 min, 10 min, 45 min, 9 min."},
        CasJuste{toutes, "6 brins de persil plat"}, CasJuste{toutes, "1 bouquet de persil plat"},
        CasJuste{toutes, "1 bouquet garni (thym, laurier, queues de persil)"},
        CasJuste{toutes, "20 cl de crème fraîche épaisse"},
        CasJuste{toutes, "Sel et poivre du moulin"}, CasJuste{0, "Retirez 10 minutes."},
        CasJuste{phrase, "Garder dix ans sur 29 hectares."},
        CasJuste{phrase, "Cuire 33 min au four à 180 °C."}, CasJuste{toutes, ""}));

TEST(DeuxPoints, ExpliquentCeQuiLesPrecede) {
  EXPECT_TRUE(ExpliqueApresDeuxPoints("Un : deux"));
  EXPECT_TRUE(ExpliqueApresDeuxPoints("Un\xA0: deux"));
  EXPECT_FALSE(ExpliqueApresDeuxPoints("De 12:30 \xE0 13:00"));
}

}  // namespace
}  // namespace gastrelle::usine
