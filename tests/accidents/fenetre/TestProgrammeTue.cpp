// The program itself, killed in the middle of a cleaning that its user has asked for, on a library
// that takes a while.

#include <chrono>
#include <csignal>
#include <fstream>
#include <functional>
#include <optional>
#include <string>
#include <thread>

#include <QTest>
#include <gmock/gmock.h>

#include "accidents/EtatRecettes.h"
#include "accidents/Secours.h"
#include "doublures/ProgrammeEssai.h"

namespace gastrelle::essai {
namespace {

namespace fs = std::filesystem;

/// When the program is killed: as soon as the folder looks like that.
struct Moment {
  const char* nom;
  std::function<bool(const fs::path& dossier)> venu;
};

void PrintTo(const Moment& moment, std::ostream* vers) {
  *vers << moment.nom;
}

std::uintmax_t Taille(const fs::path& fichier) {
  std::error_code absent;
  const std::uintmax_t taille = fs::file_size(fichier, absent);
  return absent ? 0 : taille;
}

constexpr std::size_t unTexte = std::size_t{1} << 23;
constexpr int nombreDeTextes = 25;
constexpr std::uintmax_t unPeu = 8 * unTexte;

/// The old files begin to go; where that was over before anybody looked, the new ones have come.
std::function<bool(const fs::path& dossier)> RemplacementVu() {
  return [rebatit = false](const fs::path& dossier) mutable {
    rebatit = rebatit || Taille(dossier / "GLR3.tmp") > unPeu;
    return rebatit && (!fs::exists(dossier / "GLR1.DAT") || !fs::exists(dossier / "GLR3.tmp"));
  };
}

class ProgrammeTue : public ProgrammeEssai, public testing::WithParamInterface<Moment> {
 protected:
  void SetUp() override {
    ProgrammeEssai::SetUp();
    b.Demarre();
    const std::int32_t famille = b.AjouteFamille("Zakouski");
    b.AjouteRecette(famille, "Des mots", "Un court texte.", "/mots.png");
    AjouteLongsTextes(famille);
  }

  /// Some two hundred megabytes, each recipe with words of its own; one of them is deleted.
  void AjouteLongsTextes(std::int32_t famille) const {
    std::string recettes = b.dossier.Lit("GLR2.DAT");
    std::ofstream textes(b.dossier.chemin() / "GLR3.DAT", std::ios::binary | std::ios::app);
    auto position = static_cast<std::int32_t>(fs::file_size(b.dossier.chemin() / "GLR3.DAT"));
    for (int i = 0; i < nombreDeTextes; ++i) {
      RecRecette recette;
      recette.actif = i == 0 ? supprime : vivant;
      recette.idFamille = famille;
      recette.nomRecette = "Longue " + std::to_string(i);
      recette.posTexte = position + 1;
      recette.lgTexte = static_cast<std::int32_t>(unTexte);
      recettes += Octets(recette);
      textes << std::string(unTexte, static_cast<char>('a' + i));
      position += recette.lgTexte;
    }
    auto entete = Enregistrement<RecRecette>(b.dossier, "GLR2.DAT", 1);
    entete.actif = static_cast<std::int16_t>(entete.actif + nombreDeTextes - 1);
    recettes.replace(0, longueurEnregistrement<RecRecette>, Octets(entete));
    b.dossier.Ecrit("GLR2.DAT", recettes);
  }

  /// Through the menu, as its user does.
  void DemandeLeNettoyage() {
    const QString cadre = FenetreDe(programme);
    Outil({"windowfocus", "--sync", cadre});
    Outil({"key", "--delay", "100", "alt+f", "m", "n"});
    const QString dialogue = FenetreDe(programme, cadre);
    ASSERT_FALSE(dialogue.isEmpty());
    Outil({"windowfocus", "--sync", dialogue});
    Outil({"key", "alt+n"});
  }

  /// Looks without a pause, since some moments are short.
  [[nodiscard]] bool Attend(const std::function<bool(const fs::path& dossier)>& venu) const {
    const auto fin = std::chrono::steady_clock::now() + std::chrono::milliseconds(patience);
    while (std::chrono::steady_clock::now() < fin) {
      if (venu(b.dossier.chemin())) {
        return true;
      }
      std::this_thread::yield();
    }
    return false;
  }

  [[nodiscard]] std::optional<RecettesLues> Recettes() const {
    return LitRecettes(QuatreDe(b.dossier.chemin(), "DAT"));
  }
};

TEST_P(ProgrammeTue, EnPleinNettoyageRendToutesSesRecettes) {
  const auto avant = Recettes();
  ASSERT_TRUE(avant.has_value());
  Lance(programme);
  DemandeLeNettoyage();
  const auto venu = GetParam().venu;  // a copy, which remembers nothing yet
  ASSERT_TRUE(Attend(venu));
  ASSERT_EQ(::kill(static_cast<pid_t>(programme.processId()), SIGKILL), 0);
  ASSERT_TRUE(programme.waitForFinished(patience));
  EXPECT_EQ(programme.exitStatus(), QProcess::CrashExit);

  const fs::path& dossier = b.dossier.chemin();
  Revient(dossier, RetourPour(NomsPresents(dossier)));
  QProcess second;
  Lance(second);
  EXPECT_EQ(FinitPar("ctrl+q", second, FenetreDe(second)), 0);
  EXPECT_THAT(Messages(second), testing::IsEmpty());
  EXPECT_TRUE(Recettes() == avant);
}

INSTANTIATE_TEST_SUITE_P(Moments, ProgrammeTue,
                         testing::Values(Moment{"QuandIlCopie",
                                                [](const fs::path& dossier) {
                                                  return Taille(dossier / "TEMP/GLR3.DAT~") > unPeu;
                                                }},
                                         Moment{"QuandIlRebatit",
                                                [](const fs::path& dossier) {
                                                  return Taille(dossier / "GLR3.tmp") > unPeu;
                                                }},
                                         Moment{"QuandIlRemplace", RemplacementVu()}),
                         [](const testing::TestParamInfo<Moment>& cas) {
                           return std::string(cas.param.nom);
                         });

}  // namespace
}  // namespace gastrelle::essai
