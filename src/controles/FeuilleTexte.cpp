#include "controles/FeuilleTexte.h"

#include <algorithm>

#include <QScrollBar>
#include <QWheelEvent>

#include "controles/TailleLecture.h"

namespace gastrelle {
namespace {

constexpr int marge = 14;

/// The width of a line of 95 letters, as they come in French.
int LargeurColonne(const QFontMetrics& metrique) {
  constexpr int lettresParLigne = 95;
  const QString phrase = QStringLiteral("Couper la viande en cubes et laisser reposer au frais");
  const auto lettres = static_cast<int>(phrase.size());
  return metrique.horizontalAdvance(phrase) * lettresParLigne / lettres;
}

}  // namespace

FeuilleTexte::FeuilleTexte(const QString& nom, int limite, QWidget* parent)
    : ZoneTexte(nom, limite, parent), surligneur_(new Surligneur(*document())) {
  document()->setDocumentMargin(marge);
  setBackgroundRole(QPalette::Base);
  setAutoFillBackground(true);
  PrendTaille();
}

void FeuilleTexte::PrendTaille() {
  QFont police = font();
  police.setPointSizeF(TailleLecture());
  setFont(police);
}

void FeuilleTexte::RegleColonne() {
  const int place = contentsRect().width() - verticalScrollBar()->sizeHint().width();
  const int trop = std::max(0, place - LargeurColonne(fontMetrics()) - 2 * marge);
  if (trop != viewportMargins().right()) {
    setViewportMargins(0, 0, trop, 0);
  }
}

bool FeuilleTexte::SurLaMarge(const QEvent& evenement) {
  const auto dehors = [&] {
    const auto& pointe = static_cast<const QSinglePointEvent&>(evenement);
    return !viewport()->geometry().contains(pointe.position().toPoint());
  };
  switch (evenement.type()) {
    case QEvent::Wheel:
      return dehors();
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
      return pressee_ = dehors();
    case QEvent::MouseMove:
    case QEvent::MouseButtonRelease:
      return pressee_;
    default:
      return false;
  }
}

bool FeuilleTexte::event(QEvent* evenement) {
  if (evenement->type() == TailleChangee()) {
    PrendTaille();
  }
  if (const auto* menu = dynamic_cast<QContextMenuEvent*>(evenement);
      menu != nullptr && !viewport()->geometry().contains(menu->pos())) {
    return viewportEvent(evenement);
  }
  if (evenement->type() == QEvent::Resize) {
    RegleColonne();  // ahead of the text, which is then laid out once
  }
  return SurLaMarge(*evenement) ? viewportEvent(evenement) : ZoneTexte::event(evenement);
}

void FeuilleTexte::changeEvent(QEvent* evenement) {
  ZoneTexte::changeEvent(evenement);
  if (evenement->type() == QEvent::FontChange || evenement->type() == QEvent::PaletteChange) {
    surligneur_->Repeint(font(), palette());
  }
  if (evenement->type() == QEvent::FontChange || evenement->type() == QEvent::StyleChange) {
    RegleColonne();
  }
}

void FeuilleTexte::wheelEvent(QWheelEvent* evenement) {
  if (!evenement->modifiers().testFlag(Qt::ControlModifier)) {
    ZoneTexte::wheelEvent(evenement);
    return;
  }
  molette_ += evenement->angleDelta().y();
  if (const int crans = molette_ / QWheelEvent::DefaultDeltasPerStep; crans != 0) {
    molette_ -= crans * QWheelEvent::DefaultDeltasPerStep;
    AgranditLecture(crans);
  }
  evenement->accept();
}

}  // namespace gastrelle
