// The program under the limits that a system sets to its processes.

#include <unistd.h>

#include <QFile>
#include <gmock/gmock.h>

#include "doublures/Limites.h"
#include "doublures/ProgrammeEssai.h"

namespace gastrelle::essai {
namespace {

namespace fs = std::filesystem;
using testing::ElementsAre;

class ProgrammeLimite : public ProgrammeEssai {
 protected:
  static constexpr auto tropPeu =
      "Le système ne laisse pas ouvrir assez de fichiers à la fois : Gastrelle ne peut pas "
      "démarrer. "
      "Relevez cette limite (« ulimit -n 256 »), puis recommencez.";
};

TEST_F(ProgrammeLimite, UneRecetteQuiNeTientPlusDansSonFichierFinitParLeMessage) {
  b.Demarre();
  const std::string recettes = b.dossier.Lit("GLR2.DAT");
  const std::string textes = b.dossier.Lit("GLR3.DAT");
  avantDepart = [place = textes.size() + 5] { PoseLimite(RLIMIT_FSIZE, place, place); };
  Lance(programme);
  const QString fenetre = FenetreDe(programme);
  Outil({"windowfocus", "--sync", fenetre});
  Outil({"key", "ctrl+Next"});
  Outil({"key", "alt+t"});
  Outil({"type", "Soupe"});
  Outil({"key", "alt+x"});
  Outil({"type", "longue a mijoter"});
  Outil({"key", "ctrl+Return"});
  EXPECT_EQ(FinitPar("Return", programme, FenetreDe(programme, fenetre)), 1);
  EXPECT_THAT(Messages(programme), ElementsAre("Erreur fatale. Impossibilité de continuer."));
  EXPECT_EQ(b.dossier.Lit("GLR2.DAT"), recettes);
  EXPECT_EQ(b.dossier.Lit("GLR3.DAT"), textes + "longu");
}

TEST_F(ProgrammeLimite, UneSauvegardeQuiNeTientPlusGardeLAncienneSansUnMot) {
  b.AjouteRecette(2, "Potage", std::string(5000, 'x'));
  b.Demarre();
  b.dossier.Ecrit("GLPREF.DAT", Octets(RecPreferences{0, 0, 0}));
  fs::create_directory(b.dossier.chemin() / "SAUVE");
  b.dossier.Ecrit("SAUVE/GLR3.DAT", "ancienne");
  avantDepart = [] { PoseLimite(RLIMIT_FSIZE, 4096, 4096); };
  Lance(programme);
  EXPECT_EQ(FinitPar("ctrl+q", programme, FenetreDe(programme)), 0);
  EXPECT_THAT(Messages(programme), ElementsAre());
  EXPECT_EQ(b.dossier.Lit("SAUVE/GLR2.DAT"), b.dossier.Lit("GLR2.DAT"));
  EXPECT_EQ(b.dossier.Lit("SAUVE/GLR3.DAT"), "ancienne");
  EXPECT_FALSE(b.dossier.A("SAUVE/GLR3.DAT~"));
  EXPECT_FALSE(b.dossier.A("SAUVE/GLR4.DAT"));
}

TEST_F(ProgrammeLimite, TropPeuDeFichiersOuvertsSeDisentALEcran) {
  avantDepart = [] { PoseLimite(RLIMIT_NOFILE, 60, 60); };
  Lance(programme);
  EXPECT_EQ(FinitPar("Return", programme, FenetreDe(programme)), 1);
  EXPECT_THAT(Messages(programme), ElementsAre(tropPeu));
  EXPECT_THAT(Erreurs(), testing::HasSubstr(tropPeu));
  EXPECT_FALSE(b.dossier.A("GLR1.DAT"));
}

TEST_F(ProgrammeLimite, PresqueAucunFichierOuvertSeDitSansEcran) {
  for (const rlim_t combien : {6U, 8U, 12U, 20U, 28U, 34U}) {
    SCOPED_TRACE(combien);
    reglages.Ecrit("erreurs", "");
    avantDepart = [combien] {
      ::close_range(STDERR_FILENO + 1, ~0U, 0);  // what the tests were started with
      PoseLimite(RLIMIT_NOFILE, combien, combien);
    };
    QProcess refuse;
    Lance(refuse);
    ASSERT_TRUE(refuse.waitForFinished(patience));
    EXPECT_EQ(refuse.exitStatus(), QProcess::NormalExit);
    EXPECT_EQ(refuse.exitCode(), 1);
    EXPECT_EQ(Erreurs(), std::string(tropPeu) + "\n");
  }
}

TEST_F(ProgrammeLimite, UneLimiteQuiSeReleveNeLArretePas) {
  avantDepart = [] { PoseLimite(RLIMIT_NOFILE, 20, 1024); };
  Lance(programme);
  EXPECT_EQ(FinitPar("ctrl+q", programme, FenetreDe(programme)), 0);
  EXPECT_THAT(Messages(programme), ElementsAre());
  EXPECT_EQ(Erreurs(), "");
}

TEST_F(ProgrammeLimite, SansEntreeNiSortiesLesDonneesNePrennentPasLeurPlace) {
  avantDepart = [] {
    for (const int numero : {0, 1, 2}) {
      ::close(numero);
    }
  };
  Lance(programme);
  const QString fenetre = FenetreDe(programme);
  const QString ouverts = QStringLiteral("/proc/%1/fd/").arg(programme.processId());
  for (const char* numero : {"0", "1", "2"}) {
    EXPECT_EQ(QFile::symLinkTarget(ouverts + QLatin1String(numero)), "/dev/null") << numero;
  }
  EXPECT_EQ(FinitPar("ctrl+q", programme, fenetre), 0);
}

}  // namespace
}  // namespace gastrelle::essai
