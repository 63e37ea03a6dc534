#include "controles/Reglages.h"

#include <QDir>
#include <QFileInfo>
#include <QLockFile>

#include "controles/Conversion.h"
#include "data/Chemins.h"
#include "data/Messages.h"

namespace gastrelle {
namespace {

constexpr qint64 octetsAuPlus = 1'000'000;

/// Where the toolkit keeps the settings of a user.
QString DossierReglages() {
  const QString dossier = qEnvironmentVariable("XDG_CONFIG_HOME", QStringLiteral(".config"));
  return QDir(QDir::homePath())
      .absoluteFilePath(dossier.isEmpty() ? QStringLiteral(".config") : dossier);
}

/// The file that bears the name of a program.
QString FichierDe(const QString& programme) {
  return DossierReglages() + u'/' + programme + QStringLiteral(".conf");
}

/// A small file, or none yet.
bool SOuvre(const QFileInfo& place) {
  return place.exists() ? place.isFile() && place.size() <= octetsAuPlus : !place.isSymLink();
}

/// The toolkit locks the settings with a file beside them while it writes, and waits for that of
/// another program as long as it is there.
QString Verrou(const QString& chemin) {
  return chemin + QStringLiteral(".lock");
}

bool Utilisables(const QString& chemin) {
  if constexpr (conventionDuSysteme == Convention::windows) {
    return true;  // the settings are no file
  }
  return SOuvre(QFileInfo(chemin)) && SOuvre(QFileInfo(Verrou(chemin)));
}

/// Another program may be writing: that takes it a moment.
bool VerrouLibre(const QString& chemin) {
  if constexpr (conventionDuSysteme == Convention::windows) {
    return true;
  }
  constexpr int unMoment = 100;  // milliseconds
  return !QFileInfo::exists(Verrou(chemin)) || QLockFile(Verrou(chemin)).tryLock(unMoment);
}

QString CheminDuProgramme() {
  return FichierDe(VersQt(titreApplication));
}

}  // namespace

Reglages::Reglages() {
  if (Utilisables(CheminDuProgramme())) {
    magasin_.emplace(QSettings::UserScope, VersQt(titreApplication));
  }
}

QString Reglages::Texte(const QString& cle) const {
  return magasin_ ? magasin_->value(cle).toString() : QString();
}

bool Reglages::SEcrit() {
  if (!libre_) {
    libre_ = magasin_ && VerrouLibre(CheminDuProgramme());
  }
  return *libre_;
}

void Reglages::Ecrit(const QString& cle, const QString& texte) {
  if (SEcrit()) {
    magasin_->setValue(cle, texte);
  }
}

void Reglages::Oublie(const QString& cle) {
  if (SEcrit()) {
    magasin_->remove(cle);
  }
}

ReglagesDesDialogues::ReglagesDesDialogues() {
  const QString chemin = FichierDe(QStringLiteral("QtProject"));
  ecartes_ = !Utilisables(chemin) || !VerrouLibre(chemin);
  if (ecartes_) {
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, QStringLiteral("/dev/null"));
  }
}

ReglagesDesDialogues::~ReglagesDesDialogues() {
  if (ecartes_) {
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, DossierReglages());
  }
}

}  // namespace gastrelle
