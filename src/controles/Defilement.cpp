#include "controles/Defilement.h"

#include <QApplication>
#include <QKeyEvent>
#include <QScrollBar>
#include <QWheelEvent>

namespace gastrelle {
namespace {

bool Defile(const QWidget* controle) {
  const auto* zone = qobject_cast<const QAbstractScrollArea*>(controle);
  return zone != nullptr &&
         zone->verticalScrollBar()->maximum() > zone->verticalScrollBar()->minimum();
}

}  // namespace

Defilement::Defilement(QWidget* page, QWidget* parent) : QScrollArea(parent) {
  setFrameShape(QFrame::NoFrame);
  setFocusPolicy(Qt::NoFocus);
  setWidgetResizable(true);
  setWidget(page);
  connect(qApp, &QApplication::focusChanged, this,
          [this](const QWidget* quitte, const QWidget* recoit) { SuitFocus(quitte, recoit); });
}

Defilement::~Defilement() {
  // On its way out the page takes the focus along, which no one has to follow any more.
  disconnect(qApp, nullptr, this, nullptr);
}

bool Defilement::eventFilter(QObject* objet, QEvent* evenement) {
  if (objet == widget() && evenement->type() == QEvent::LayoutRequest && surTaille) {
    surTaille(size());
  }
  return QScrollArea::eventFilter(objet, evenement);
}

void Defilement::resizeEvent(QResizeEvent* evenement) {
  if (surTaille) {
    surTaille(size());
  }
  QScrollArea::resizeEvent(evenement);
}

void Defilement::wheelEvent(QWheelEvent* evenement) {
  const QPoint ou = widget()->mapFrom(viewport(), evenement->position().toPoint());
  for (const QWidget* sous = widget()->childAt(ou); sous != nullptr && sous != widget();
       sous = sous->parentWidget()) {
    if (Defile(sous)) {
      evenement->accept();  // it is at its end
      return;
    }
  }
  QScrollArea::wheelEvent(evenement);
}

void Defilement::keyPressEvent(QKeyEvent* touche) {
  if (Defile(this) && touche->modifiers() == Qt::NoModifier) {
    QScrollArea::keyPressEvent(touche);
  } else {
    touche->ignore();
  }
}

bool Defilement::focusNextPrevChild(bool suivant) {
  // The toolkit would bring the line of the cursor into sight, and the rest of its box out of it.
  return QWidget::focusNextPrevChild(suivant);  // NOLINT(bugprone-parent-virtual-call)
}

void Defilement::SuitFocus(const QWidget* quitte, const QWidget* recoit) {
  // A window that comes back to the front shows what it showed.
  if (quitte == nullptr || recoit == nullptr || !widget()->isAncestorOf(recoit) ||
      QGuiApplication::mouseButtons() != Qt::NoButton) {
    return;
  }
  const QRect place(recoit->mapTo(widget(), QPoint()), recoit->size());
  ensureVisible(place.center().x(), place.center().y(), place.width() / 2 + 1,
                place.height() / 2 + 1);
}

}  // namespace gastrelle
