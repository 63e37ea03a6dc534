#include "impression/ServeurImpression.h"

#include <csignal>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTest>
#include <gtest/gtest.h>

namespace gastrelle::essai {
namespace {

constexpr int patience = 20'000;  // milliseconds

/// Libraries remember the service that they were told of first: one port for the whole process.
QString port;

}  // namespace

ServeurImpression::ServeurImpression() {
  QStringList arguments{QString::fromStdString(dossier_.chemin().string())};
  if (!port.isEmpty()) {
    arguments.append(port);
  }
  processus_.setProcessChannelMode(QProcess::ForwardedErrorChannel);
  processus_.start(QStringLiteral(SERVEUR_PRIVE), arguments);
  EXPECT_TRUE(QTest::qWaitFor(
      [&] { return processus_.canReadLine() || processus_.state() == QProcess::NotRunning; },
      patience));
  port = QString::fromLatin1(processus_.readLine()).trimmed();
  EXPECT_FALSE(port.isEmpty()) << "il manque les paquets cups, cups-client et cups-filters";
  qputenv("CUPS_SERVER", "127.0.0.1:" + port.toLatin1());
  qunsetenv("PRINTER");
  qunsetenv("LPDEST");
}

ServeurImpression::~ServeurImpression() {
  Arrete();
}

void ServeurImpression::Arrete() {
  processus_.closeWriteChannel();
  processus_.waitForFinished(patience);
}

QString ServeurImpression::Commande(const QString& programme, const QStringList& arguments) {
  QProcess outil;
  outil.setStandardErrorFile(QProcess::nullDevice());
  outil.start(programme, arguments);
  outil.waitForFinished(patience);
  return QString::fromUtf8(outil.readAllStandardOutput());
}

void ServeurImpression::Fige(bool fige) const {
  QFile pid(Chemin("pid"));
  ASSERT_TRUE(pid.open(QIODevice::ReadOnly));
  ASSERT_EQ(::kill(pid.readAll().trimmed().toInt(), fige ? SIGSTOP : SIGCONT), 0);
}

int ServeurImpression::TravauxEnAttente() {
  return static_cast<int>(Commande("lpstat", {"-o"}).split(u'\n', Qt::SkipEmptyParts).size());
}

QString ServeurImpression::Sortie(int numero) const {
  const QString document = Chemin(QStringLiteral("sortie/%1.pdf").arg(numero));
  return QTest::qWaitFor([&] { return QFileInfo::exists(document); }, patience) ? document
                                                                                : QString();
}

bool ServeurImpression::RienSorti() const {
  return QDir(Chemin("sortie")).entryList(QDir::Files).isEmpty();
}

QString ServeurImpression::Chemin(const QString& nom) const {
  return QString::fromStdString(dossier_.chemin().string()) + u'/' + nom;
}

}  // namespace gastrelle::essai
