// The print command on what a window shows: font and heading, what is refused or told, the pointer,
// the printer that is missing or fails, the longest texts.

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <utility>
#include <variant>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "data/Texte1252.h"
#include "doublures/Bibliotheque.h"
#include "sortie/Impression.h"

namespace gastrelle::essai {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

const VueRecette recette{"Potages", "Bouillon", "Faire bouillir.\r\nServir.", ""};

class ImpressionDUneVue : public testing::Test {
 protected:
  void Imprime(const Vue& vue) { ImprimeVue(*b.module, vue); }
  /// The document that was printed last.
  [[nodiscard]] const TravailVu& travail() const { return b.imprimantes.travaux.back(); }
  /// Nothing went to the printer and nobody was told.
  void AttendLeSilence() {
    EXPECT_THAT(b.imprimantes.journal, IsEmpty());
    EXPECT_THAT(b.messages.vus, IsEmpty());
    EXPECT_EQ(b.messages.bips, 0);
    EXPECT_FALSE(b.pointeur.sablier);
  }
  /// The pointer is as it should be before the user reads a message.
  void AttendLaFlecheAuxMessages() {
    b.messages.pendant = [this] { EXPECT_FALSE(b.pointeur.sablier); };
  }

  Bibliotheque b;
};

/// All that is printed, each with something to print.
std::vector<Vue> VuesImprimees() {
  return {recette,
          VueFromage{},
          VueFromagesTries{"Vache", {}},
          VueMenu{},
          VueVin{},
          VueVinsTries{"Alpes", {}},
          VueCaveDuVin{},
          VueCave{{"Votre cave est vide !"}},
          VueTruc{},
          VueFavori{},
          VueFavorisTries{"Artisans", {}},
          VueNotes{"Des notes."},
          VueCourses{{{"Divers", "sel"}}}};
}

TEST_F(ImpressionDUneVue, ChacuneASaPoliceEtSonCorps) {
  for (const auto& [preference, corps] :
       {std::pair<std::int16_t, double>{0, 10}, {1, 20}, {-1, 20}}) {
    b.module->prefs[0].policeGrande = preference;
    for (const Vue& vue : VuesImprimees()) {
      SCOPED_TRACE(vue.index());
      Imprime(vue);
      EXPECT_THAT(travail().polices,
                  ElementsAre(PoliceVue{
                      std::holds_alternative<VueCave>(vue) ? "Courier New" : "Times New Roman",
                      std::holds_alternative<VueRecette>(vue) ? corps : 10}));
    }
  }
}

TEST_F(ImpressionDUneVue, LaCopieDeTravailDesPreferencesNYChangeRien) {
  b.module->prefs[1].policeGrande = 1;
  Imprime(recette);
  EXPECT_THAT(travail().polices, ElementsAre(PoliceVue{"Times New Roman", 10}));
}

TEST_F(ImpressionDUneVue, CommenceParLeTitreEtLaDateSansZeros) {
  using std::chrono::year;
  const std::vector<std::pair<std::chrono::year_month_day, const char*>> dates{
      {year{2026} / 1 / 5, "Gastrelle 2005 (Edition du 5/1/2026)"},
      {year{2026} / 12 / 31, "Gastrelle 2005 (Edition du 31/12/2026)"}};
  for (const auto& [date, entete] : dates) {
    b.horloge.date = date;
    Imprime(recette);
    EXPECT_EQ(travail().Lignes(0).front(), entete);
  }
}

TEST_F(ImpressionDUneVue, ChaqueLigneEstUnTexteALaMarge) {
  Imprime(recette);
  EXPECT_THAT(
      b.imprimantes.journal,
      ElementsAre("police Times New Roman 10", "page", "trace Gastrelle ", "trace 2005 ",
                  "trace (Edition ", "trace du ", "trace 21/11/2026)", "police Times New Roman 10",
                  "trace Famille ", "trace de ", "trace recettes ", "trace : ", "trace Potages",
                  "police Times New Roman 10", "trace Recette ", "trace : ", "trace Bouillon",
                  "police Times New Roman 10", "trace Faire ", "trace bouillir.", "trace Servir.",
                  "envoie"));
  EXPECT_EQ(travail().pages.front().front().x, 500);
}

TEST_F(ImpressionDUneVue, LeSablierResteJusquALEnvoi) {
  std::size_t appels = 0;
  b.imprimantes.pendant = [&](const std::string&) {
    ++appels;
    EXPECT_TRUE(b.pointeur.sablier);
  };
  Imprime(recette);
  EXPECT_GT(appels, 10);
  EXPECT_FALSE(b.pointeur.sablier);
}

TEST_F(ImpressionDUneVue, UnTriSansChoixSonneEtNImprimeRien) {
  for (const Vue& vue : std::vector<Vue>{VueFromagesTries{std::nullopt, {"Banon"}},
                                         VueVinsTries{std::nullopt, {"Arbois"}},
                                         VueFavorisTries{std::nullopt, {"Affineur"}}}) {
    b.messages.bips = 0;
    Imprime(vue);
    EXPECT_EQ(b.messages.bips, 1);
    EXPECT_THAT(b.messages.vus, IsEmpty());
    EXPECT_EQ(b.imprimantes.demandes, 0);
    EXPECT_EQ(b.pointeur.sabliers, 1);
    EXPECT_FALSE(b.pointeur.sablier);
    b.pointeur.sabliers = 0;
  }
}

TEST_F(ImpressionDUneVue, DesNotesVidesOuDeBlancsLeDisent) {
  AttendLaFlecheAuxMessages();
  for (const char* texte : {"", "   "}) {
    b.messages.vus.clear();
    Imprime(VueNotes{texte});
    EXPECT_THAT(b.messages.vus, ElementsAre(MessageVu{DepuisUtf8("Aucun texte à imprimer"),
                                                      Icone::information, "Gastrelle 2005"}));
  }
  EXPECT_EQ(b.imprimantes.demandes, 0);
  EXPECT_EQ(b.messages.bips, 0);
}

TEST_F(ImpressionDUneVue, DesNotesDUneSeuleFinDeLigneSImpriment) {
  Imprime(VueNotes{" \r\n "});
  EXPECT_THAT(b.messages.vus, IsEmpty());
  EXPECT_TRUE(travail().envoye);
}

TEST_F(ImpressionDUneVue, UneListeDAchatsVideLeDit) {
  AttendLaFlecheAuxMessages();
  Imprime(VueCourses{});
  EXPECT_THAT(b.messages.vus,
              ElementsAre(MessageVu{"Liste d'achats vide.", Icone::information, "Gastrelle 2005"}));
  EXPECT_EQ(b.imprimantes.demandes, 0);
  EXPECT_EQ(b.messages.bips, 0);
  EXPECT_FALSE(b.pointeur.sablier);
}

TEST_F(ImpressionDUneVue, NiLesMillesimesNiRienNeSImpriment) {
  Imprime(VueMillesimes{"Alsace", {{1928, 5}}});
  Imprime(Vue{});
  AttendLeSilence();
  EXPECT_EQ(b.imprimantes.demandes, 0);
  EXPECT_EQ(b.pointeur.sabliers, 2);
}

TEST_F(ImpressionDUneVue, UneEntreeDeBlancsNePrendPasDeLigne) {
  Imprime(VueFromagesTries{"Vache", {"a", "   ", "b"}});
  EXPECT_THAT(travail().Lignes(0), ElementsAre("Gastrelle 2005 (Edition du 21/11/2026)", "",
                                               "Fromages au lait de : Vache", "a", "b"));
}

class ImpressionSansImprimante : public ImpressionDUneVue {
 protected:
  ImpressionSansImprimante() { b.imprimantes.presente = false; }
};

TEST_F(ImpressionSansImprimante, FinitSansUnMot) {
  for (const Vue& vue : VuesImprimees()) {
    Imprime(vue);
  }
  AttendLeSilence();
  EXPECT_EQ(b.imprimantes.demandes, 13);
  EXPECT_EQ(b.pointeur.sabliers, 13);
}

TEST_F(ImpressionSansImprimante, RegardeToutDeMemeSIlYAQuelqueChose) {
  Imprime(VueNotes{" "});
  Imprime(VueCourses{});
  EXPECT_THAT(b.messages.vus, SizeIs(2));
  Imprime(VueVinsTries{});
  EXPECT_EQ(b.messages.bips, 1);
}

/// A printer whose pages hold three lines: the recipe has three pages.
class ImpressionQuiEchoue : public ImpressionDUneVue {
 protected:
  ImpressionQuiEchoue() { b.imprimantes.hauteur = 3 * 240; }

  std::vector<std::string> Modele() {
    Imprime(recette);
    EXPECT_THAT(travail().pages, SizeIs(3));
    return std::exchange(b.imprimantes.journal, {});
  }
  /// The calls of a document whose n-th one fails: a page that was begun is sent all the same.
  static std::vector<std::string> JusquA(const std::vector<std::string>& modele, std::size_t n) {
    std::vector<std::string> appels(modele.begin(),
                                    modele.begin() + static_cast<std::ptrdiff_t>(n));
    const bool commencee = n > 2;  // the second call opens the first page
    if (commencee && n < modele.size()) {
      appels.emplace_back("envoie");
    }
    return appels;
  }
  /// All but the changes of page, which come elsewhere where a font was refused.
  static std::vector<std::string> Appels(std::vector<std::string> journal) {
    std::erase(journal, "page");
    return journal;
  }
  void ImprimeEnEchec() {
    b.imprimantes.journal.clear();
    Imprime(recette);
    EXPECT_THAT(b.messages.vus, IsEmpty());
    EXPECT_EQ(b.messages.bips, 0);
    EXPECT_FALSE(b.pointeur.sablier);
  }
};

TEST_F(ImpressionQuiEchoue, AChaqueAppelEnvoieCeQuiEstFaitSansUnMot) {
  const std::vector<std::string> modele = Modele();
  for (std::size_t n = 1; n <= modele.size(); ++n) {
    SCOPED_TRACE(std::to_string(n) + ' ' + modele[n - 1]);
    b.imprimantes.journal.clear();
    b.imprimantes.EchoueALAppel(n);
    ImprimeEnEchec();
    const bool police = modele[n - 1].starts_with("police");
    EXPECT_EQ(Appels(b.imprimantes.journal), Appels(police ? modele : JusquA(modele, n)));
    EXPECT_EQ(travail().envoye, n != 2 && n != modele.size());
  }
}

TEST_F(ImpressionQuiEchoue, AChaqueMesureAussi) {
  const std::vector<std::string> modele = Modele();
  const std::size_t mesures = std::exchange(b.imprimantes.mesures, 0);
  for (std::size_t n = 1; n <= mesures; ++n) {
    SCOPED_TRACE(n);
    b.imprimantes.EchoueALaMesure(n);
    ImprimeEnEchec();
    EXPECT_LT(b.imprimantes.journal.size(), modele.size() + 1);
    EXPECT_EQ(travail().envoye, !travail().pages.empty());
  }
}

TEST_F(ImpressionQuiEchoue, LImpressionSuivanteReussit) {
  b.imprimantes.EchoueALAppel(5);
  ImprimeEnEchec();
  Imprime(recette);
  EXPECT_THAT(travail().pages, SizeIs(3));
  EXPECT_TRUE(travail().envoye);
}

/// The longest that is printed: its time grows with its length and no faster.
class ImpressionLongue : public ImpressionDUneVue {
 protected:
  static constexpr std::chrono::seconds patience{30};  // a hundred times what it takes

  void ImprimeEnPeuDeTemps(const Vue& vue) {
    const auto debut = std::chrono::steady_clock::now();
    Imprime(vue);
    const auto duree = std::chrono::steady_clock::now() - debut;
    RecordProperty(
        "millisecondes",
        static_cast<int>(std::chrono::duration_cast<std::chrono::milliseconds>(duree).count()));
    EXPECT_LT(duree, patience);
    EXPECT_TRUE(travail().envoye);
  }
};

TEST_F(ImpressionLongue, UneRecetteDeTrenteMilleOctets) {
  constexpr std::size_t limite = 30000;
  for (const char* mot : {"a ", "\r\n", "mot \r\n"}) {
    SCOPED_TRACE(mot);
    VueRecette longue = recette;
    while (longue.texte.size() < limite) {
      longue.texte += mot;
    }
    ImprimeEnPeuDeTemps(longue);
  }
  VueRecette dUnMot = recette;
  dUnMot.texte.assign(limite, 'a');
  ImprimeEnPeuDeTemps(dUnMot);
  EXPECT_THAT(travail().pages.back().back().texte, SizeIs(limite));
}

TEST_F(ImpressionLongue, LeRapportDUneCaveDeTousLesVins) {
  constexpr int vins = 32766;
  VueCave cave;
  for (int i = 0; i < vins; ++i) {
    cave.lignes.push_back("VIN " + std::to_string(i) + DepuisUtf8(" - Région d'origine : Alpes"));
    for (int couleur = 0; couleur < 9; ++couleur) {
      cave.lignes.emplace_back(".. Vin doux naturel  12");
    }
    cave.lignes.emplace_back("... Total .......... 12");
    cave.lignes.emplace_back(" ");
  }
  ImprimeEnPeuDeTemps(cave);
  constexpr std::size_t lignesParPage = 66;
  EXPECT_THAT(travail().pages,
              SizeIs((4 + cave.lignes.size() + lignesParPage - 1) / lignesParPage));
}

}  // namespace
}  // namespace gastrelle::essai
