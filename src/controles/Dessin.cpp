#include "controles/Dessin.h"

#include <QPainter>
#include <QStyle>

#include "controles/Icones.h"

namespace gastrelle {

Dessin::Dessin(const QString& nom, const QString& dessin, int cote, QWidget* parent)
    : QLabel(parent) {
  setObjectName(nom);
  setPixmap(IconeDe(dessin).pixmap(cote, cote));
  setAlignment(Qt::AlignCenter);
}

QSize Dessin::minimumSizeHint() const {
  constexpr int encoreReconnaissable = 64;
  return {encoreReconnaissable, encoreReconnaissable};
}

void Dessin::paintEvent(QPaintEvent* /*evenement*/) {
  const QPixmap image = pixmap();
  QSize taille = image.deviceIndependentSize().toSize();
  if (taille.width() > width() || taille.height() > height()) {
    taille.scale(size(), Qt::KeepAspectRatio);
  }
  QPainter peintre(this);
  peintre.setRenderHint(QPainter::SmoothPixmapTransform);
  peintre.drawPixmap(QStyle::alignedRect(layoutDirection(), alignment(), taille, rect()), image);
}

}  // namespace gastrelle
