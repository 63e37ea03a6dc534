// Texts as bytes: the code page, capitals, trimming.

#include <gtest/gtest.h>

#include "data/Texte1252.h"

namespace gastrelle::essai {
namespace {

TEST(Texte1252, TientUneLettreAccentueeEnUnOctet) {
  EXPECT_EQ("éèàç"_1252, "\xE9\xE8\xE0\xE7");
  EXPECT_EQ("cœur"_1252, "c\x9Cur");
  EXPECT_EQ(DepuisUtf8("Rosé à 12 €"), "Ros\xE9 \xE0 12 \x80");
}

TEST(Texte1252, SuitLaPageDeCodeDe80A9F) {
  constexpr std::string_view caracteres = "€‚ƒ„…†‡ˆ‰Š‹ŒŽ‘’“”•–—˜™š›œžŸ";
  constexpr std::string_view octets =
      "\x80\x82\x83\x84\x85\x86\x87\x88\x89\x8A\x8B\x8C\x8E"
      "\x91\x92\x93\x94\x95\x96\x97\x98\x99\x9A\x9B\x9C\x9E\x9F";
  EXPECT_EQ(DepuisUtf8(caracteres), octets);
  EXPECT_EQ(VersUtf8(octets), caracteres);
  EXPECT_TRUE(TientEn1252(caracteres));
}

TEST(Texte1252, RendChaqueOctetApresUnAllerEtRetour) {
  for (unsigned i = 0; i < 256; ++i) {
    const std::string octet(1, static_cast<char>(i));
    EXPECT_EQ(DepuisUtf8(VersUtf8(octet)), octet) << i;
    EXPECT_TRUE(TientEn1252(VersUtf8(octet))) << i;
  }
}

TEST(Texte1252, DonneAuxOctetsSansCaractereLeCaractereDeCommandeDeMemeNumero) {
  EXPECT_EQ(VersUtf8("\x81\x8D\x8F\x90\x9D"), "\xC2\x81\xC2\x8D\xC2\x8F\xC2\x90\xC2\x9D");
}

TEST(Texte1252, MetUnPointDInterrogationPourCeQuElleNeTientPas) {
  EXPECT_EQ(DepuisUtf8("πâté 日本 😀!"), "?\xE2t\xE9 ?? ?!");
  EXPECT_FALSE(TientEn1252("pâté π"));
  EXPECT_FALSE(TientEn1252("😀"));
  EXPECT_EQ(DepuisUtf8("\xC2\x80"), "?");  // U+0080 is not the euro sign
}

TEST(Texte1252, NeComposePasLesLettresDecomposees) {
  EXPECT_EQ(DepuisUtf8("e\xCC\x81"), "e?");
  EXPECT_FALSE(TientEn1252("e\xCC\x81"));
}

TEST(Texte1252, PasseChaqueOctetMalForme) {
  EXPECT_EQ(DepuisUtf8("a\xA9z"), "a?z");         // a lone continuation
  EXPECT_EQ(DepuisUtf8("a\xC3z"), "a?z");         // a head without its continuation
  EXPECT_EQ(DepuisUtf8("fin\xE2\x82"), "fin??");  // cut short
}

TEST(Texte1252, RefuseLesFormesTropLongues) {
  EXPECT_EQ(DepuisUtf8("\xC0\xAF"), "??");
  EXPECT_EQ(DepuisUtf8("\xE0\x80\xAF"), "???");
  EXPECT_EQ(DepuisUtf8("\xF0\x80\x80\xAF"), "????");
  EXPECT_EQ(DepuisUtf8("\xF8\x80\x80\xAF"), "????");
}

TEST(Texte1252, MetLesLettresAccentueesEnCapitales) {
  EXPECT_EQ(Majuscules("crème brûlée"_1252), "CRÈME BRÛLÉE"_1252);
  EXPECT_EQ(Majuscules("àâäãåáæçèéêëìíîïñòóôõöøùúûüýþðšœžÿ"_1252),
            "ÀÂÄÃÅÁÆÇÈÉÊËÌÍÎÏÑÒÓÔÕÖØÙÚÛÜÝÞÐŠŒŽŸ"_1252);
}

TEST(Texte1252, LaisseCeQuiNAPasDeCapitale) {
  constexpr std::string_view sans = "ABZ É 123 ÷×ß€’ \r\n\t@[`{"_1252;
  EXPECT_EQ(Majuscules(sans), sans);
}

TEST(Texte1252, RogneLesBlancsDesDeuxBouts) {
  EXPECT_EQ(Rogne("  pot au feu   "), "pot au feu");
  EXPECT_EQ(Rogne("net"), "net");
  EXPECT_EQ(Rogne("    "), "");
  EXPECT_EQ(Rogne(""), "");
}

TEST(Texte1252, RogneLesBlancsDuBoutDroit) {
  EXPECT_EQ(RogneDroite("  pot au feu   "), "  pot au feu");
  EXPECT_EQ(RogneDroite("    "), "");
  EXPECT_EQ(RogneDroite(""), "");
}

TEST(Texte1252, NeRogneQueLesBlancs) {
  for (const std::string_view autres : {"\r\n", "\tpot\t", "\npot\r", "\xA0pot\xA0"}) {
    EXPECT_EQ(Rogne(autres), autres);
    EXPECT_EQ(RogneDroite(autres), autres);
  }
  EXPECT_EQ(RogneDroite(std::string_view("a\0", 2)), std::string_view("a\0", 2));
}

}  // namespace
}  // namespace gastrelle::essai
