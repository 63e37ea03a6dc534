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

}  // namespace

void ParcourtAuClavier(QWidget& page, ComboListe& liste) {
  for (const Sens& sens : deuxSens) {
    PoseRaccourci(page, {QKeySequence(Qt::ALT | sens.touche)}, true, [&liste, pas = sens.pas] {
      if (liste.isEnabled()) {
        liste.Choisit(liste.currentIndex() + pas);
      }
    });
  }
}

}  // namespace gastrelle
