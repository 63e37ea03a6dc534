#include "controles/Etiquette.h"

#include <algorithm>

#include <QHelpEvent>
#include <QPainter>
#include <QStyle>
#include <QToolTip>

namespace gastrelle {

Etiquette::Etiquette(const QString& texte, QWidget* parent) : QLabel(texte, parent) {
  setTextFormat(Qt::PlainText);
  setIndent(0);
}

QRect Etiquette::PlaceTexte() const {
  return contentsRect().adjusted(margin(), margin(), -margin(), -margin());
}

bool Etiquette::EstAbregee() const {
  return fontMetrics().size(Qt::TextSingleLine | Marques(), text()).width() > PlaceTexte().width();
}

QSize Etiquette::minimumSizeHint() const {
  constexpr int lettresAuMoins = 8;
  const QSize naturelle = QLabel::minimumSizeHint();
  const int assez = lettresAuMoins * fontMetrics().averageCharWidth();
  return {std::min(naturelle.width(), assez), naturelle.height()};
}

bool Etiquette::event(QEvent* evenement) {
  if (evenement->type() != QEvent::ToolTip || !toolTip().isEmpty() || !EstAbregee()) {
    return QLabel::event(evenement);
  }
  QString entier = text();
  if (buddy() != nullptr) {
    entier.remove(u'&');
  }
  QToolTip::showText(static_cast<QHelpEvent*>(evenement)->globalPos(), entier, this);
  return true;
}

void Etiquette::paintEvent(QPaintEvent* evenement) {
  if (!EstAbregee() || hasSelectedText()) {
    QLabel::paintEvent(evenement);
    return;
  }
  QPainter peintre(this);
  drawFrame(&peintre);
  const QRect place = PlaceTexte();
  const QString abrege = fontMetrics().elidedText(text(), Qt::ElideRight, place.width(), Marques());
  style()->drawItemText(&peintre, place, static_cast<int>(alignment()) | Marques(), palette(),
                        isEnabled(), abrege, foregroundRole());
}

}  // namespace gastrelle
