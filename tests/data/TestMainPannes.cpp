// A failure at every call of the start, one after the other, and what becomes of the program.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "doublures/Depart.h"

namespace gastrelle::essai {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

enum class Issue {
  cadre,         ///< the program starts, without a word
  sansPrefs,     ///< it starts with the default preferences, their file closed
  troisLignes,   ///< the three lines about a file, the end
  copieAbsente,  ///< the two lines about a factory copy, the end
  erreur,        ///< a failure outside every guard
};

struct Attente {
  Issue issue;
  std::string nom;  // of the file that the message tells
};

/// The second word of a journal line.
std::string NomDans(const std::string& ligne) {
  const std::size_t debut = ligne.find(' ') + 1;
  return ligne.substr(debut, ligne.find(' ', debut) - debut);
}

/// A folder ready for a start: new, or as an earlier start left it; one aisle has a text.
std::unique_ptr<Bibliotheque> Prepare(bool nouveau) {
  auto b = std::make_unique<Bibliotheque>();
  b->dossier.Ecrit("GLMC.stp", Octets(LigneRayon{10, 3}) + std::string(112, '\0'));
  b->dossier.Ecrit("GLMCN.stp", "GLMCN.DATsel");
  if (!nouveau) {
    b->Demarre();
    b->dossier.Ecrit("GLPREF.DAT", std::string("\1\0\1\0\1\0", 6));
    b->Redemarre();
  }
  b->disque.OublieJournal();
  return b;
}

/// What a failure of the call `ligne` leads to; `courses` tells that the aisle texts are being
/// read.
Attente AttenteDe(const std::string& ligne, bool nouveau, bool courses) {
  const std::string nom = NomDans(ligne);
  if (nom == "GLPREF.DAT") {
    return {ligne.starts_with("existe") ? Issue::cadre : Issue::sansPrefs, {}};
  }
  if (nom == "IMAGE") {
    const bool sansSuite = nouveau && ligne.starts_with("dossier?");
    return {sansSuite ? Issue::cadre : Issue::erreur, {}};
  }
  if (ligne.starts_with("existe")) {
    return {nom.ends_with(".DAT") ? Issue::cadre : Issue::copieAbsente, nom};
  }
  if (ligne.starts_with("copie")) {
    return {Issue::troisLignes, nom.substr(0, nom.size() - 3) + "DAT"};
  }
  return {Issue::troisLignes, courses ? "GLMCN.DAT" : nom};
}

void Verifie(const Bibliotheque& b, const Depart& depart, const Attente& attente) {
  const bool demarre = attente.issue == Issue::cadre || attente.issue == Issue::sansPrefs;
  EXPECT_EQ(depart.cadre, demarre);
  EXPECT_EQ(b.module->Place(Donnees::GLPREF) == nullptr,
            attente.issue != Issue::cadre && attente.issue != Issue::erreur);
  EXPECT_EQ(depart.erreur.has_value(), attente.issue == Issue::erreur);
  EXPECT_EQ(b.messages.bips, attente.issue == Issue::troisLignes ? 1 : 0);
  switch (attente.issue) {
    case Issue::troisLignes:
      EXPECT_EQ(depart.fin, 1);
      EXPECT_THAT(b.messages.vus, ElementsAre(TroisLignes(b, attente.nom)));
      break;
    case Issue::copieAbsente:
      EXPECT_EQ(depart.fin, 1);
      EXPECT_THAT(b.messages.vus, ElementsAre(NonTrouve(b, attente.nom)));
      break;
    default:
      EXPECT_EQ(depart.fin, std::nullopt);
      EXPECT_THAT(b.messages.vus, IsEmpty());
  }
}

/// One start after the other, each with a failure one call later.
void EprouveChaqueAppel(bool nouveau, std::size_t appels, Maniere maniere) {
  const auto modele = Prepare(nouveau);
  ASSERT_TRUE(Essaie(*modele).cadre);
  const std::vector<std::string>& journal = modele->disque.journal();
  ASSERT_EQ(journal.size(), appels);
  bool courses = false;
  for (std::size_t n = 1; n <= journal.size(); ++n) {
    const std::string& ligne = journal[n - 1];
    SCOPED_TRACE(std::to_string(n) + " " + ligne);
    if (maniere == Maniere::moitieEcrite && !ligne.starts_with("écrit")) {
      continue;
    }
    const auto b = Prepare(nouveau);
    b->module = std::make_unique<Module1>(b->module->services, b->module->chemins);
    b->disque.EchoueALAppel(n, Panne::entreeSortie, maniere);
    const Depart depart = Essaie(*b);
    Verifie(*b, depart, AttenteDe(ligne, nouveau, courses));
    courses = courses || ligne == "lit GLMCN.DAT 0+9";
    b->disque.Guerit();
    EXPECT_TRUE(Essaie(*b).cadre) << "le départ suivant";
  }
}

/// 19 times: two searches, a copy, an opening; 17 headers; the date twice; 15 aisles and one text;
/// 3 calls for the preferences and 2 for the pictures.
constexpr std::size_t appelsNouveau = 19 * 4 + 17 + 2 + 15 + 2 + 3 + 2;
/// The same without the copies, and with the folder of the pictures already there.
constexpr std::size_t appelsAncien = 19 * 2 + 17 + 15 + 2 + 3 + 1;

TEST(PannesDuDemarrage, DUnDossierNeufAChaqueAppel) {
  EprouveChaqueAppel(true, appelsNouveau, Maniere::rienFait);
}

TEST(PannesDuDemarrage, DUnDossierNeufAChaqueEcritureRestantAMoitie) {
  EprouveChaqueAppel(true, appelsNouveau, Maniere::moitieEcrite);
}

TEST(PannesDuDemarrage, DUnDossierDejaServiAChaqueAppel) {
  EprouveChaqueAppel(false, appelsAncien, Maniere::rienFait);
}

/// A failure that lasts, as a row of a table: what fails, and the file that the message tells.
struct PanneDurable {
  const char* appel;
  const char* nom;
};

constexpr PanneDurable pannesDurables[] = {
    {"copie GLV2.stp", "GLV2.DAT"},      {"ouvre GLR1.DAT", "GLR1.DAT"},
    {"ouvre GLMV.DAT", "GLMV.DAT"},      {"ouvre GLMC.DAT", "GLMC.DAT"},
    {"lit GLFV2.DAT", "GLFV2.DAT"},      {"lit GLT2.DAT", "GLT2.DAT"},
    {"écrit GLR2.DAT", "GLR2.DAT"},      {"lit GLMC.DAT", "GLMCN.DAT"},
    {"lit GLMC.DAT 112+8", "GLMCN.DAT"}, {"lit GLMCN.DAT 9+3", "GLMCN.DAT"},
    {"lit GLMCN.DAT 0+9", "GLMCN.DAT"},  {"longueur GLMCN.DAT", "GLMCN.DAT"},
};

TEST(PannesDuDemarrage, DurablesDisentLeFichierEnTroisLignes) {
  for (const PanneDurable& ligne : pannesDurables) {
    SCOPED_TRACE(ligne.appel);
    const auto b = Prepare(true);
    b->disque.EchoueSur(ligne.appel, Panne::disquePlein);
    const Depart depart = Essaie(*b);
    Verifie(*b, depart, {Issue::troisLignes, ligne.nom});
  }
}

TEST(PannesDuDemarrage, DUneRechercheRestaureLeFichierQuElleNAPasTrouve) {
  const auto b = Prepare(false);
  b->AjouteFamille("Sauces");
  b->module = std::make_unique<Module1>(b->module->services, b->module->chemins);
  b->disque.EchoueALAppel(1, Panne::entreeSortie);
  EXPECT_TRUE(Essaie(*b).cadre);
  EXPECT_EQ(b->dossier.Lit("GLR1.DAT"), b->dossier.Lit("GLR1.stp"));
}

}  // namespace
}  // namespace gastrelle::essai
