// The spelling of every name and text of the factory sources.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "data/Texte1252.h"
#include "usine/Orthographe.h"

namespace gastrelle::usine {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::Key;
using testing::UnorderedElementsAre;

Mots Cles(const MotsEtLieux& mots) {
  Mots cles;
  for (const auto& [mot, lieux] : mots) {
    cles.insert(mot);
  }
  return cles;
}

TEST(Orthographe, LesSourcesNOntPasDeFaute) {
  const MotsEtLieux mots = MotsDesSources(DOSSIER_CATALOGUES);
  for (const std::string& mot : Juge(Cles(mots), LitListe(MOTS_ACCEPTES)).refuses) {
    for (const std::string& lieu : mots.at(mot)) {
      ADD_FAILURE() << lieu << ": " << mot;
    }
  }
}

TEST(Orthographe, LaListeNeGardePasDeMotInutile) {
  const Mots mots = Cles(MotsDesSources(DOSSIER_CATALOGUES));
  EXPECT_THAT(Juge(mots, LitListe(MOTS_ACCEPTES)).inutiles, IsEmpty());
}

TEST(Orthographe, LaListeEstTrieeSansDoubleEtTientEn1252) {
  const std::vector<std::string> liste = LitListe(MOTS_ACCEPTES);
  EXPECT_FALSE(liste.empty());
  EXPECT_EQ(std::adjacent_find(liste.begin(), liste.end(), std::greater_equal<>()), liste.end());
  for (const std::string& mot : liste) {
    EXPECT_TRUE(TientEn1252(mot)) << mot;
    EXPECT_THAT(MotsDe(mot), ElementsAre(mot));
  }
}

TEST(Orthographe, LesSourcesSontLuesEnEntier) {
  const MotsEtLieux mots = MotsDesSources(DOSSIER_CATALOGUES);
  EXPECT_GT(mots.size(), 8000U);
  EXPECT_THAT(mots.at("Rol-Tanguy"),
              ElementsAre("favoris.toml: INAO, Institut national de l'origine et de la qualité: "
                          "adresse",
                          "favoris.toml: FranceAgriMer: adresse"));
}

TEST(MotsDUnTexte, SontDesSuitesDeLettres) {
  EXPECT_THAT(MotsDe("« Le bœuf, l'été : rôti ! »\n- fin."),
              ElementsAre("Le", "bœuf", "l'été", "rôti", "fin"));
}

TEST(MotsDUnTexte, GardentLeursTiretsEtLeursApostrophes) {
  EXPECT_THAT(MotsDe("'mi-cuit' aujourd'hui-même -"), ElementsAre("mi-cuit", "aujourd'hui-même"));
}

TEST(MotsDUnTexte, LaissentLesChiffresEtLesAdresses) {
  EXPECT_THAT(MotsDe("200 g, 1er, https://exemple.fr/mot a@exemple.fr www.exemple.fr fin"),
              ElementsAre("g", "fin"));
}

TEST(Dictionnaire, ConnaitLesMotsJustesEtRefuseLesFaux) {
  EXPECT_THAT(InconnusDuDictionnaire({"cuisine", "bœuf", "cuisnie", "été", "étté"}),
              UnorderedElementsAre("cuisnie", "étté"));
}

TEST(Jugement, RefuseUnMotInconnu) {
  EXPECT_THAT(Juge({"cuisine", "cuisnie"}, {}).refuses, ElementsAre("cuisnie"));
}

TEST(Jugement, AccepteUnMotDeLaListeAvecOuSansCapitale) {
  EXPECT_THAT(Juge({"garbure", "Garbure"}, {"garbure"}).refuses, IsEmpty());
}

TEST(Jugement, TientALaCapitaleDUnNomPropre) {
  EXPECT_THAT(Juge({"Itxassou", "itxassou"}, {"Itxassou"}).refuses, ElementsAre("itxassou"));
}

TEST(Jugement, RegardeUnMotSansSonElision) {
  EXPECT_THAT(Juge({"l'itxassou", "D'itxassou", "x'itxassou"}, {"itxassou"}).refuses,
              ElementsAre("x'itxassou"));
}

TEST(Jugement, RegardeLesPartiesDUnMotCompose) {
  EXPECT_THAT(Juge({"Zzyx-zzyy", "Zzyx-itxassou", "vin-zzyx"}, {"zzyx", "zzyy"}).refuses,
              ElementsAre("Zzyx-itxassou"));
}

TEST(Jugement, DitLesMotsDeLaListeQueRienNeDemande) {
  EXPECT_THAT(Juge({"itxassou", "cuisine"}, {"cuisine", "itxassou", "zzyx"}).inutiles,
              ElementsAre("cuisine", "zzyx"));
}

}  // namespace
}  // namespace gastrelle::usine
