// A virtual X display of a test's own, for what only a real window system shows.
#pragma once

#include <QProcess>
#include <QProcessEnvironment>
#include <QStandardPaths>
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

/// Runs one test of this program once more, as a guest of a virtual display. Its exit status.
inline int RejoueSurEcranVirtuel(const QString& nom) {
  EcranVirtuel ecran;
  QProcess essai;
  ecran.environnement.insert("PLATEFORME_DES_ESSAIS", "xcb");
  essai.setProcessEnvironment(ecran.environnement);
  essai.start(QCoreApplication::applicationFilePath(), {"--gtest_filter=" + nom});
  essai.waitForFinished(patience);
  return essai.exitStatus() == QProcess::NormalExit &&
                 essai.readAllStandardOutput().contains("[  PASSED  ] 1 test")
             ? essai.exitCode()
             : -1;
}

}  // namespace gastrelle::essai
