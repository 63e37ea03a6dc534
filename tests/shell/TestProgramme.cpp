// The program itself, in a folder of its own, on a virtual display: what its user sees from
// outside.

#include <filesystem>
#include <optional>

#include <QTest>
#include <gtest/gtest.h>

#include "doublures/Bibliotheque.h"
#include "doublures/Ecran.h"
#include "doublures/EcranVirtuel.h"

namespace gastrelle::essai {
namespace {

class Programme : public testing::Test {
 protected:
  void SetUp() override {
    if (!EcranVirtuel::Possible()) {
      GTEST_SKIP() << "il manque Xvfb ou xdotool";
    }
    std::filesystem::copy(PROGRAMME, b.dossier.chemin() / "gastrelle");
    b.dossier.Ecrit("GLPREF.DAT", Octets(RecPreferences{0, 0, 1}));
    ecran.emplace();
  }

  void TearDown() override { EcranVirtuel::Arrete(programme); }

  void Lance(QProcess& processus) {
    processus.setProcessEnvironment(ecran->environnement);
    processus.setStandardErrorFile(QProcess::nullDevice());
    processus.start(QString::fromStdString((b.dossier.chemin() / "gastrelle").string()), {});
    ASSERT_TRUE(processus.waitForStarted(patience));
  }

  QString Outil(const QStringList& arguments) {
    QProcess outil;
    outil.setProcessEnvironment(ecran->environnement);
    outil.setStandardErrorFile(QProcess::nullDevice());
    outil.start("xdotool", arguments);
    outil.waitForFinished(patience);
    return QString::fromUtf8(outil.readAllStandardOutput()).trimmed();
  }

  /// The one window that a program shows, as the display knows it, once it is there.
  QString FenetreDe(const QProcess& processus) {
    QString fenetre;
    static_cast<void>(QTest::qWaitFor(
        [&] {
          fenetre = Outil({"search", "--all", "--onlyvisible", "--pid",
                           QString::number(processus.processId()), "--name", "."});
          return !fenetre.isEmpty() || processus.state() == QProcess::NotRunning;
        },
        patience));
    EXPECT_FALSE(fenetre.isEmpty());
    EXPECT_FALSE(fenetre.contains(u'\n')) << fenetre.toStdString();
    return fenetre;
  }

  /// Presses a key in a program's window, again as long as it may not have been ready for it, until
  /// the program ends; its status.
  int FinitPar(const char* touche, QProcess& processus, const QString& fenetre) {
    EXPECT_TRUE(QTest::qWaitFor(
        [&] {
          Outil({"windowfocus", "--sync", fenetre});
          Outil({"key", touche});
          return processus.state() == QProcess::NotRunning || processus.waitForFinished(500);
        },
        patience));
    EXPECT_EQ(processus.exitStatus(), QProcess::NormalExit);
    return processus.exitCode();
  }

  Bibliotheque b;
  std::optional<EcranVirtuel> ecran;
  QProcess programme;
};

TEST_F(Programme, SaFenetrePorteLeTitreUneFoisEtSeQuitteSansErreur) {
  Lance(programme);
  const QString fenetre = FenetreDe(programme);
  EXPECT_EQ(Outil({"getwindowname", fenetre}), "Gastrelle 2005");
  EXPECT_TRUE(b.dossier.A("GLR1.DAT"));
  EXPECT_TRUE(b.dossier.A("IMAGE"));
  EXPECT_EQ(FinitPar("ctrl+q", programme, fenetre), 0);
}

TEST_F(Programme, UnFichierALaPlaceDuDossierDesImagesLArrete) {
  b.dossier.Ecrit("IMAGE", "x");
  Lance(programme);
  const QString message = FenetreDe(programme);
  EXPECT_EQ(Outil({"getwindowname", message}), "Gastrelle 2005");
  EXPECT_EQ(programme.state(), QProcess::Running);
  EXPECT_EQ(FinitPar("Return", programme, message), 1);
  EXPECT_EQ(b.dossier.Lit("IMAGE"), "x");
}

TEST_F(Programme, UnSecondNeSOuvrePasACoteDuPremier) {
  Lance(programme);
  FenetreDe(programme);
  QProcess second;
  Lance(second);
  FinitPar("Return", second, FenetreDe(second));
  EXPECT_EQ(programme.state(), QProcess::Running);
}

}  // namespace
}  // namespace gastrelle::essai
