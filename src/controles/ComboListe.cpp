#include "controles/ComboListe.h"

#include <algorithm>
#include <array>

#include <QCoreApplication>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QScreen>
#include <QScrollBar>
#include <QStyleOptionComboBox>
#include <QToolTip>

#include "controles/StyleGastrelle.h"
#include "controles/Touches.h"
#include "data/Texte1252.h"
#include "plateforme/ErreurExecution.h"

namespace gastrelle {
namespace {

constexpr int rangeesMontrees = 20;

/// The keys that move the choice in an open list.
constexpr std::array<Qt::Key, 6> deplacements{Qt::Key_Up,       Qt::Key_Down, Qt::Key_PageUp,
                                              Qt::Key_PageDown, Qt::Key_Home, Qt::Key_End};

/// Keys that open a closed list and do no more.
bool Ouvre(const QKeyEvent& touche) {
  return EstAltFleche(touche) ||
         (EstTouchePlaine(touche) && (touche.key() == Qt::Key_Space || touche.key() == Qt::Key_F4));
}

/// Keys that open a closed list and are then its own.
bool Entame(const QKeyEvent& touche) {
  const bool deplace =
      std::find(deplacements.begin(), deplacements.end(), touche.key()) != deplacements.end();
  const bool tape = !touche.text().isEmpty() && touche.text().front().isPrint();
  return EstTouchePlaine(touche) && (deplace || tape);
}

}  // namespace

ComboListe::ComboListe(const QString& nom, Ordre ordre, QWidget* parent)
    : QComboBox(parent), modele_(ordre) {
  constexpr int lettresAuMoins = 12;
  setObjectName(nom);
  setModel(&modele_);
  setSizeAdjustPolicy(AdjustToMinimumContentsLengthWithIcon);
  setMinimumContentsLength(lettresAuMoins);
  setMaxVisibleItems(rangeesMontrees);
  connect(this, &QComboBox::activated, this, [this] {
    if (surChoix) {
      surChoix();
    }
  });
}

void ComboListe::FaitVue() {
  vue_ = new VueListe(this);
  vue_->Suit(modele_);
  setView(vue_);
}

void ComboListe::ElargitVue() {
  const int ascenseur =
      count() > maxVisibleItems() ? vue_->verticalScrollBar()->sizeHint().width() : 0;
  const int voulue = vue_->LargeurUtile() + ascenseur + 2 * vue_->frameWidth();
  const int cadre = 2 * style()->pixelMetric(QStyle::PM_DefaultFrameWidth, nullptr, this);
  vue_->setMinimumWidth(std::min(voulue, screen()->availableGeometry().width() - 2 * cadre));
}

void ComboListe::showPopup() {
  if (count() == 0) {
    return;
  }
  if (vue_ == nullptr) {
    FaitVue();
  }
  ElargitVue();
  QComboBox::showPopup();
}

void ComboListe::keyPressEvent(QKeyEvent* touche) {
  const bool ouvre = Ouvre(*touche);
  const bool entame = !ouvre && Entame(*touche);
  if (!ouvre && !entame) {
    touche->ignore();
    return;
  }
  showPopup();
  if (entame && count() > 0) {
    QCoreApplication::sendEvent(vue_, touche);
  }
}

void ComboListe::wheelEvent(QWheelEvent* evenement) {
  evenement->ignore();  // the page behind may scroll
}

QString ComboListe::TitreAbrege() const {
  QStyleOptionComboBox combo;
  initStyleOption(&combo);
  const bool abrege =
      fontMetrics().horizontalAdvance(combo.currentText) > PlacePourTitre(*style(), combo, this);
  return abrege ? combo.currentText : QString();
}

bool ComboListe::event(QEvent* evenement) {
  const QEvent::Type genre = evenement->type();
  if (genre == QEvent::ShortcutOverride && EstAltFleche(*static_cast<QKeyEvent*>(evenement))) {
    evenement->accept();
    return true;
  }
  if (genre == QEvent::ToolTip && toolTip().isEmpty()) {
    QToolTip::showText(static_cast<QHelpEvent*>(evenement)->globalPos(), TitreAbrege(), this);
    return true;
  }
  return QComboBox::event(evenement);
}

void ComboListe::Choisit(int indice) {
  if (indice < 0 || indice >= count()) {
    return;
  }
  Montre(indice);
  if (surChoix) {
    surChoix();
  }
}

int ComboListe::IndiceDe(std::int32_t numero) const {
  const std::optional<int> indice = modele_.IndiceDe(numero);
  if (!indice) {
    throw ErreurExecution(Panne::fichierIntrouvable);
  }
  return *indice;
}

void ComboListe::ChoisitNumero(std::int32_t numero) {
  Choisit(IndiceDe(numero));
}

bool ComboListe::ContientTexte(std::string_view texte, int sauf) const {
  const std::string cherche = Majuscules(Rogne(texte));
  for (int i = 0; i < count(); ++i) {
    if (i != sauf && Majuscules(Rogne(entrees()[static_cast<std::size_t>(i)].texte)) == cherche) {
      return true;
    }
  }
  return false;
}

void ComboListe::Montre(int indice) {
  setCurrentIndex(indice);
}

void ComboListe::Ajoute(Liste nouvelles) {
  modele_.Ajoute(std::move(nouvelles));
  setCurrentIndex(-1);
}

int ComboListe::Ajoute(const EntreeListe& entree) {
  const bool sansChoix = currentIndex() < 0;
  const int indice = modele_.Ajoute(entree);
  if (sansChoix) {
    setCurrentIndex(-1);  // the toolkit chooses the first entry of a list that was empty
  }
  return indice;
}

void ComboListe::Vide() {
  modele_.Vide();
  setCurrentIndex(-1);
}

std::int32_t ComboListe::NumeroChoisi() const {
  if (currentIndex() < 0) {
    throw ErreurExecution(Panne::appelIncorrect);
  }
  return entrees()[static_cast<std::size_t>(currentIndex())].numero;
}

std::string ComboListe::Texte() const {
  return currentIndex() < 0 ? std::string{}
                            : entrees()[static_cast<std::size_t>(currentIndex())].texte;
}

}  // namespace gastrelle
