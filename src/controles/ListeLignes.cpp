#include "controles/ListeLignes.h"

#include <utility>

#include <QHeaderView>
#include <QHelpEvent>
#include <QToolTip>

#include "controles/Conversion.h"

namespace gastrelle {

int ListeLignes::Modele::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : lignes.nombre;
}

QVariant ListeLignes::Modele::data(const QModelIndex& index, int role) const {
  const bool lue = role == Qt::DisplayRole && index.isValid() && index.row() < lignes.nombre;
  return lue ? QVariant(VersQt(lignes.ligne(index.row()))) : QVariant();
}

void ListeLignes::Modele::Remplace(Lignes nouvelles) {
  beginResetModel();
  lignes = std::move(nouvelles);
  endResetModel();
}

// The toolkit's list lays out every row; its table, only those that are seen.
ListeLignes::ListeLignes(const QString& nom, QWidget* parent) : QTableView(parent) {
  setObjectName(nom);
  setModel(&modele_);
  setShowGrid(false);
  setWordWrap(false);
  setTabKeyNavigation(false);
  setSelectionMode(SingleSelection);
  setEditTriggers(NoEditTriggers);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  setCornerButtonEnabled(false);
  horizontalHeader()->hide();
  horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
  verticalHeader()->hide();
  verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
  RegleHauteur();
}

void ListeLignes::RegleHauteur() {
  constexpr int air = 2;
  const int hauteur = fontMetrics().height() + air;
  verticalHeader()->setMinimumSectionSize(hauteur);
  verticalHeader()->setDefaultSectionSize(hauteur);
}

void ListeLignes::changeEvent(QEvent* evenement) {
  QTableView::changeEvent(evenement);
  if (evenement->type() == QEvent::FontChange) {
    RegleHauteur();
  }
}

void ListeLignes::Remplace(Lignes lignes) {
  modele_.Remplace(std::move(lignes));
}

void ListeLignes::Choisit(int indice) {
  if (indice >= 0 && indice < modele_.lignes.nombre) {
    setCurrentIndex(modele_.index(indice));
  }
}

QModelIndex ListeLignes::moveCursor(CursorAction geste, Qt::KeyboardModifiers touches) {
  // There is one column only: its ends are those of the list.
  const bool bout = geste == MoveHome || geste == MoveEnd;
  return QTableView::moveCursor(geste, bout ? touches | Qt::ControlModifier : touches);
}

QString ListeLignes::LigneAbregee(const QPoint& ou) const {
  const QModelIndex index = indexAt(ou);
  const bool abregee = index.isValid() && sizeHintForIndex(index).width() > columnWidth(0);
  return abregee ? index.data().toString() : QString();
}

bool ListeLignes::viewportEvent(QEvent* evenement) {
  if (evenement->type() == QEvent::ToolTip && toolTip().isEmpty()) {
    const auto& aide = static_cast<const QHelpEvent&>(*evenement);
    QToolTip::showText(aide.globalPos(), LigneAbregee(aide.pos()), viewport());
    return true;
  }
  return QTableView::viewportEvent(evenement);
}

}  // namespace gastrelle
