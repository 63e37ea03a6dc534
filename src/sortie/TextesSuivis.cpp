#include "sortie/TextesSuivis.h"

#include <span>

namespace gastrelle {

void TextesSuivis::EcritDans(FluxTexte& flux, std::int32_t position, std::int32_t longueur) {
  if (longueur < 0 || longueur > FluxTexte::place) {
    flux.EcritLigne(reserve_.Lit(position, longueur));
  } else if (const auto lu = avance_.Rend(position, longueur)) {
    flux.EcritLigne(*lu);
  } else {
    flux.EcritLigneLue(longueur,
                       [&](std::span<char> ou) { return reserve_.LitDans(position, ou); });
  }
}

}  // namespace gastrelle
