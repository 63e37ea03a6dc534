// Printed pages, read back from what the printer was given and compared line by line with the text
// as it wraps by the printer's own measures.

#include <algorithm>
#include <ostream>
#include <string>
#include <string_view>
#include <vector>

#include <gmock/gmock.h>

#include "controles/Conversion.h"
#include "doublures/EcranVirtuel.h"
#include "impression/ImpressionEssai.h"
#include "impression/PagesLues.h"
#include "sortie/Entete.h"
#include "sortie/Impression.h"
#include "sortie/LignesImprimees.h"

namespace gastrelle::essai {
namespace {

constexpr double marge = 500;  // twips
constexpr double twipsParPoint = 20;
// What the printer of the tests reaches of its sheet (A4), in points.
constexpr double gauche = 20;
constexpr double haut = 25;
constexpr double droite = 580;
constexpr double bas = 812;

struct Document {
  const char* nom;
  Vue (*vue)();
  Police police;
  const char* fichierPolice;
  double interligne;  ///< of the font, to its size
  int pages;
  bool enGrand;
};

void PrintTo(const Document& document, std::ostream* sortie) {
  *sortie << document.nom;
}

std::vector<std::string_view> Coupe(std::string_view texte, std::string_view separateur,
                                    bool garde) {
  std::vector<std::string_view> morceaux;
  while (!texte.empty()) {
    const std::size_t ou = texte.find(separateur);
    const std::size_t fin = ou == std::string_view::npos ? texte.size() : ou;
    const std::size_t suite = std::min(fin + separateur.size(), texte.size());
    morceaux.push_back(texte.substr(0, garde ? suite : fin));
    texte.remove_prefix(suite);
  }
  return morceaux;
}

/// The printed lines of a text, the empty ones too.
std::vector<std::string> LignesCoupees(Imprimante& mesure, std::string_view texte) {
  std::vector<std::string> lignes;
  for (const std::string_view ligne : Coupe(texte, "\r\n", false)) {
    lignes.emplace_back();
    double x = marge;
    for (const std::string_view mot : Coupe(ligne, " ", true)) {
      const double largeur = mesure.LargeurTexte(mot);
      if (x + largeur > mesure.Largeur()) {
        lignes.emplace_back();
        x = marge;
      }
      lignes.back() += mot;
      x += largeur;
    }
  }
  return lignes;
}

std::string ATravailler() {
  std::string texte;
  for (int i = 0; i < 60; ++i) {
    texte += std::to_string(i);
    texte +=
        ". Battre les œufs avec 250 g de sucre « fin » à 3 €, puis l’ajouter au "
        "lait chaud\u00a0; AVAVA Tarte Vœux 40 % ÇÀÉÈÙ laisser reposer au frais.\r\n"_1252;
    if (i % 10 == 9) {
      texte += "\r\n";
    }
  }
  return texte;
}

Vue RecetteLongue() {
  std::string titre;
  titre += "Crème brûlée à l'œuf & <au> lait"_1252;
  return VueRecette{"Entremets", titre, ATravailler(), {}};
}

Vue MotSansFin() {
  return VueRecette{"Entremets", "Large", "avant " + std::string(200, 'm') + " puis la suite", {}};
}

Vue CaveEntiere() {
  VueCave cave;
  for (int i = 0; i < 40; ++i) {
    std::string nom;
    nom += "CHÂTEAU D'YQUEM "_1252;
    nom += std::to_string(i);
    nom += " - Région d'origine : Bordeaux, sur la rive gauche de la Garonne, assez loin"_1252;
    cave.lignes.push_back(nom);
    cave.lignes.emplace_back("... Blanc .......... 12");
    cave.lignes.emplace_back("... Total .......... 12");
    cave.lignes.emplace_back(" ");
  }
  return cave;
}

Vue ListeDAchats() {
  VueCourses courses;
  std::string cremerie;
  cremerie += "Crémerie"_1252;
  courses.rayons.push_back({cremerie, "Beurre\r\nLait"});
  courses.rayons.push_back({"Boucherie", "Un poulet"});
  return courses;
}

constexpr double serif = 1.1499;
constexpr double fixe = 1.1328;
const Document documents[]{
    {"recette_10", RecetteLongue, {"Times New Roman", 10}, "LiberationSerif", serif, 2, false},
    {"recette_20", RecetteLongue, {"Times New Roman", 20}, "LiberationSerif", serif, 6, true},
    {"mot_sans_fin", MotSansFin, {"Times New Roman", 10}, "LiberationSerif", serif, 1, false},
    {"cave", CaveEntiere, {"Courier New", 10}, "LiberationMono", fixe, 3, true},
    {"courses", ListeDAchats, {"Times New Roman", 10}, "LiberationSerif", serif, 1, true},
};

class PagesImprimees : public ImpressionEssai, public testing::WithParamInterface<Document> {
 protected:
  std::vector<std::string> Attendues(const Vue& vue, const Police& police) {
    const auto mesure = acces.ParDefaut();
    mesure->PosePolice(police);
    std::vector<std::string> attendues = LignesCoupees(*mesure, EnteteEdition(module));
    for (const std::string& ligne : LignesImprimees(vue)) {
      const auto coupees = LignesCoupees(*mesure, ligne);
      attendues.insert(attendues.end(), coupees.begin(), coupees.end());
    }
    return attendues;
  }
};

/// A line of the text at the place where it has to stand.
void Compare(const LigneLue& lue, const std::string& attendue, int rang, const Document& document) {
  const double hauteurLigne = document.police.corps * document.interligne;
  const int parPage = static_cast<int>((bas - haut) / hauteurLigne);
  SCOPED_TRACE(attendue);
  const QString texte = VersQt(attendue).simplified();
  if (lue.droite <= droite) {
    EXPECT_EQ(lue.texte.toStdString(), texte.toStdString());
  } else {
    // What runs off the sheet isn't read.
    EXPECT_FALSE(texte.contains(u' '));
    EXPECT_TRUE(texte.startsWith(lue.texte));
  }
  EXPECT_EQ(lue.page, rang / parPage);
  EXPECT_NEAR(lue.haut, haut + rang % parPage * hauteurLigne, 1.5);
  EXPECT_NEAR(lue.gauche, gauche + marge / twipsParPoint, 0.1);
  EXPECT_LE(lue.bas, bas);
  EXPECT_NEAR(lue.bas - lue.haut, document.police.corps * 1.12, 0.05 * document.police.corps);
}

TEST_P(PagesImprimees, SontLeTexteLigneALigne) {
  const Document& document = GetParam();
  module.prefs[0].policeGrande = document.enGrand ? 1 : 0;
  const Vue vue = document.vue();
  ImprimeVue(module, vue);
  const DocumentLu lu = LitDocument(serveur.Sortie(1));

  const std::vector<std::string> attendues = Attendues(vue, document.police);
  std::size_t suivante = 0;
  for (std::size_t rang = 0; rang < attendues.size(); ++rang) {
    if (VersQt(attendues[rang]).trimmed().isEmpty()) {
      continue;
    }
    ASSERT_LT(suivante, lu.lignes.size());
    Compare(lu.lignes[suivante++], attendues[rang], static_cast<int>(rang), document);
  }
  EXPECT_EQ(suivante, lu.lignes.size());
  EXPECT_EQ(lu.pages, document.pages);
  EXPECT_NEAR(lu.largeur, 595, 1);
  EXPECT_NEAR(lu.hauteur, 842, 1);
  EXPECT_THAT(lu.polices, testing::ElementsAre(QString::fromLatin1(document.fichierPolice)));
  EXPECT_TRUE(b.messages.vus.empty());
}

INSTANTIATE_TEST_SUITE_P(Documents, PagesImprimees, testing::ValuesIn(documents),
                         [](const testing::TestParamInfo<Document>& cas) {
                           return std::string(cas.param.nom);
                         });

TEST(PolicesSansAlias, SontCellesDesMemesLargeurs) {
  const DossierEssai dossier;
  dossier.Ecrit("polices.conf",
                "<?xml version=\"1.0\"?><!DOCTYPE fontconfig SYSTEM \"fonts.dtd\"><fontconfig>"
                "<dir>/usr/share/fonts/truetype</dir><cachedir>" +
                    dossier.chemin().string() + "</cachedir></fontconfig>");
  QProcessEnvironment environnement = QProcessEnvironment::systemEnvironment();
  environnement.insert("FONTCONFIG_FILE",
                       QString::fromStdString((dossier.chemin() / "polices.conf").string()));
  for (const char* document : {"*/PagesImprimees.*/recette_10", "*/PagesImprimees.*/cave"}) {
    EXPECT_EQ(Rejoue(document, environnement), 0) << document;
  }
}

class PageDeLaFile : public ImpressionEssai {};

TEST_F(PageDeLaFile, EstCelleQueSonReglageDonne) {
  ServeurImpression::Commande("lpadmin", {"-p", "essai", "-o", "PageSize=A5"});
  const auto imprimante = acces.ParDefaut();
  ASSERT_NE(imprimante, nullptr);
  EXPECT_EQ(imprimante->Largeur(), (405 - 20) * twipsParPoint);
  EXPECT_EQ(imprimante->Hauteur(), (570 - 30) * twipsParPoint);
}

}  // namespace
}  // namespace gastrelle::essai
