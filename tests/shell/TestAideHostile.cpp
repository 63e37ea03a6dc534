// A help file that somebody made, with the right seal, to make the program fail.

#include <ctime>
#include <filesystem>
#include <sys/stat.h>

#include <QTest>
#include <QTextBrowser>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "doublures/AideEssai.h"
#include "doublures/AideVue.h"
#include "doublures/ApplicationEssai.h"
#include "doublures/Bibliotheque.h"
#include "shell/Aide.h"

namespace gastrelle::essai {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// What the processor has worked since then: other programs of the machine don't count.
double Secondes(std::clock_t depuis) {
  return static_cast<double>(std::clock() - depuis) / CLOCKS_PER_SEC;
}

class AideHostile : public testing::Test {
 protected:
  AideHostile() { b.module->fichierAide = b.module->chemins.De("gl32.hlp"); }

  /// Opens the help on a file of these bytes; true if it shows.
  bool Ouvre(const std::string& octets) {
    b.dossier.Ecrit("gl32.hlp", octets);
    const std::clock_t debut = std::clock();
    Aide aide(*b.module);
    aide.Ouvre(sujetAccueil);
    QApplication::processEvents();
    EXPECT_LT(Secondes(debut), 4);
    return FenetreAide() != nullptr && FenetreAide()->isVisible();
  }

  /// The same, and the message of a damaged help where it doesn't show.
  bool Refuse(const std::string& octets) {
    b.messages.vus.clear();
    const bool refusee = !Ouvre(octets);
    if (refusee) {
      EXPECT_THAT(b.messages.vus, ElementsAre(MessageVu{"Fichier d'aide illisible ou incomplet",
                                                        Icone::aucune, "Gastrelle 2005"}));
    } else {
      EXPECT_THAT(b.messages.vus, IsEmpty());
    }
    return refusee;
  }

  static std::string Repete(const std::string& texte, std::size_t octets) {
    std::string tout;
    while (tout.size() < octets) {
      tout += texte;
    }
    return tout;
  }

  Bibliotheque b;
};

TEST_F(AideHostile, UneAideSimpleSOuvre) {
  EXPECT_FALSE(Refuse(Scelle(ArbreEssai(UnePage("<h1>Bonjour</h1>")))));
}

TEST_F(AideHostile, CeQuiEstComprimeEstRefuse) {
  PagesEssai pages = UnePage("<h1>Bonjour</h1>");
  for (auto& [nom, octets] : pages) {
    const QByteArray comprimee = qCompress(QByteArray::fromStdString(octets));
    octets = comprimee.toStdString();
  }
  EXPECT_TRUE(Refuse(Scelle(ArbreEssai(pages, 1))));
  PagesEssai bombe = pages;
  bombe["accueil.html"] = detail::GrandBoutien(1'000'000'000, 4) + ZerosComprimes(1'000'000'000);
  EXPECT_TRUE(Refuse(Scelle(ArbreEssai(bombe, 1))));
}

TEST_F(AideHostile, UnePageTropLongueEstRefusee) {
  EXPECT_TRUE(Refuse(Scelle(ArbreEssai(UnePage(Repete("<p>", 10'000'000))))));
  EXPECT_TRUE(Refuse(Scelle(ArbreEssai(UnePage(Repete("<table><tr><td>", 20'000))))));
  EXPECT_TRUE(Refuse(Scelle(ArbreEssai(UnePage(Repete("< TABLE><tr><td>", 600))))));
  EXPECT_TRUE(
      Refuse(Scelle(ArbreEssai(UnePage("<table>" + Repete("<tr><td ColSpan=20000>", 30'000))))));
  EXPECT_FALSE(Refuse(Scelle(ArbreEssai(UnePage(Repete("<p>", 30'000))))));
  EXPECT_FALSE(Refuse(Scelle(ArbreEssai(UnePage(Repete("<li>", 30'000))))));
}

TEST_F(AideHostile, CeQuiEstDemesureEstRefuse) {
  for (const char* html :
       {"<p style=\"line-height:100000000%\">a</p>", "<p STYLE = 'color:red'>a</p>",
        "< style>p { color: red; }</style>", "<img width=\"99999\">", "<td rowspan=2>"}) {
    EXPECT_TRUE(Refuse(Scelle(ArbreEssai(UnePage(html))))) << html;
  }
  PagesEssai pages = UnePage("<p>Un style de cuisine, en 2005, pour 1 500 personnes.</p>");
  EXPECT_FALSE(Refuse(Scelle(ArbreEssai(pages))));
  pages["aide.css"] = "p { font-size: 1000px; }";
  EXPECT_TRUE(Refuse(Scelle(ArbreEssai(pages))));
}

TEST_F(AideHostile, LaMemePageNEstPasDeuxFoisAuSommaire) {
  PagesEssai pages = UnePage("<h1>Bonjour</h1>");
  pages["sommaire.json"] =
      R"([{"titre": "T", "pages": [{"sujet": "accueil"}, {"sujet": "accueil"}]}])";
  EXPECT_TRUE(Refuse(Scelle(ArbreEssai(pages))));
  pages["sommaire.json"] = R"([{"titre": "T", "pages": []}])";
  EXPECT_TRUE(Refuse(Scelle(ArbreEssai(pages))));
}

TEST_F(AideHostile, UnePlaceHorsDuFichierEstRefusee) {
  const std::string arbre = ArbreEssai(UnePage("<h1>Bonjour</h1>"));
  for (std::size_t i = 0; i < 20 + 3 * 14; ++i) {
    for (const char octet : {'\x7F', '\xFF'}) {
      std::string abime = arbre;
      abime[i] = octet;
      static_cast<void>(Ouvre(Scelle(abime)));
    }
  }
  for (std::size_t fin = 0; fin < arbre.size(); ++fin) {
    EXPECT_TRUE(Refuse(Scelle(arbre.substr(0, fin)))) << fin;
  }
}

TEST_F(AideHostile, UnePageNOuvreAucunFichierDuDisque) {
  const std::string tuyau = (b.dossier.chemin() / "tuyau.png").string();
  ASSERT_EQ(::mkfifo(tuyau.c_str(), S_IRUSR | S_IWUSR), 0);
  EXPECT_FALSE(Refuse(
      Scelle(ArbreEssai(UnePage(R"(<head><link rel="stylesheet" href="file://)" + tuyau +
                                "\"></head><body background=\"" + tuyau + "\"><img src=\"" + tuyau +
                                "\"><img src=\"file://" + tuyau + "\"><p>Bonjour</p></body>")))));
}

TEST_F(AideHostile, UneGrandeImageDUnePageNEstPasLue) {
  PagesEssai pages = UnePage(R"(<img src="a.png"><img src="qrc:/gastrelle-aide/a.png">)");
  pages["a.png"] = ImagePngEntiere(8192, 8192).substr(0, 32'000);
  EXPECT_TRUE(Scelle(ArbreEssai(pages)).size() < 100'000);
  EXPECT_FALSE(Refuse(Scelle(ArbreEssai(pages))));
}

TEST_F(AideHostile, AuDelaDe64MegaOctetsRienNEstLu) {
  b.dossier.Ecrit("gl32.hlp", "x");
  std::filesystem::resize_file(b.dossier.chemin() / "gl32.hlp", std::uintmax_t{1} << 30U);
  const std::clock_t debut = std::clock();
  Aide aide(*b.module);
  aide.Ouvre(sujetAccueil);
  EXPECT_LT(Secondes(debut), 0.5);
  EXPECT_EQ(FenetreAide(), nullptr);
  EXPECT_THAT(b.messages.vus, ElementsAre(MessageVu{"Fichier d'aide illisible ou incomplet",
                                                    Icone::aucune, "Gastrelle 2005"}));
}

}  // namespace
}  // namespace gastrelle::essai
