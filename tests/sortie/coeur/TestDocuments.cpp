// The eleven documents, byte for byte, against models that were written by hand.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "data/Texte1252.h"
#include "sortie/Documents.h"
#include "sortie/DocumentsEssai.h"
#include "sortie/Entete.h"

namespace gastrelle::essai {
namespace {

using testing::ElementsAre;
using testing::EndsWith;
using testing::StartsWith;

class UnDocument : public testing::TestWithParam<DocumentEssai> {
 protected:
  UnDocument() { b.horloge.date = jourDesModeles; }

  Bibliotheque b;
};

TEST_P(UnDocument, EstSonModeleOctetPourOctet) {
  const auto& [modele, radical, vue] = GetParam();
  for (const Extension extension : {Extension::txt, Extension::doc}) {
    EnvoieDocument(*b.module, vue, extension);
    EXPECT_EQ(VersUtf8(b.dossier.Lit(radical + Suffixe(extension))), VersUtf8(Modele(modele)));
  }
}

TEST_P(UnDocument, EstOteRefaitPuisEcrit) {
  const auto& [modele, radical, vue] = GetParam();
  EnvoieDocument(*b.module, vue, Extension::txt);
  const std::string nom = radical + ".txt";
  EXPECT_THAT(b.disque.journal(),
              ElementsAre("supprime " + nom, "crée " + nom,
                          "écrit " + nom + " 0+" + std::to_string(Modele(modele).size())));
}

TEST_P(UnDocument, RemplaceCeluiDAvantMemePlusLong) {
  const auto& [modele, radical, vue] = GetParam();
  b.dossier.Ecrit(radical + ".doc", std::string(100'000, '#'));
  EnvoieDocument(*b.module, vue, Extension::doc);
  EXPECT_EQ(b.dossier.Lit(radical + ".doc"), Modele(modele));
}

TEST_P(UnDocument, NeToucheQueLeSien) {
  const auto& [modele, radical, vue] = GetParam();
  b.dossier.Ecrit(radical + ".doc", "celui du traitement de texte");
  b.dossier.Ecrit(radical, "sans extension");
  const std::string nom = radical + ".txt";
  const auto avant = ContenuSans(b.dossier, nom);
  EnvoieDocument(*b.module, vue, Extension::txt);
  EXPECT_TRUE(b.dossier.A(nom));
  EXPECT_EQ(ContenuSans(b.dossier, nom), avant);
}

INSTANTIATE_TEST_SUITE_P(Onze, UnDocument, testing::ValuesIn(DocumentsEssai()),
                         [](const testing::TestParamInfo<DocumentEssai>& cas) {
                           std::string nom = cas.param.modele;
                           std::replace(nom.begin(), nom.end(), '-', '_');
                           return nom;
                         });

TEST(DateDuDocument, EstSansZeroDevant) {
  using std::chrono::year;
  EXPECT_EQ(DateCourte(year{2026} / 1 / 1), "1/1/2026");
  EXPECT_EQ(DateCourte(year{2026} / 12 / 31), "31/12/2026");
  EXPECT_EQ(DateCourte(year{2026} / 10 / 9), "9/10/2026");
  EXPECT_EQ(DateCourte(year{2028} / 2 / 29), "29/2/2028");
}

class TexteDuDocument : public testing::Test {
 protected:
  TexteDuDocument() { b.horloge.date = jourDesModeles; }
  /// The document of a tip with that text, from its first letter on.
  std::string Envoie(const std::string& texte) {
    EnvoieDocument(*b.module, VueTruc{"T", texte}, Extension::txt);
    const std::string octets = b.dossier.Lit("truc.txt");
    EXPECT_THAT(octets, StartsWith(tete_));
    return octets.substr(std::min(tete_.size(), octets.size()));
  }

  Bibliotheque b;

 private:
  const std::string tete_ =
      "Gastrelle 2005 (Edition du 5/3/2026)\r\n\r\nTerme, truc ou astuce : T\r\n\r\n";
};

TEST_F(TexteDuDocument, EstEcritTelQuel) {
  for (const std::string& texte :
       {std::string("une\nligne"), std::string("une\rligne\r"), std::string("\r\n\r\n"),
        std::string("\tcolonne\t"), std::string("  blancs  "), std::string("\xA0insécable\xA0"),
        std::string("\x81\x8D\x8F\x90\x9D"), std::string("a\0b", 3), std::string("\x1A fin")}) {
    EXPECT_EQ(Envoie(texte), texte + "\r\n");
  }
}

TEST_F(TexteDuDocument, GardeChacunDes256Octets) {
  std::string tous;
  for (int octet = 0; octet < 256; ++octet) {
    tous += static_cast<char>(octet);
  }
  EXPECT_EQ(Envoie(tous), tous + "\r\n");
}

TEST_F(TexteDuDocument, EstEntierSiLongQuIlSoit) {
  for (const std::size_t longueur : {30'000U, 65'535U, 65'536U, 65'537U, 1'000'000U}) {
    std::string texte(longueur, 'x');
    texte.replace(longueur - 5, 5, "fin\r\n");
    EXPECT_EQ(Envoie(texte), texte + "\r\n") << longueur;
  }
}

TEST_F(TexteDuDocument, LesBlancsInsecablesNeSontPasRognes) {
  EnvoieDocument(*b.module, VueVinsTries{" \xA0Jura ", {"\t Arbois \xA0 "}}, Extension::txt);
  EXPECT_THAT(b.dossier.Lit("vintri.txt"),
              EndsWith(": \xA0Jura\r\nLes vins :\r\n\t Arbois \xA0\r\n"));
}

TEST_F(TexteDuDocument, UneListeDeBlancsGardeSesLignes) {
  EnvoieDocument(*b.module, VueVinsTries{"Jura", {"  ", "", "Arbois"}}, Extension::txt);
  EXPECT_THAT(b.dossier.Lit("vintri.txt"), EndsWith("Les vins :\r\n\r\n\r\nArbois\r\n"));
}

TEST_F(TexteDuDocument, UneLongueCaveSEcritEnPlusieursFois) {
  VueCave cave;
  std::string attendu = "Gastrelle 2005 (Edition du 5/3/2026)\r\n\r\nToute ma cave\r\n\r\n";
  for (int i = 0; i < 20'000; ++i) {
    cave.lignes.push_back(".. Rouge ........... " + std::to_string(i));
    attendu += cave.lignes.back() + "\r\n";
  }
  EnvoieDocument(*b.module, cave, Extension::doc);
  EXPECT_EQ(b.dossier.Lit("vincave.doc"), attendu);
  constexpr std::size_t parEcriture = 65'536;
  const std::size_t ecritures = b.disque.journal().size() - 2;
  EXPECT_GT(ecritures, 1U);
  EXPECT_LE(ecritures, attendu.size() / parEcriture + 1);
}

}  // namespace
}  // namespace gastrelle::essai
