#include "shell/Disposition.h"

#include <QMdiSubWindow>

namespace gastrelle {
namespace {

QList<QMdiSubWindow*> Visibles(const QMdiArea& enfants, bool reduites) {
  QList<QMdiSubWindow*> fenetres;
  for (QMdiSubWindow* fenetre : enfants.subWindowList()) {
    if (fenetre->isVisible() && fenetre->isMinimized() == reduites) {
      fenetres << fenetre;
    }
  }
  return fenetres;
}

void Aligne(const QMdiArea& enfants, Qt::Orientation sens) {
  const QList<QMdiSubWindow*> fenetres = Visibles(enfants, false);
  const QRect place = enfants.viewport()->rect();
  const auto nombre = static_cast<int>(fenetres.size());
  for (int i = 0; i < nombre; ++i) {
    QMdiSubWindow* fenetre = fenetres[i];
    fenetre->showNormal();
    if (sens == Qt::Vertical) {
      const int haut = place.height() * i / nombre;
      fenetre->setGeometry(0, haut, place.width(), place.height() * (i + 1) / nombre - haut);
    } else {
      const int gauche = place.width() * i / nombre;
      fenetre->setGeometry(gauche, 0, place.width() * (i + 1) / nombre - gauche, place.height());
    }
  }
}

void RangeIcones(const QMdiArea& enfants) {
  const QRect place = enfants.viewport()->rect();
  int gauche = 0;
  int bas = place.height();
  for (QMdiSubWindow* fenetre : Visibles(enfants, true)) {
    if (gauche > 0 && gauche + fenetre->width() > place.width()) {
      gauche = 0;
      bas -= fenetre->height();
    }
    fenetre->move(gauche, bas - fenetre->height());
    gauche += fenetre->width();
  }
}

}  // namespace

void Dispose(QMdiArea& enfants, Disposition disposition) {
  switch (disposition) {
    case Disposition::cascade:
      enfants.cascadeSubWindows();
      return;
    case Disposition::mosaiqueHorizontale:
      Aligne(enfants, Qt::Vertical);
      return;
    case Disposition::mosaiqueVerticale:
      Aligne(enfants, Qt::Horizontal);
      return;
    case Disposition::icones:
      RangeIcones(enfants);
      return;
  }
}

}  // namespace gastrelle
