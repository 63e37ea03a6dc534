// A virtual X display of a test's own, for what only a real window system shows.
#pragma once

#include <QProcess>
#include <QProcessEnvironment>
#include <QStandardPaths>
#include <QTemporaryFile>
#include <QTest>

namespace gastrelle::essai {

inline constexpr int patience = 20'000;  // milliseconds

/// Goes with the object.
class EcranVirtuel {
 public:
  EcranVirtuel() {
    // It would start anew, and shut everyone out meanwhile, whenever its last guest leaves.
    serveur_.start("Xvfb", {"-displayfd", "1", "-noreset", "-screen", "0", "1000x800x24"});
    if (QTest::qWaitFor([&] { return serveur_.canReadLine(); }, patience)) {
      environnement.insert("DISPLAY", ":" + QString::fromLatin1(serveur_.readLine()).trimmed());
    }
    environnement.insert("QT_QPA_PLATFORM", "xcb");
    // The toolkit's own libraries keep memory until the end.
    environnement.insert("ASAN_OPTIONS", "detect_leaks=0");
  }
  EcranVirtuel(const EcranVirtuel&) = delete;
  EcranVirtuel& operator=(const EcranVirtuel&) = delete;
  ~EcranVirtuel() { Arrete(serveur_); }

  /// True on a machine that has what a virtual display needs.
  static bool Possible() {
    return !QStandardPaths::findExecutable("Xvfb").isEmpty() &&
           !QStandardPaths::findExecutable("xdotool").isEmpty();
  }

  static void Arrete(QProcess& processus) {
    if (processus.state() != QProcess::NotRunning) {
      processus.terminate();
      processus.waitForFinished(patience);
    }
  }

  /// What a guest of the display needs to know.
  QProcessEnvironment environnement = QProcessEnvironment::systemEnvironment();

 private:
  QProcess serveur_;
};

/// Runs one test of this program once more, in a process of its own. Its exit status.
inline int Rejoue(const QString& nom, const QProcessEnvironment& environnement) {
  QProcess essai;
  essai.setProcessEnvironment(environnement);
  essai.start(QCoreApplication::applicationFilePath(), {"--gtest_filter=" + nom});
  essai.waitForFinished(patience);
  return essai.exitStatus() == QProcess::NormalExit &&
                 essai.readAllStandardOutput().contains("[  PASSED  ] 1 test")
             ? essai.exitCode()
             : -1;
}

/// The same as a guest of a virtual display.
inline int RejoueSurEcranVirtuel(const QString& nom) {
  EcranVirtuel ecran;
  ecran.environnement.insert("PLATEFORME_DES_ESSAIS", "xcb");
  return Rejoue(nom, ecran.environnement);
}

/// The same on a screen of that size in pixels, `densite` of which make one of the program's.
inline int RejoueSurUnEcranDe(const QSize& taille, int densite, const QString& nom) {
  QTemporaryFile reglage;
  if (!reglage.open()) {
    return -1;
  }
  reglage.write(QStringLiteral(R"({"screens": [{"name": "essai", "x": 0, "y": 0, "width": %1,
      "height": %2, "logicalDpi": 96, "logicalBaseDpi": 96, "dpr": 1}]})")
                    .arg(taille.width())
                    .arg(taille.height())
                    .toUtf8());
  reglage.close();
  QProcessEnvironment environnement = QProcessEnvironment::systemEnvironment();
  environnement.insert("PLATEFORME_DES_ESSAIS", "offscreen:configfile=" + reglage.fileName());
  environnement.insert("QT_SCALE_FACTOR", QString::number(densite));
  return Rejoue(nom, environnement);
}

}  // namespace gastrelle::essai
