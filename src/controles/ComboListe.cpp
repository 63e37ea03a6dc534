#include "controles/ComboListe.h"

#include <QStyleOptionComboBox>

#include "controles/StyleGastrelle.h"
#include "data/Texte1252.h"
#include "plateforme/ErreurExecution.h"

namespace gastrelle {

ComboListe::ComboListe(const QString& nom, Ordre ordre, QWidget* parent)
    : QComboBox(parent), modele_(ordre) {
  constexpr int lettresAuMoins = 12;
  setObjectName(nom);
  setModel(&modele_);
  setSizeAdjustPolicy(AdjustToMinimumContentsLengthWithIcon);
  setMinimumContentsLength(lettresAuMoins);
  connect(this, &QComboBox::activated, this, [this] {
    if (surChoix) {
      surChoix();
    }
  });
}

void ComboListe::showPopup() {
  if (vue_ == nullptr) {
    vue_ = new QListView(this);
    vue_->setUniformItemSizes(true);  // 32,767 entries open at once
    setView(vue_);
  }
  QComboBox::showPopup();
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

bool ComboListe::TitreAbrege() const {
  QStyleOptionComboBox option;
  initStyleOption(&option);
  return option.fontMetrics.horizontalAdvance(option.currentText) > PlaceTitre(option, *this);
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
