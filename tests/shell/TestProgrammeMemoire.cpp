// What damaged data files make the program hold in memory: never more than they are worth.

#include <filesystem>
#include <utility>

#include <gmock/gmock.h>

#include "doublures/Limites.h"
#include "doublures/ProgrammeEssai.h"
#include "fromages/FromagesEssai.h"

namespace gastrelle::essai {
namespace {

constexpr std::int64_t deuxGigaoctets = (std::int64_t{1} << 31) - 1;
constexpr qint64 permise = 300'000'000;
constexpr int unInstant = 2'000;  // milliseconds: for what the keys do
constexpr const char* fatal = "Erreur fatale. Impossibilité de continuer.";

/// A program that wants everything is stopped before the machine has no more.
void BorneLaMemoire() {
#if !defined(__SANITIZE_ADDRESS__)
  constexpr rlim_t bien = 4'000'000'000;
  PoseLimite(RLIMIT_AS, bien, bien);
#endif
}

class MemoireDuProgramme : public ProgrammeEssai {
 protected:
  void SetUp() override {
    ProgrammeEssai::SetUp();
    avantDepart = BorneLaMemoire;
  }

  /// The data file in the place of its factory copy.
  [[nodiscard]] std::filesystem::path Installe(Donnees fichier) const {
    const auto place = b.dossier.chemin() / Nom(fichier);
    std::filesystem::rename(b.dossier.chemin() / NomFabrique(fichier), place);
    return place;
  }
  /// A data file of two gigabytes, most of them a hole.
  void Gonfle(Donnees fichier) const {
    std::filesystem::resize_file(Installe(fichier), deuxGigaoctets);
  }
  /// Writes a number over the last bytes of a file.
  void FinitSur(Donnees fichier, std::int32_t nombre) const {
    std::string octets = b.dossier.Lit(Nom(fichier));
    const std::string fin = Octets(LigneRayon{0, nombre}).substr(4);
    octets.replace(octets.size() - fin.size(), fin.size(), fin);
    b.dossier.Ecrit(Nom(fichier), octets);
  }

  void AttendMessage(const std::string& debut) {
    EXPECT_TRUE(QTest::qWaitFor(
        [&] { return !Messages(programme).empty() || programme.state() == QProcess::NotRunning; },
        patience));
    EXPECT_THAT(Messages(programme), testing::ElementsAre(testing::StartsWith(debut)));
  }
  /// The sanitizers keep a memory of their own.
  void AttendPeuDeMemoire() {
#if !defined(__SANITIZE_ADDRESS__)
    ASSERT_EQ(programme.state(), QProcess::Running);
    EXPECT_LT(PlusDeMemoire(programme), permise);
#endif
  }
  /// Waits until the program asks for no more.
  void AttendQuElleNeGrandissePlus() {
    EXPECT_TRUE(QTest::qWaitFor(
        [&, avant = qint64{0}]() mutable {
          QTest::qWait(unInstant);
          const qint64 maintenant = PlusDeMemoire(programme);
          return std::exchange(avant, maintenant) == maintenant;
        },
        patience));
  }
  /// A key in the program's window.
  void Tape(const char* touche, const QString& fenetre) {
    Outil({"windowfocus", "--sync", fenetre});
    Outil({"key", touche});
  }
};

TEST_F(MemoireDuProgramme, UneLongueurFolleDansUneReserveDeDeuxGigaoctetsEstUnePanne) {
  b.GarnitFromages();
  b.AjouteFromage(Fromage("Abondance"), "Une note.");
  Gonfle(Donnees::GLF2);
  static_cast<void>(Installe(Donnees::GLF1));
  FinitSur(Donnees::GLF1, Reserve::sansLimite);
  Lance(programme);
  const QString fenetre = FenetreDe(programme);
  Tape("ctrl+2", fenetre);
  AttendMessage(fatal);
  AttendPeuDeMemoire();
}

/// Notes that cost nearly as much as they may, of ever the same piece.
struct Notes {
  const char* nom;
  const char* morceau;
  std::size_t longueur;
};

class MemoireDesNotes : public MemoireDuProgramme, public testing::WithParamInterface<Notes> {};

TEST_P(MemoireDesNotes, TiennentSurLesTroisOnglets) {
  const Notes& cas = GetParam();
  std::string notes;
  while (notes.size() < cas.longueur) {
    notes += cas.morceau;
  }
  b.GarnitFromages();
  b.AjouteFromage(Fromage("Abondance"), notes);
  Lance(programme);
  const QString fenetre = FenetreDe(programme);
  Tape("ctrl+2", fenetre);
  for (int onglet = 1; onglet <= 5; ++onglet) {
    Tape("ctrl+Next", fenetre);  // faster than the pages are drawn
  }
  AttendQuElleNeGrandissePlus();
  AttendPeuDeMemoire();
  EXPECT_EQ(FinitPar("ctrl+q", programme, fenetre), 0);
  EXPECT_THAT(Messages(programme), testing::IsEmpty());
}

INSTANTIATE_TEST_SUITE_P(
    Sortes, MemoireDesNotes,
    testing::Values(Notes{"lignes_vides", "\r\n", 280'000}, Notes{"un_mot", "x", 3'300'000},
                    Notes{"texte", "Couper la viande en cubes et laisser reposer au frais.\r\n",
                          4'800'000}),
    [](const testing::TestParamInfo<Notes>& cas) { return std::string(cas.param.nom); });

TEST_F(MemoireDuProgramme, UnCheminDImageDeTrenteMegaoctetsEstUneImagePerdue) {
  Gonfle(Donnees::GLR4);
  static_cast<void>(Installe(Donnees::GLR2));
  RecRecette recette = Enregistrement<RecRecette>(b.dossier, Nom(Donnees::GLR2), 2);
  recette.posImage = 1;
  recette.lgImage = Reserve::plafond;
  std::string octets =
      b.dossier.Lit(Nom(Donnees::GLR2)).substr(0, longueurEnregistrement<RecRecette>);
  b.dossier.Ecrit(Nom(Donnees::GLR2), octets + Octets(recette));
  Lance(programme);
  AttendMessage("Le fichier image | GLR4.DAT");
  AttendPeuDeMemoire();
  EXPECT_EQ(Enregistrement<RecRecette>(b.dossier, Nom(Donnees::GLR2), 2).lgImage, 0);
}

TEST_F(MemoireDuProgramme, QuinzeRayonsDeDeuxGigaoctetsRefusentLeDemarrage) {
  Gonfle(Donnees::GLMCN);
  std::string lignes;
  for (std::size_t i = 0; i < nombreRayons; ++i) {
    lignes += Octets(LigneRayon{1, Reserve::plafond - 1});
  }
  b.dossier.Ecrit(Nom(Donnees::GLMC), lignes);
  Lance(programme);
  AttendMessage(TroisLignes("GLMCN.DAT"));
  AttendPeuDeMemoire();
}

TEST_F(MemoireDuProgramme, DeuxGigaoctetsDeFichesSupprimeesNeCoutentRien) {
  for (const Donnees fichier : {Donnees::GLR2, Donnees::GLM1}) {
    Gonfle(fichier);
  }
  Lance(programme);
  const QString fenetre = FenetreDe(programme);
  AttendPeuDeMemoire();
  EXPECT_EQ(FinitPar("ctrl+q", programme, fenetre), 0);
}

}  // namespace
}  // namespace gastrelle::essai
