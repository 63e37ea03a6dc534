#include "controles/LecteurImage.h"

#include <QFileInfo>

namespace gastrelle {

LecteurImage::LecteurImage(const QString& fichier)
    : ordinaire_(QFileInfo(fichier).isFile()), fichier_(fichier) {
  if (ordinaire_) {
    // A file, not a name: the reader would also try a name with other endings behind it.
    lecteur_.setDevice(&fichier_);
    lecteur_.setDecideFormatFromContent(true);
    lecteur_.setAutoTransform(true);
  }
}

QSize LecteurImage::Redresse(const QSize& taille) const {
  const bool couchee = lecteur_.transformation().testFlag(QImageIOHandler::TransformationRotate90);
  return couchee ? taille.transposed() : taille;
}

QSize LecteurImage::taille() const {
  return ordinaire_ ? Redresse(lecteur_.size()) : QSize();
}

void LecteurImage::Met(const QSize& taille) {
  lecteur_.setScaledSize(Redresse(taille));
}

QImage LecteurImage::Lit() {
  return ordinaire_ ? lecteur_.read() : QImage();
}

}  // namespace gastrelle
