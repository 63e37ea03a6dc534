// What is handed to the system to be opened, as a text.

#include <gtest/gtest.h>

#include "plateforme/AdresseOuverte.h"

namespace gastrelle::essai {
namespace {

TEST(AdresseOuverte, AUnSchemaDeDeuxLettresAuMoins) {
  for (const char* adresse : {"https://exemple.org", "mailto:anne@exemple.com", "a1+-.:x"}) {
    EXPECT_TRUE(AUnSchema(adresse)) << adresse;
  }
  for (const char* texte : {"C:\\photo.jpg", "exemple.org", "", ":x", "1a:x", "a b:x", "/a:b"}) {
    EXPECT_FALSE(AUnSchema(texte)) << texte;
  }
}

TEST(AdresseOuverte, NeTientQuEnUnArgument) {
  EXPECT_EQ(EnUnArgument("a b\"c'd\\e`f<g>h^i{j|k}l\n"),
            "a%20b%22c%27d%5Ce%60f%3Cg%3Eh%5Ei%7Bj%7Ck%7Dl%0A");
  EXPECT_EQ(EnUnArgument("https://exemple.org/é?a=1&b=%20#c"), "https://exemple.org/é?a=1&b=%20#c");
}

TEST(AdresseOuverte, DUnFichierDonneSonCheminSansLaSection) {
  EXPECT_EQ(CheminDAdresse("file:///C:/Ma%20cuisine%20d%27%C3%A9t%C3%A9/presentation.html#contact"),
            "C:/Ma cuisine d'été/presentation.html");
  EXPECT_EQ(CheminDAdresse("file:///home/anne/a%23b.html"), "/home/anne/a#b.html");
  EXPECT_EQ(CheminDAdresse("file:///100%25%2G%"), "/100%%2G%");
}

TEST(AdresseOuverte, DAutreChoseNEnDonnePas) {
  for (const char* adresse : {"https://exemple.org/x.html", "mailto:anne@exemple.com",
                              "file://serveur/x.html", "file:x.html", "file://", ""}) {
    EXPECT_EQ(CheminDAdresse(adresse), "") << adresse;
  }
}

}  // namespace
}  // namespace gastrelle::essai
