// What a box makes of the characters that the files don't hold.

#include <algorithm>
#include <random>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "controles/Transcription.h"
#include "data/TableCaracteres.h"
#include "doublures/Ecran.h"

namespace gastrelle::essai {
namespace {

struct Cas {
  const char* saisi;
  const char* attendu;
};

void PrintTo(const Cas& cas, std::ostream* sortie) {
  *sortie << cas.saisi;
}

void AttendTranscrit(const Cas& cas, bool perte) {
  const Transcription rendu = Transcrit(Fr(cas.saisi));
  EXPECT_EQ(rendu.texte.toStdString(), cas.attendu) << cas.saisi;
  EXPECT_EQ(rendu.perte, perte) << cas.saisi;
}

class SansPerte : public testing::TestWithParam<Cas> {};

TEST_P(SansPerte, SEcritALaMain) {
  AttendTranscrit(GetParam(), false);
}

INSTANTIATE_TEST_SUITE_P(Espaces, SansPerte,
                         testing::Values(Cas{"200\u202Fg", "200\u00A0g"},
                                         Cas{"1\u2007000", "1\u00A0000"},
                                         Cas{"a\u2009b\u200Ac\u2003d\u3000e", "a b c d e"},
                                         Cas{"a\u200Bb\u2060c\uFEFFd", "abcd"},
                                         Cas{"a\u00ADb", "ab"}, Cas{"tié\u00AD\r\ndir", "tiédir"},
                                         Cas{"\u202Aa\u202C\u200E", "a"}, Cas{"a\u2800b", "a b"}));
INSTANTIATE_TEST_SUITE_P(Lignes, SansPerte,
                         testing::Values(Cas{"a\r\nb\rc\nd", "a\nb\nc\nd"},
                                         Cas{"a\u2028b\u2029c\u000Bd\u000Ce\u0085f",
                                             "a\nb\nc\nd\ne\nf"},
                                         Cas{"a\tb", "a\tb"}, Cas{"a\u0001\u007Fb", "ab"}));
INSTANTIATE_TEST_SUITE_P(
    Quantites, SansPerte,
    testing::Values(Cas{"⅓ de tasse", "1/3 de tasse"}, Cas{"1⅓ dl", "1 1/3 dl"},
                    Cas{"1 ⅓ dl", "1 1/3 dl"}, Cas{"1½ dl", "1½ dl"}, Cas{"1\u200B⅓", "1 1/3"},
                    Cas{"1½ et ⅓", "1½ et 1/3"}, Cas{"¹⁄₂ h", "1/2 h"}, Cas{"1¹⁄₂ h", "1 1/2 h"},
                    Cas{"³/₄", "3/4"}, Cas{"1⅟8", "1 1/8"}, Cas{"1⁄2", "1/2"}, Cas{"⅓2", "1/3 2"},
                    Cas{"1⅕ℓ", "1 1/5l"}, Cas{"10 cm² – 3⁴", "10 cm² – 3^4"},
                    Cas{"10⁻³ 10¹⁴", "10^-3 10^14"}, Cas{"1ᵉʳ", "1er"}, Cas{"CO₂", "CO2"},
                    Cas{"C₁₂", "C12"}, Cas{"étrilles⁴", "étrilles4"}, Cas{"①250 g", "1 250 g"},
                    Cas{"⒈250 g", "1. 250 g"}, Cas{"❷ Mixez", "2 Mixez"}, Cas{"➉", "10"},
                    Cas{"1\uFE0F\u20E3250 g", "1 250 g"}, Cas{"2🍅3", "2 3"},
                    Cas{"𝟏𝟐 １２", "12 12"}, Cas{"25㎝", "25cm"}, Cas{"3㎡", "3m²"}));
INSTANTIATE_TEST_SUITE_P(
    Signes, SansPerte,
    testing::Values(Cas{"−18 °C", "-18 °C"}, Cas{"180 ℃", "180 °C"}, Cas{"180˚C", "180°C"},
                    Cas{"5′ 30″", "5' 30\""}, Cas{"lʼail", "l'ail"}, Cas{"mi‑cuit", "mi-cuit"},
                    Cas{"8‒10", "8–10"}, Cas{"―", "—"}, Cas{"≈ 3", "~ 3"},
                    Cas{"≤ 4 ≥ 2 ≠ 3", "<= 4 >= 2 != 3"}, Cas{"→ ⇒ ←", "-> => <-"},
                    Cas{"● ▪ \uF0B7 ✓ ☐", "• • • • •"}, Cas{"★★☆", "***"}, Cas{"№ 3", "N° 3"},
                    Cas{"⌀ 24", "Ø 24"}, Cas{"2 ✕ 3", "2 × 3"}, Cas{"30 μg", "30 µg"},
                    Cas{"\u0092", "’"}, Cas{"⋯", "…"}, Cas{"“œuf” – 2 €", "“œuf” – 2 €"}));
INSTANTIATE_TEST_SUITE_P(
    Lettres, SansPerte,
    testing::Values(Cas{"conﬁt souﬄé", "confit soufflé"}, Cas{"cre\u0301me\u0300", "crémè"},
                    Cas{"Kőszegi", "Koszegi"}, Cas{"phở bơ ớ", "pho bo o"}, Cas{"Nguyễn", "Nguyên"},
                    Cas{"Łódź", "Lódz"}, Cas{"Đurić Işık", "Duric Isik"}, Cas{"𝘦\u0301𝘵", "ét"},
                    Cas{"ＴＯＰ", "TOP"}, Cas{"🅰🅱🅒", "ABC"}, Cas{"s\u0336o\u0336", "so"}));
INSTANTIATE_TEST_SUITE_P(Images, SansPerte,
                         testing::Values(Cas{"œufs 🥚 frais", "œufs  frais"},
                                         Cas{"👩🏽‍🍳🇫🇷❤️", ""},
                                         Cas{"a\uFFFCb", "a b"}, Cas{"fin🍋puis", "fin puis"},
                                         Cas{"🍋.", "."}, Cas{"⏱️ 5 min", " 5 min"}));

class AvecPerte : public testing::TestWithParam<Cas> {};

TEST_P(AvecPerte, EstUnPointDInterrogation) {
  AttendTranscrit(GetParam(), true);
}

INSTANTIATE_TEST_SUITE_P(Caracteres, AvecPerte,
                         testing::Values(Cas{"a日b", "a?b"}, Cas{"щи", "??"}, Cas{"ω", "?"},
                                         Cas{"й", "?"}, Cas{"∞", "?"}, Cas{"≮", "?"},
                                         Cas{"\uFFFD", "?"}));

TEST(Transcription, DUnDemiCaractereEstUnePerte) {
  const Transcription rendu = Transcrit(QString(QChar(0xD83C)));
  EXPECT_EQ(rendu.texte, "?");
  EXPECT_TRUE(rendu.perte);
}

TEST(Transcription, DUnVraiPointDInterrogationNEnEstPasUne) {
  AttendTranscrit({"Prêt ? ？ ⁉", "Prêt ? ? !?"}, false);
}

TEST(Transcription, DUnCheminNeChangeQueCeQuiNeSeRangePas) {
  const Transcription rendu = Compose(Fr("/é/e\u0301 ﬁche\u00ADa·1\u202Fb.jpg"));
  EXPECT_EQ(rendu.texte, Fr("/é/é ?che\u00ADa·1?b.jpg"));
  EXPECT_TRUE(rendu.perte);
  EXPECT_FALSE(Compose(Fr("/é/e\u0301.jpg")).perte);
}

/// What holds for whatever is pasted.
void AttendUneTranscriptionSaine(const QString& saisi) {
  const Transcription rendu = Transcrit(saisi);
  EXPECT_TRUE(SeRange(rendu.texte)) << saisi.toStdString();
  EXPECT_FALSE(rendu.texte.contains(QChar(QChar::SoftHyphen))) << saisi.toStdString();
  const Transcription encore = Transcrit(rendu.texte);
  EXPECT_EQ(encore.texte, rendu.texte) << saisi.toStdString();
  EXPECT_FALSE(encore.perte) << saisi.toStdString();
  const auto vrais = saisi.normalized(QString::NormalizationForm_KC).count(u'?');
  EXPECT_EQ(rendu.texte.count(u'?') > vrais, rendu.perte) << saisi.toStdString();
}

TEST(Transcription, DeChaqueCaractereEstSaine) {
  for (char32_t code = 1; code < 0x20000; ++code) {
    if (!QChar::isSurrogate(code)) {
      AttendUneTranscriptionSaine(QString::fromUcs4(&code, 1));
    }
  }
}

TEST(Transcription, DeTextesAuHasardEstSaine) {
  // Letters with marks, numbers, punctuation, symbols, forms of the private and of the wide areas.
  struct Plage {
    unsigned premier;
    unsigned dernier;
  };
  const std::vector<Plage> plages{{0x01, 0x24F},      {0x300, 0x36F},     {0x1E00, 0x1EFF},
                                  {0x2000, 0x20FF},   {0x2100, 0x218F},   {0x2190, 0x27BF},
                                  {0x3000, 0x33FF},   {0xF000, 0xF0FF},   {0xFB00, 0xFFFF},
                                  {0x1D400, 0x1D7FF}, {0x1F000, 0x1FAFF}, {'0', '9'}};
  std::mt19937 hasard(20051122);  // NOLINT(cert-msc51-cpp,cert-msc32-c): the same texts each time
  const auto parmi = [&](unsigned premier, unsigned dernier) {
    return std::uniform_int_distribution<unsigned>(premier, dernier)(hasard);
  };
  for (int texte = 0; texte < 4000; ++texte) {
    std::u32string saisi;
    for (unsigned reste = parmi(1, 12); reste > 0; --reste) {
      const Plage plage = plages[parmi(0, static_cast<unsigned>(plages.size()) - 1)];
      saisi += static_cast<char32_t>(parmi(plage.premier, plage.dernier));
    }
    AttendUneTranscriptionSaine(QString::fromStdU32String(saisi));
  }
}

}  // namespace
}  // namespace gastrelle::essai
