// French typography: what the compiler makes of plain blanks, and what it refuses.

#include <algorithm>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "data/Texte1252.h"
#include "usine/Typographie.h"

namespace gastrelle::usine {
namespace {

using testing::HasSubstr;

/// Composed, in UTF-8, with "_" for the no-break space.
std::string Compose8(std::string_view utf8) {
  std::string texte = Compose(DepuisUtf8(utf8));
  std::replace(texte.begin(), texte.end(), '\xA0', '_');
  return VersUtf8(texte);
}

TEST(Compose, MetUnInsecableDevantLaPonctuationDouble) {
  EXPECT_EQ(Compose8("Un ; deux : trois ! Quatre ? Cinq"), "Un_; deux_: trois_! Quatre_? Cinq");
}

TEST(Compose, MetUnInsecableALInterieurDesGuillemets) {
  EXPECT_EQ(Compose8("dit « au bleu » et cuit"), "dit «_au bleu_» et cuit");
}

TEST(Compose, LaisseLesAutresBlancs) {
  EXPECT_EQ(Compose8("200 g de sucre, 1 h 10 - fini."), "200 g de sucre, 1 h 10 - fini.");
}

TEST(Compose, FinitLesLignesParRetourEtSaut) {
  EXPECT_EQ(Compose("un\n\ndeux"), "un\r\n\r\ndeux");
}

TEST(Compose, NeChangeNiLeDebutNiLaFin) {
  EXPECT_EQ(Compose(": a :"), ": a\xA0:");
  EXPECT_EQ(Compose(""), "");
}

struct CasFaute {
  const char* nom;
  const char* texte;
  const char* raison;    ///< part of it
  std::size_t position;  ///< in bytes
};

class FauteDeProse : public testing::TestWithParam<CasFaute> {};

TEST_P(FauteDeProse, EstDiteAvecSaPlace) {
  const auto faute = FauteTypographique(DepuisUtf8(GetParam().texte), formes::prose);
  ASSERT_TRUE(faute);
  EXPECT_THAT(faute->raison, HasSubstr(GetParam().raison));
  EXPECT_EQ(faute->position, GetParam().position);
}

INSTANTIATE_TEST_SUITE_P(
    Typographie, FauteDeProse,
    testing::Values(CasFaute{"ApostropheCourbe", "l’ail", "apostrophe droite", 1},
                    CasFaute{"GuillemetDroit", "dit \"bleu\"", "guillemets « »", 4},
                    CasFaute{"GuillemetsAnglais", "dit “bleu”", "guillemets « »", 4},
                    CasFaute{"Insecable", "un\u00A0: deux", "blancs simples", 2},
                    CasFaute{"Tabulation", "un\tdeux", "blancs simples", 2},
                    CasFaute{"RetourChariot", "un\r\ndeux", "blancs simples", 2},
                    CasFaute{"CesureInvisible", "cui\u00ADsine", "blancs simples", 3},
                    CasFaute{"CaractereDeCommande", "un\u0081", "blancs simples", 2},
                    CasFaute{"TroisPoints", "et...", "points de suspension", 2},
                    CasFaute{"DeuxBlancs", "un  deux", "deux blancs", 2},
                    CasFaute{"BlancAuDebut", " un", "à un bout", 0},
                    CasFaute{"BlancALaFin", "un ", "à un bout", 2},
                    CasFaute{"LigneVideAuDebut", "\nun", "à un bout", 0},
                    CasFaute{"LigneVideALaFin", "un\n", "à un bout", 2},
                    CasFaute{"BlancEnFinDeLigne", "un \ndeux", "à un bout", 2},
                    CasFaute{"BlancEnDebutDeLigne", "un\n deux", "à un bout", 3},
                    CasFaute{"DeuxLignesVides", "un\n\n\ndeux", "deux lignes vides", 2},
                    CasFaute{"SansLigature", "un oeuf", "ligature œ", 3},
                    CasFaute{"SansLigatureEnCapitales", "BOEUF", "ligature œ", 0},
                    CasFaute{"PointVirguleColle", "un; deux", "devant ; ! ?", 2},
                    CasFaute{"ExclamationCollee", "un!", "devant ; ! ?", 2},
                    CasFaute{"InterrogationCollee", "un?", "devant ; ! ?", 2},
                    CasFaute{"DeuxPointsColles", "un: deux", "devant :", 2},
                    CasFaute{"DeuxPointsCollesApres", "un :deux", "après ; : ! ?", 3},
                    CasFaute{"BlancDevantVirgule", "un , deux", "pas de blanc devant", 3},
                    CasFaute{"BlancDevantPoint", "un .", "pas de blanc devant", 3},
                    CasFaute{"VirguleCollee", "un,deux", "après la virgule", 2},
                    CasFaute{"BlancApresParenthese", "( un)", "pas après (", 0},
                    CasFaute{"GuillemetOuvrantColle", "«un »", "à l'intérieur", 0},
                    CasFaute{"GuillemetFermantColle", "« un»", "à l'intérieur", 4},
                    CasFaute{"UniteCollee", "de 200g", "devant l'unité", 6},
                    CasFaute{"DegresColles", "à 180°C", "devant l'unité", 5},
                    CasFaute{"HeuresCollees", "cuire 2h", "devant l'unité", 7},
                    CasFaute{"PourCentColle", "30% de", "devant % et €", 2},
                    CasFaute{"LettreAccentueeColleeApres", "un :été", "après ; : ! ?", 3},
                    CasFaute{"EuroColle", "12€", "devant % et €", 2}),
    [](const auto& cas) { return std::string(cas.param.nom); });

class ProseJuste : public testing::TestWithParam<const char*> {};

TEST_P(ProseJuste, NEstPasRefusee) {
  const auto faute = FauteTypographique(DepuisUtf8(GetParam()), formes::prose);
  EXPECT_FALSE(faute) << faute->raison;
}

INSTANTIATE_TEST_SUITE_P(Typographie, ProseJuste,
                         testing::Values("Un bœuf : « au bleu » ; 200 g, à 180 °C (30 %) !",
                                         "Voir https://exemple.fr ; c'est là.",
                                         "Le moelleux, la moelle et le goéland.",
                                         "Vers 12:30, puis 1,5 l et la suite…",
                                         "Un titre\n\nUne ligne\n- une autre", ""));

TEST(FormesDeTexte, UnNomTientSurUneLigne) {
  const auto faute = FauteTypographique("un\ndeux", formes::nom);
  ASSERT_TRUE(faute);
  EXPECT_EQ(faute->raison, "une seule ligne attendue");
  EXPECT_FALSE(FauteTypographique("un\ndeux", formes::adresse));
}

TEST(FormesDeTexte, UnNomNEstPasPonctueMaisAuraSesLigatures) {
  EXPECT_FALSE(FauteTypographique("Mets: a,b!", formes::nom));
  EXPECT_TRUE(FauteTypographique("Oeufs au plat", formes::nom));
}

TEST(FormesDeTexte, UneAdresseDuReseauNEstPasDuFrancais) {
  EXPECT_FALSE(FauteTypographique("https://coeur.fr/?a=b", formes::brut));
  EXPECT_TRUE(FauteTypographique("https://a  b", formes::brut));
}

TEST(FormesDeTexte, UnePhraseEstPonctueeEtTientSurUneLigne) {
  EXPECT_TRUE(FauteTypographique("un;", formes::phrase));
  EXPECT_TRUE(FauteTypographique("un\ndeux", formes::phrase));
}

}  // namespace
}  // namespace gastrelle::usine
