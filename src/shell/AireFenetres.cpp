#include "shell/AireFenetres.h"

#include <algorithm>

#include <QMdiSubWindow>
#include <QPaintEvent>
#include <QPainter>

#include "controles/Icones.h"

namespace gastrelle {

AireFenetres::AireFenetres(QWidget* parent) : QMdiArea(parent) {
  // The last one to go uncovers no more than its own place.
  connect(this, &QMdiArea::subWindowActivated, viewport(), qOverload<>(&QWidget::update));
}

void AireFenetres::showEvent(QShowEvent* evenement) {
  QMdiArea::showEvent(evenement);
  // Earlier, bars that nothing needs would come and go, and each page be laid out three times.
  setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
  setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
}

bool AireFenetres::EstVide() const {
  const QList<QMdiSubWindow*> fenetres = subWindowList();
  return std::none_of(fenetres.begin(), fenetres.end(),
                      [](const QMdiSubWindow* fenetre) { return fenetre->isVisible(); });
}

void AireFenetres::paintEvent(QPaintEvent* evenement) {
  constexpr int centiemesPlusSombre = 110;
  QPainter peintre(viewport());
  peintre.fillRect(evenement->rect(),
                   palette().color(QPalette::Window).darker(centiemesPlusSombre));
  if (EstVide()) {
    QRect place(0, 0, plusGrandeIcone, plusGrandeIcone);
    place.moveCenter(viewport()->rect().center());
    IconeDe(QStringLiteral("gastrelle")).paint(&peintre, place);
  }
}

}  // namespace gastrelle
