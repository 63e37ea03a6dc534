#include "controles/Reglages.h"

#include <QDir>
#include <QFileInfo>
#include <QLockFile>

#include "controles/Conversion.h"
#include "data/Messages.h"

namespace gastrelle {
namespace {

constexpr qint64 octetsAuPlus = 1'000'000;

/// Where the toolkit keeps the settings of a user.
QString CheminReglages() {
  const QString dossier = qEnvironmentVariable("XDG_CONFIG_HOME", QStringLiteral(".config"));
  return QDir(QDir::homePath())
      .absoluteFilePath((dossier.isEmpty() ? QStringLiteral(".config") : dossier) + u'/' +
                        VersQt(titreApplication) + QStringLiteral(".conf"));
}

/// A small file, or none yet.
bool SOuvre(const QFileInfo& place) {
  return place.exists() ? place.isFile() && place.size() <= octetsAuPlus : !place.isSymLink();
}

/// The toolkit locks the settings with a file beside them while it writes, and waits for that of
/// another program as long as it is there.
QString CheminVerrou() {
  return CheminReglages() + QStringLiteral(".lock");
}

bool Utilisables() {
  return SOuvre(QFileInfo(CheminReglages())) && SOuvre(QFileInfo(CheminVerrou()));
}

/// Another program may be writing: that takes it a moment.
bool VerrouLibre() {
  constexpr int unMoment = 100;  // milliseconds
  return !QFileInfo::exists(CheminVerrou()) || QLockFile(CheminVerrou()).tryLock(unMoment);
}

}  // namespace

Reglages::Reglages() {
  if (Utilisables()) {
    magasin_.emplace(QSettings::UserScope, VersQt(titreApplication));
  }
}

QString Reglages::Texte(const QString& cle) const {
  return magasin_ ? magasin_->value(cle).toString() : QString();
}

bool Reglages::SEcrit() {
  if (!libre_) {
    libre_ = magasin_ && VerrouLibre();
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

}  // namespace gastrelle
