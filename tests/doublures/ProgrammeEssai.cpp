#include "doublures/ProgrammeEssai.h"

#include <filesystem>
#include <grp.h>
#include <unistd.h>

#include <QFile>
#include <QTest>

namespace gastrelle::essai {
namespace {

/// Under which a process keeps what it has printed.
constexpr const char* proprieteDit = "dit";

constexpr unsigned personne = 65534;  // the user and the group to whom nothing belongs

void DevientPersonne() {
  if (::geteuid() == 0 &&
      (::setgroups(0, nullptr) != 0 || ::setgid(personne) != 0 || ::setuid(personne) != 0)) {
    ::_exit(126);
  }
}

}  // namespace

void ProgrammeEssai::SetUp() {
  if (!EcranVirtuel::Possible()) {
    GTEST_SKIP() << "il manque Xvfb ou xdotool";
  }
  std::filesystem::copy(PROGRAMME, b.dossier.chemin() / "gastrelle");
  b.dossier.Ecrit("GLPREF.DAT", Octets(RecPreferences{0, 0, 1}));
  ecran.emplace();
  environnement = ecran->environnement;
  environnement.insert("QT_PLUGIN_PATH", DOSSIER_GREFFONS);
  environnement.insert("QT_QPA_GENERIC_PLUGINS", "temoin");
  environnement.insert("XDG_CONFIG_HOME", QString::fromStdString(reglages.chemin().string()));
  environnement.insert("XDG_RUNTIME_DIR", QString::fromStdString(reglages.chemin().string()));
}

void ProgrammeEssai::Lance(QProcess& processus) {
  processus.setProcessEnvironment(environnement);
  processus.setStandardErrorFile(QString::fromStdString((reglages.chemin() / "erreurs").string()),
                                 QIODevice::Append);
  if (!dossierCourant.empty()) {
    processus.setWorkingDirectory(QString::fromStdString(dossierCourant));
  }
  if (avantDepart || simpleUsager_) {
    processus.setChildProcessModifier([prepare = avantDepart, simple = simpleUsager_] {
      if (prepare) {
        prepare();
      }
      if (simple) {
        DevientPersonne();
      }
    });
  }
  processus.start(QString::fromStdString((b.dossier.chemin() / "gastrelle").string()), {});
  ASSERT_TRUE(processus.waitForStarted(patience));
}

QString ProgrammeEssai::Outil(const QStringList& arguments) {
  QProcess outil;
  outil.setProcessEnvironment(ecran->environnement);
  outil.setStandardErrorFile(QProcess::nullDevice());
  outil.start("xdotool", arguments);
  outil.waitForFinished(patience);
  return QString::fromUtf8(outil.readAllStandardOutput()).trimmed();
}

QString ProgrammeEssai::FenetreDe(const QProcess& processus, const QString& dessous) {
  QStringList fenetres;
  static_cast<void>(QTest::qWaitFor(
      [&] {
        fenetres = Outil({"search", "--all", "--onlyvisible", "--pid",
                          QString::number(processus.processId()), "--name", "."})
                       .split(u'\n', Qt::SkipEmptyParts);
        fenetres.removeAll(dessous);
        return !fenetres.isEmpty() || processus.state() == QProcess::NotRunning;
      },
      attente));
  EXPECT_EQ(fenetres.size(), 1) << fenetres.join(u' ').toStdString();
  return fenetres.value(0);
}

int ProgrammeEssai::FinitPar(const char* touche, QProcess& processus, const QString& fenetre) {
  EXPECT_TRUE(QTest::qWaitFor(
      [&] {
        Outil({"windowfocus", "--sync", fenetre});
        Outil({"key", touche});
        return processus.state() == QProcess::NotRunning || processus.waitForFinished(500);
      },
      attente));
  EXPECT_EQ(processus.exitStatus(), QProcess::NormalExit);
  return processus.exitCode();
}

std::vector<std::string> ProgrammeEssai::Messages(QProcess& processus) {
  static const QString tete = QStringLiteral("message: ");
  processus.waitForReadyRead(0);  // what it has said, and the events haven't brought yet
  const QString dit = processus.property(proprieteDit).toString() +
                      QString::fromUtf8(processus.readAllStandardOutput());
  processus.setProperty(proprieteDit, dit);
  std::vector<std::string> messages;
  for (const QString& ligne : dit.split(u'\n', Qt::SkipEmptyParts)) {
    if (ligne.startsWith(tete)) {
      messages.push_back(ligne.mid(tete.size()).toStdString());
    }
  }
  return messages;
}

std::string ProgrammeEssai::TroisLignes(const char* fichier) const {
  return "Fichier | " + (b.dossier.chemin() / fichier).string() +
         " | non trouvé ou incompatible ou erreur disque.";
}

qint64 ProgrammeEssai::PlusDeMemoire(const QProcess& processus) {
  QFile etat(QStringLiteral("/proc/%1/status").arg(processus.processId()));
  EXPECT_TRUE(etat.open(QIODevice::ReadOnly));
  for (const QByteArray& ligne : etat.readAll().split('\n')) {
    if (ligne.startsWith("VmHWM:")) {
      constexpr qint64 kilo = 1024;
      return ligne.simplified().split(' ').at(1).toLongLong() * kilo;
    }
  }
  ADD_FAILURE() << "le système ne dit pas la mémoire";
  return 0;
}

void ProgrammeEssai::EnSimpleUsager() {
  simpleUsager_ = true;
  std::filesystem::permissions(reglages.chemin(), std::filesystem::perms::all);
}

void ProgrammeEssai::Remplace(const char* nom, const Entree& entree) const {
  const std::filesystem::path chemin = b.dossier.chemin() / nom;
  std::filesystem::remove(chemin);
  entree.pose(chemin);
}

void ProgrammeEssai::Droits(const char* nom, unsigned droits) const {
  std::filesystem::permissions(b.dossier.chemin() / nom,
                               static_cast<std::filesystem::perms>(droits));
}

}  // namespace gastrelle::essai
