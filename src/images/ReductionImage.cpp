#include "images/ReductionImage.h"

#include <algorithm>
#include <utility>

#include <QPainter>

namespace gastrelle {
namespace {

/// Pixels that are converted and made smaller at a time.
constexpr qint64 pointsDUneBande = 1'000'000;

/// The ends of the stripes, as near to each other's shares as whole rows allow.
int Part(int numero, int nombre, int hauteur) {
  return static_cast<int>(qint64{numero} * hauteur / nombre);
}

QImage ReduitParBandes(const QImage& image, const QSize& taille) {
  const auto rangees =
      static_cast<int>(std::clamp<qint64>(pointsDUneBande / image.width(), 1, image.height()));
  const int bandes = (image.height() + rangees - 1) / rangees;
  const QImage::Format format =
      image.hasAlphaChannel() ? QImage::Format_ARGB32_Premultiplied : QImage::Format_RGB32;
  const int hauteur = std::max(std::min(taille.height(), image.height()), bandes);
  QImage reduite(taille.width(), hauteur, format);
  QPainter peintre(&reduite);
  peintre.setCompositionMode(QPainter::CompositionMode_Source);
  for (int i = 0; i < bandes; ++i) {
    const int haut = Part(i, bandes, image.height());
    const int hautReduit = Part(i, bandes, hauteur);
    const QImage bande =
        image.copy(0, haut, image.width(), Part(i + 1, bandes, image.height()) - haut)
            .convertToFormat(format);
    peintre.drawImage(0, hautReduit,
                      bande.scaled(taille.width(), Part(i + 1, bandes, hauteur) - hautReduit,
                                   Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
  }
  return reduite;
}

}  // namespace

QImage Reduit(QImage image, const QSize& taille) {
  if (image.isNull() || image.size() == taille) {
    return image;
  }
  QImage reduite = ReduitParBandes(image, taille);
  image = {};  // before the next one is made
  return reduite.size() == taille
             ? reduite
             : reduite.scaled(taille, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}

}  // namespace gastrelle
