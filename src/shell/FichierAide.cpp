#include "shell/FichierAide.h"

#include <algorithm>

#include <QCryptographicHash>
#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>
#include <QResource>
#include <QSet>

#include "plateforme/ErreurExecution.h"
#include "plateforme/FichierOrdinaire.h"
#include "shell/ArbreAide.h"

namespace gastrelle {
namespace {

const QString racine = QStringLiteral("/gastrelle-aide");

/// The build puts the hexadecimal SHA-256 of all other bytes at the end of the file.
constexpr qsizetype longueurSceau = 64;

/// A larger file isn't even read.
constexpr qint64 octetsAuPlus = 64LL * 1024 * 1024;

/// A view of bytes that stay where they are.
QByteArray Vue(const QByteArray& octets, qsizetype longueur) {
  return QByteArray::fromRawData(octets.constData(), longueur);
}

bool SceauJuste(const QByteArray& octets) {
  if (octets.size() <= longueurSceau) {
    return false;
  }
  const QByteArray scelles = Vue(octets, octets.size() - longueurSceau);
  return QCryptographicHash::hash(scelles, QCryptographicHash::Sha256).toHex() ==
         octets.last(longueurSceau);
}

QString Fichier(const QString& sujet) {
  return racine + u'/' + sujet + QStringLiteral(".html");
}

QByteArray LitRessource(const QString& nom) {
  QFile fichier(u':' + nom);
  return fichier.open(QIODevice::ReadOnly) ? fichier.readAll() : QByteArray();
}

}  // namespace

std::unique_ptr<FichierAide> FichierAide::Ouvre(const QString& chemin) {
  if (!QFileInfo(chemin).isFile()) {
    throw ErreurExecution(Panne::fichierIntrouvable);
  }
  QFile fichier;
  const int numero = OuvreFichierOrdinaire(chemin.toStdU16String());
  if (numero < 0 || !fichier.open(numero, QIODevice::ReadOnly, QFileDevice::AutoCloseHandle)) {
    throw ErreurExecution(Panne::accesFichier);
  }
  if (fichier.size() > octetsAuPlus) {
    return nullptr;
  }
  std::unique_ptr<FichierAide> aide(new FichierAide(fichier.read(octetsAuPlus)));
  return aide->Inscrit() && aide->LitSommaire() ? std::move(aide) : nullptr;
}

FichierAide::FichierAide(QByteArray octets) : octets_(std::move(octets)) {}

FichierAide::~FichierAide() {
  if (inscrit_) {
    QResource::unregisterResource(reinterpret_cast<const uchar*>(octets_.constData()), racine);
  }
}

bool FichierAide::Inscrit() {
  // The toolkit trusts a resource's own offsets: only a file whose every byte is right gets there.
  inscrit_ =
      SceauJuste(octets_) && ArbreSain(Vue(octets_, octets_.size() - longueurSceau)) &&
      QResource::registerResource(reinterpret_cast<const uchar*>(octets_.constData()), racine);
  return inscrit_;
}

bool FichierAide::LitSommaire() {
  const auto chapitres =
      QJsonDocument::fromJson(LitRessource(racine + QStringLiteral("/sommaire.json"))).array();
  for (const auto& chapitre : chapitres) {
    const QJsonObject objet = chapitre.toObject();
    ChapitreAide& nouveau = sommaire_.emplace_back();
    nouveau.titre = objet[u"titre"].toString();
    for (const auto& page : objet[u"pages"].toArray()) {
      nouveau.pages.push_back(
          {page.toObject()[u"sujet"].toString(), page.toObject()[u"titre"].toString()});
    }
  }
  QSet<QString> sujets;  // a page stands there once
  return !sommaire_.empty() &&
         std::all_of(sommaire_.begin(), sommaire_.end(), [&](const ChapitreAide& chapitre) {
           return !chapitre.pages.empty() &&
                  std::all_of(chapitre.pages.begin(), chapitre.pages.end(),
                              [&](const PageAide& page) {
                                const bool premiere = !sujets.contains(page.sujet);
                                sujets.insert(page.sujet);
                                return premiere && !Html(page.sujet).isEmpty();
                              });
         });
}

bool FichierAide::Contient(const QString& sujet) const {
  return std::any_of(sommaire_.begin(), sommaire_.end(), [&](const ChapitreAide& chapitre) {
    return std::any_of(chapitre.pages.begin(), chapitre.pages.end(),
                       [&](const PageAide& page) { return page.sujet == sujet; });
  });
}

bool FichierAide::EstDedans(const QUrl& adresse) {
  return adresse.scheme() == QLatin1String("qrc") && adresse.path().startsWith(racine + u'/');
}

QUrl FichierAide::Adresse(const QString& sujet) {
  return QUrl(QStringLiteral("qrc:") + Fichier(sujet));
}

QString FichierAide::Sujet(const QUrl& adresse) {
  return QFileInfo(adresse.path()).completeBaseName();
}

QStringList FichierAide::Ancres(const QString& sujet) {
  static const QRegularExpression ancre(QStringLiteral("<a name=\"([^\"]+)\""));
  const QString html = Html(sujet);
  QStringList noms;
  for (auto trouvees = ancre.globalMatch(html); trouvees.hasNext();) {
    noms << trouvees.next().captured(1);
  }
  return noms;
}

bool FichierAide::ContientAncre(const QString& sujet, const QString& ancre) {
  return Ancres(sujet).contains(ancre);
}

QString FichierAide::Html(const QString& sujet) {
  return QString::fromUtf8(LitRessource(Fichier(sujet)));
}

}  // namespace gastrelle
