#include "controles/Reglages.h"

#include <QDir>
#include <QFileInfo>

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

/// The toolkit locks the settings with a file beside them while it writes.
bool Utilisables() {
  const QString chemin = CheminReglages();
  return SOuvre(QFileInfo(chemin)) && SOuvre(QFileInfo(chemin + QStringLiteral(".lock")));
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

void Reglages::Ecrit(const QString& cle, const QString& texte) {
  if (magasin_) {
    magasin_->setValue(cle, texte);
  }
}

void Reglages::Oublie(const QString& cle) {
  if (magasin_) {
    magasin_->remove(cle);
  }
}

}  // namespace gastrelle
