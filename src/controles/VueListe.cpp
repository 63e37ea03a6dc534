#include "controles/VueListe.h"

#include <algorithm>
#include <array>
#include <numeric>

#include <QHelpEvent>
#include <QKeyEvent>
#include <QScrollBar>
#include <QToolTip>

#include "controles/Conversion.h"
#include "controles/Touches.h"

namespace gastrelle {
namespace {

using Chasses = std::array<int, 256>;

/// The width of each character alone, by its byte.
Chasses ChassesDe(const QFontMetrics& metrique) {
  Chasses chasses{};
  for (std::size_t octet = 0; octet < chasses.size(); ++octet) {
    chasses[octet] = metrique.horizontalAdvance(VersQt(std::string(1, static_cast<char>(octet))));
  }
  return chasses;
}

/// The sum of its characters' widths: which of two titles is the longer one, without laying out
/// thousands of them.
int LargeurEstimee(const Chasses& chasses, const std::string& texte) {
  return std::accumulate(texte.begin(), texte.end(), 0, [&](int somme, char c) {
    return somme + chasses[static_cast<unsigned char>(c)];
  });
}

}  // namespace

VueListe::VueListe(QWidget* parent) : QListView(parent) {
  setUniformItemSizes(true);  // 32,767 entries open at once
  setEditTriggers(NoEditTriggers);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
}

void VueListe::Suit(ModeleListe& modele) {
  modele_ = &modele;
  setModel(modele_);
}

int VueListe::LargeurUtile() const {
  const Chasses chasses = ChassesDe(fontMetrics());
  int plusLongue = 0;
  int laquelle = 0;
  int indice = 0;
  for (const EntreeListe& entree : modele_->entrees()) {
    const int largeur = LargeurEstimee(chasses, entree.texte);
    if (largeur > plusLongue) {
      plusLongue = largeur;
      laquelle = indice;
    }
    ++indice;
  }
  return sizeHintForIndex(modele_->index(laquelle)).width();
}

QRect VueListe::visualRect(const QModelIndex& entree) const {
  QRect rangee = QListView::visualRect(entree);
  rangee.setWidth(std::min(rangee.width(), viewport()->width()));
  return rangee;
}

void VueListe::updateGeometries() {
  QListView::updateGeometries();
  horizontalScrollBar()->setRange(0, 0);
}

void VueListe::keyboardSearch(const QString& tape) {
  const std::optional<int> trouve =
      recherche_.Trouve(modele_->entrees(), currentIndex().row(), tape);
  if (trouve) {
    setCurrentIndex(modele_->index(*trouve));
  }
}

bool VueListe::event(QEvent* evenement) {
  if (evenement->type() == QEvent::ShortcutOverride) {
    // An open list has the keyboard to itself; any other keeps the arrows.
    const bool deroulee = window()->windowType() == Qt::Popup;
    evenement->setAccepted(deroulee || EstAltFleche(*static_cast<QKeyEvent*>(evenement)));
    return evenement->isAccepted();
  }
  return QListView::event(evenement);
}

QString VueListe::TitreAbrege(const QPoint& ou) const {
  const QModelIndex entree = indexAt(ou);
  const bool abrege =
      entree.isValid() && sizeHintForIndex(entree).width() > visualRect(entree).width();
  return abrege ? entree.data().toString() : QString();
}

bool VueListe::viewportEvent(QEvent* evenement) {
  if (evenement->type() == QEvent::ToolTip && toolTip().isEmpty()) {
    const auto& aide = static_cast<const QHelpEvent&>(*evenement);
    QToolTip::showText(aide.globalPos(), TitreAbrege(aide.pos()), viewport());
    return true;
  }
  return QListView::viewportEvent(evenement);
}

}  // namespace gastrelle
