#include "promenade/PromenadeReelle.h"

#include <filesystem>

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QProcessEnvironment>

namespace gastrelle::essai {
namespace {

namespace fs = std::filesystem;

constexpr int toutLeTemps = 300'000;  // milliseconds, for a machine that is busy with other tests

QString VersTexte(const fs::path& chemin) {
  return QString::fromStdString(chemin.string());
}

/// What an earlier run of the program has left in the folder that the build fills.
bool EstDUnUsage(const fs::path& nom) {
  return nom.extension() == ".DAT" || nom.extension() == ".txt" || nom.extension() == ".doc" ||
         nom == "SAUVE";
}

}  // namespace

Issue Execute(const QString& commande, const QStringList& arguments, const QStringList& variables) {
  QProcess processus;
  QProcessEnvironment environnement = QProcessEnvironment::systemEnvironment();
  for (const QString& variable : variables) {
    environnement.insert(variable.section(u'=', 0, 0), variable.section(u'=', 1));
  }
  processus.setProcessEnvironment(environnement);
  processus.setProcessChannelMode(QProcess::MergedChannels);
  processus.start(commande, arguments);
  const bool finie =
      processus.waitForFinished(toutLeTemps) && processus.exitStatus() == QProcess::NormalExit;
  return {finie ? processus.exitCode() : -1, processus.readAll().toStdString()};
}

DossierPromene::DossierPromene(const std::string& nom) : dossier(nom) {
  for (const fs::directory_entry& entree : fs::directory_iterator(DOSSIER_PROGRAMME)) {
    const fs::path sien = entree.path().filename();
    if (!EstDUnUsage(sien)) {
      fs::copy(entree.path(), dossier.chemin() / sien, fs::copy_options::recursive);
    }
  }
}

Issue DossierPromene::Promene(int patience) const {
  const QString usager = VersTexte(usager_.chemin());
  return Execute(
      VersTexte(dossier.chemin() / "gastrelle"), {},
      {"QT_QPA_PLATFORM=offscreen", QStringLiteral("QT_PLUGIN_PATH=") + GREFFONS_PROMENADE,
       "QT_QPA_GENERIC_PLUGINS=promenade", "PROMENADE_JOURNAL=" + usager + "/journal",
       "PROMENADE_PATIENCE=" + QString::number(patience), "PROMENADE_IMPRIME=1", "HOME=" + usager,
       "XDG_CONFIG_HOME=" + usager, "XDG_DATA_HOME=" + usager, "XDG_DATA_DIRS=" + usager,
       "CUPS_SERVER=" + usager + "/aucun",
       // The toolkit's own libraries keep memory until the end.
       "ASAN_OPTIONS=detect_leaks=0"});
}

QStringList DossierPromene::Journal() const {
  return QString::fromStdString(usager_.Lit("journal")).split(u'\n', Qt::SkipEmptyParts);
}

Issue Compare(const DossierEssai& un, const DossierEssai& autre, const QStringList& options) {
  return Execute(COMPARE, options + QStringList{VersTexte(un.chemin()), VersTexte(autre.chemin())});
}

}  // namespace gastrelle::essai
