#include "controles/ListeChoix.h"

#include <QKeyEvent>

#include "controles/Touches.h"
#include "plateforme/ErreurExecution.h"

namespace gastrelle {

ListeChoix::ListeChoix(const QString& nom, Ordre ordre, QWidget* parent)
    : VueListe(parent), modele_(ordre) {
  setObjectName(nom);
  Suit(modele_);
  connect(this, &QAbstractItemView::doubleClicked, this, [this] {
    if (surDoubleClic) {
      surDoubleClic();
    }
  });
}

void ListeChoix::keyPressEvent(QKeyEvent* touche) {
  if (EstEntree(*touche) && indice() >= 0 && surDoubleClic) {
    surDoubleClic();
  } else {
    VueListe::keyPressEvent(touche);
  }
}

void ListeChoix::Choisit(int indice) {
  if (indice >= 0 && indice < modele_.rowCount()) {
    setCurrentIndex(modele_.index(indice));
  }
}

std::int32_t ListeChoix::NumeroChoisi() const {
  if (indice() < 0) {
    throw ErreurExecution(Panne::appelIncorrect);
  }
  return entrees()[static_cast<std::size_t>(indice())].numero;
}

void ListeChoix::currentChanged(const QModelIndex& courant, const QModelIndex& precedent) {
  VueListe::currentChanged(courant, precedent);
  if (courant.isValid() && surChoix) {
    surChoix();
  }
}

}  // namespace gastrelle
