#include "controles/DeuxModes.h"

#include <utility>

#include "controles/BoitesTexte.h"
#include "controles/Focus.h"

namespace gastrelle {

DeuxModes::DeuxModes(const std::array<QRadioButton*, 2>& options, Mode premier, Mode second,
                     std::optional<std::size_t> debut)
    : options_(options), modes_{std::move(premier), std::move(second)} {
  if (debut) {
    Choisit(*debut);
  }
  PermetControles();
  QObject::connect(options_[0], &QRadioButton::toggled, options_[0], [this] { Applique(); });
}

void DeuxModes::PermetControles() {
  for (const Mode& mode : modes_) {
    for (QWidget* controle : mode.controles) {
      controle->setEnabled(&mode == &present());
    }
  }
}

void DeuxModes::Applique() {
  const Mode& choisi = present();
  VideBoites(choisi.vides);
  if (choisi.surChoix) {
    choisi.surChoix();
  }
  PermetControles();
  RendFocus();
}

void DeuxModes::RendFocus() const {
  if (QWidget* focus = present().focus) {
    DonneFocus(focus);
  }
}

}  // namespace gastrelle
