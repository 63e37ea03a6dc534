#include "vins/frmMillesimeGrille.h"

#include <algorithm>
#include <string>
#include <utility>

#include <QEvent>
#include <QHeaderView>
#include <QScrollBar>
#include <QStyledItemDelegate>

#include "controles/Conversion.h"
#include "vins/CatalogueMillesimes.h"

namespace gastrelle {
namespace {

constexpr int colonneAnnee = 0;
constexpr int premierDegre = 1;
constexpr int dernierDegre = ModeleMillesimes::colonnes - 1;
// In pixels, on both sides of a text together.
constexpr int airRangee = 6;
constexpr int airEntete = 6;

constexpr int twipsParPixel = 15;
constexpr int largeurAnnee = 600;   ///< in twips
constexpr int largeurDegre = 1300;  ///< in twips

/// Draws the year as a heading of its row; a cell alone is never framed, since the row is chosen.
class Dessinateur final : public QStyledItemDelegate {
 public:
  using QStyledItemDelegate::QStyledItemDelegate;

 protected:
  void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override {
    QStyledItemDelegate::initStyleOption(option, index);
    option->state &= ~QStyle::State_HasFocus;
    if (index.column() == colonneAnnee) {
      option->state &= ~QStyle::State_Selected;
      option->backgroundBrush = option->palette.button();
      option->palette.setColor(QPalette::Text, option->palette.color(QPalette::ButtonText));
    }
  }
};

/// Headings that end in "…" where their column is too narrow.
class LigneEntetes final : public QHeaderView {
 public:
  explicit LigneEntetes(QWidget* parent) : QHeaderView(Qt::Horizontal, parent) {
    setSectionResizeMode(QHeaderView::Fixed);
    setMinimumSectionSize(0);
  }

 protected:
  void initStyleOptionForIndex(QStyleOptionHeader* option, int colonne) const override {
    QHeaderView::initStyleOptionForIndex(option, colonne);
    option->text =
        fontMetrics().elidedText(option->text, Qt::ElideRight, sectionSize(colonne) - airEntete);
  }
};

QString Entete(int colonne) {
  return colonne == colonneAnnee ? QStringLiteral("Année")
                                 : VersQt(degres[static_cast<std::size_t>(colonne)].entete);
}

QFont Gras() {
  QFont police;
  police.setBold(true);
  return police;
}

}  // namespace

void ModeleMillesimes::Pose(const QString& cru, std::vector<std::int16_t> degresLus) {
  beginResetModel();
  cru_ = cru;
  degres_ = std::move(degresLus);
  endResetModel();
}

int ModeleMillesimes::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(degres_.size());
}

int ModeleMillesimes::columnCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : colonnes;
}

QVariant ModeleMillesimes::data(const QModelIndex& index, int role) const {
  if (!index.isValid() || index.row() >= rowCount()) {
    return {};
  }
  const std::int16_t degre = degres_[static_cast<std::size_t>(index.row())];
  const int annee = Annee(index.row() + 1);
  const bool marquee = index.column() != colonneAnnee && index.column() == degre;
  switch (role) {
    case Qt::DisplayRole:
      return index.column() == colonneAnnee ? QString::number(annee)
                                            : QString(marquee ? QStringLiteral("x") : QString());
    case Qt::FontRole:
      return marquee ? Gras() : QVariant();
    case Qt::TextAlignmentRole:
      return static_cast<int>(Qt::AlignCenter);
    case Qt::AccessibleTextRole:
      return QStringLiteral("%1, %2 : %3")
          .arg(annee)
          .arg(cru_, VersQt(degres[static_cast<std::size_t>(degre)].entete));
    default:
      return {};
  }
}

QVariant ModeleMillesimes::headerData(int colonne, Qt::Orientation sens, int role) const {
  const bool texte = role == Qt::DisplayRole || role == Qt::ToolTipRole;
  return texte && sens == Qt::Horizontal ? Entete(colonne) : QVariant();
}

Qt::ItemFlags ModeleMillesimes::flags(const QModelIndex& index) const {
  const Qt::ItemFlags montree = Qt::ItemIsEnabled | Qt::ItemNeverHasChildren;
  return index.column() == colonneAnnee ? montree : montree | Qt::ItemIsSelectable;
}

GrilleMillesimes::GrilleMillesimes(const QString& nom, QWidget* parent) : QTableView(parent) {
  setObjectName(nom);
  setModel(&modele_);
  setItemDelegate(new Dessinateur(this));
  setSelectionMode(NoSelection);  // the row of the current cell is the choice, nothing else
  setEditTriggers(NoEditTriggers);
  setTabKeyNavigation(false);
  setCornerButtonEnabled(false);
  setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Expanding);
  verticalHeader()->hide();
  setHorizontalHeader(new LigneEntetes(this));
  Dispose();
}

void GrilleMillesimes::Dispose() {
  verticalHeader()->setMinimumSectionSize(0);
  verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
  verticalHeader()->setDefaultSectionSize(fontMetrics().height() + airRangee);
  RegleColonnes();
  updateGeometry();
}

int GrilleMillesimes::LargeurNaturelle(int colonne) const {
  if (colonne == colonneAnnee) {
    return std::max(largeurAnnee / twipsParPixel, LargeurEntete(colonneAnnee));
  }
  int largeur = largeurDegre / twipsParPixel;  // all grades alike
  for (int degre = premierDegre; degre <= dernierDegre; ++degre) {
    largeur = std::max(largeur, LargeurEntete(degre));
  }
  return largeur;
}

int GrilleMillesimes::LargeurEntete(int colonne) const {
  return horizontalHeader()->fontMetrics().horizontalAdvance(Entete(colonne)) + 2 * airEntete;
}

void GrilleMillesimes::RegleColonnes() {
  constexpr int lettresAuMoins = 5;
  const int annee = LargeurNaturelle(colonneAnnee);
  const int part = (viewport()->width() - annee) / dernierDegre;
  const int moindre = lettresAuMoins * fontMetrics().averageCharWidth();
  setColumnWidth(colonneAnnee, annee);
  for (int colonne = premierDegre; colonne <= dernierDegre; ++colonne) {
    setColumnWidth(colonne, std::clamp(part, moindre, LargeurNaturelle(colonne)));
  }
}

QSize GrilleMillesimes::sizeHint() const {
  int largeur = 2 * frameWidth() + verticalScrollBar()->sizeHint().width();
  for (int colonne = 0; colonne < ModeleMillesimes::colonnes; ++colonne) {
    largeur += LargeurNaturelle(colonne);
  }
  return {largeur, QTableView::sizeHint().height()};
}

void GrilleMillesimes::Remplit(const QString& cru, std::vector<std::int16_t> degresLus) {
  setUpdatesEnabled(false);
  modele_.Pose(cru, std::move(degresLus));
  setUpdatesEnabled(true);
}

void GrilleMillesimes::Selectionne(int rangee) {
  const QModelIndex place = modele_.index(rangee - 1, premierDegre);
  setCurrentIndex(place);
  scrollTo(place, PositionAtTop);
}

void GrilleMillesimes::MontreSelection() {
  scrollTo(currentIndex());
}

void GrilleMillesimes::currentChanged(const QModelIndex& courant, const QModelIndex& precedent) {
  QTableView::currentChanged(courant, precedent);
  if (!courant.isValid() || courant.row() == precedent.row()) {
    return;
  }
  selectionModel()->select(
      QItemSelection(courant.siblingAtColumn(premierDegre), courant.siblingAtColumn(dernierDegre)),
      QItemSelectionModel::ClearAndSelect);
  if (surSelection) {
    surSelection();
  }
}

QModelIndex GrilleMillesimes::moveCursor(CursorAction geste, Qt::KeyboardModifiers avec) {
  switch (geste) {
    case MoveHome:
      return modele_.index(0, premierDegre);
    case MoveEnd:
      return modele_.index(modele_.rowCount() - 1, premierDegre);
    case MoveLeft:
    case MoveRight:
      return currentIndex();  // the whole row is chosen
    default:
      return QTableView::moveCursor(geste, avec);
  }
}

void GrilleMillesimes::keyboardSearch(const QString& tape) {
  Liste annees;
  for (std::int32_t numero = 1; numero < NombreRangees(); ++numero) {
    annees.push_back({std::to_string(Annee(numero)), numero});
  }
  if (const std::optional<int> trouvee = recherche_.Trouve(annees, currentIndex().row(), tape)) {
    setCurrentIndex(modele_.index(*trouvee, premierDegre));
  }
}

void GrilleMillesimes::resizeEvent(QResizeEvent* evenement) {
  QTableView::resizeEvent(evenement);
  RegleColonnes();
}

void GrilleMillesimes::changeEvent(QEvent* evenement) {
  QTableView::changeEvent(evenement);
  if (evenement->type() == QEvent::FontChange || evenement->type() == QEvent::StyleChange) {
    Dispose();
  }
}

}  // namespace gastrelle
