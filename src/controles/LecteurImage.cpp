#include "controles/LecteurImage.h"

#include <QFile>
#include <QFileInfo>
#include <QImageReader>

namespace gastrelle {

QImage LitImageReduite(const QString& fichier, const QSize& auPlus) {
  if (!QFileInfo(fichier).isFile()) {
    return {};
  }
  // A file, not a name: the reader would also try a name with other endings behind it.
  QFile ouvert(fichier);
  QImageReader lecteur(&ouvert);
  lecteur.setDecideFormatFromContent(true);
  lecteur.setAutoTransform(true);
  const bool couchee = lecteur.transformation().testFlag(QImageIOHandler::TransformationRotate90);
  const QSize taille = lecteur.size();
  const QSize place = couchee ? auPlus.transposed() : auPlus;
  if (taille.isValid() && (taille.width() > place.width() || taille.height() > place.height())) {
    lecteur.setScaledSize(taille.scaled(place, Qt::KeepAspectRatio));
  }
  return lecteur.read();
}

}  // namespace gastrelle
