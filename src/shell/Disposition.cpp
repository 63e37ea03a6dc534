#include "shell/Disposition.h"

#include <QMdiSubWindow>
#include <QStyle>
#include <QStyleOptionTitleBar>

namespace gastrelle {
namespace {

QList<QMdiSubWindow*> Visibles(const QMdiArea& enfants, bool reduites,
                               QMdiArea::WindowOrder ordre = QMdiArea::CreationOrder) {
  QList<QMdiSubWindow*> fenetres;
  for (QMdiSubWindow* fenetre : enfants.subWindowList(ordre)) {
    if (fenetre->isVisible() && fenetre->isMinimized() == reduites) {
      fenetres << fenetre;
    }
  }
  return fenetres;
}

void Aligne(const QMdiArea& enfants, Qt::Orientation sens) {
  const QList<QMdiSubWindow*> fenetres = Visibles(enfants, false);
  const QSize place = enfants.maximumViewportSize();  // scroll bars go with what lay outside
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

/// How far a window of the cascade leaves the title of the one behind it in sight.
int Pas(const QMdiSubWindow& fenetre) {
  QStyleOptionTitleBar titre;
  titre.initFrom(&fenetre);
  const QStyle& style = *fenetre.style();
  return style.pixelMetric(QStyle::PM_TitleBarHeight, &titre, &fenetre) +
         style.pixelMetric(QStyle::PM_MdiSubWindowFrameWidth, nullptr, &fenetre);
}

void EnCascade(const QMdiArea& enfants) {
  const QList<QMdiSubWindow*> fenetres = Visibles(enfants, false, QMdiArea::StackingOrder);
  if (fenetres.isEmpty()) {
    return;
  }
  const QSize place = enfants.maximumViewportSize();
  const int pas = Pas(*fenetres.first());
  const int decalage = pas * (static_cast<int>(fenetres.size()) - 1);
  const QSize taille =
      (place * 3 / 4).boundedTo(place - QSize(decalage, decalage)).expandedTo({pas, pas});
  QPoint coin;
  for (QMdiSubWindow* fenetre : fenetres) {
    fenetre->showNormal();
    fenetre->setGeometry({coin, taille});
    fenetre->raise();
    coin += {pas, pas};
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
      EnCascade(enfants);
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
