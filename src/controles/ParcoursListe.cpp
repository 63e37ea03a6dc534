#include "controles/ParcoursListe.h"

#include <array>

#include "controles/Touches.h"

namespace gastrelle {
namespace {

struct Sens {
  Qt::Key touche;
  int pas;
};

constexpr std::array<Sens, 2> deuxSens{{{Qt::Key_Up, -1}, {Qt::Key_Down, 1}}};

int Indice(const ComboListe& liste) {
  return liste.currentIndex();
}

int Indice(const ListeChoix& liste) {
  return liste.indice();
}

template <class UneListe>
void PoseAltFleches(QWidget& page, UneListe& liste) {
  for (const Sens& sens : deuxSens) {
    PoseRaccourci(page, {QKeySequence(Qt::ALT | sens.touche)}, true, [&liste, pas = sens.pas] {
      if (liste.isEnabled()) {
        liste.Choisit(Indice(liste) + pas);
      }
    });
  }
}

}  // namespace

void ParcourtAuClavier(QWidget& page, ComboListe& liste) {
  PoseAltFleches(page, liste);
}

void ParcourtAuClavier(QWidget& page, ListeChoix& liste) {
  PoseAltFleches(page, liste);
}

}  // namespace gastrelle
