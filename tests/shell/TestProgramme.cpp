// The program itself, in a folder of its own, on a virtual display: what its user sees from
// outside.

#include <filesystem>
#include <memory>

#include <QProcess>
#include <QStandardPaths>
#include <QTest>
#include <gtest/gtest.h>

#include "doublures/Bibliotheque.h"
#include "doublures/Ecran.h"

namespace gastrelle::essai {
namespace {

constexpr int patience = 20'000;  // milliseconds

class Programme : public testing::Test {
 protected:
  void SetUp() override {
    for (const char* outil : {"Xvfb", "xdotool"}) {
      if (QStandardPaths::findExecutable(QLatin1String(outil)).isEmpty()) {
        GTEST_SKIP() << outil << " n'est pas installé";
      }
    }
    std::filesystem::copy(PROGRAMME, b.dossier.chemin() / "gastrelle");
    b.dossier.Ecrit("GLPREF.DAT", Octets(RecPreferences{0, 0, 1}));
    // It would start anew, and shut everyone out meanwhile, whenever its last guest leaves.
    ecran.start("Xvfb", {"-displayfd", "1", "-noreset", "-screen", "0", "1000x800x24"});
    ASSERT_TRUE(QTest::qWaitFor([&] { return ecran.canReadLine(); }, patience));
    environnement.insert("DISPLAY", ":" + QString::fromLatin1(ecran.readLine()).trimmed());
    environnement.insert("QT_QPA_PLATFORM", "xcb");
    // The toolkit's own libraries keep memory until the end.
    environnement.insert("ASAN_OPTIONS", "detect_leaks=0");
  }

  void TearDown() override {
    for (QProcess* processus : {&programme, &ecran}) {
      if (processus->state() != QProcess::NotRunning) {
        processus->terminate();
        processus->waitForFinished(patience);
      }
    }
  }

  void Lance(QProcess& processus) {
    processus.setProcessEnvironment(environnement);
    processus.setStandardErrorFile(QProcess::nullDevice());
    processus.start(QString::fromStdString((b.dossier.chemin() / "gastrelle").string()), {});
    ASSERT_TRUE(processus.waitForStarted(patience));
  }

  QString Outil(const QStringList& arguments) {
    QProcess outil;
    outil.setProcessEnvironment(environnement);
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
  QProcessEnvironment environnement = QProcessEnvironment::systemEnvironment();
  QProcess ecran;
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
