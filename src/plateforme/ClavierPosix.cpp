#include <X11/XKBlib.h>
#include <X11/Xlib.h>

#include "plateforme/Clavier.h"

namespace gastrelle {

std::optional<Verrous> ClavierSysteme::Lit() {
  static Display* const ecran = XOpenDisplay(nullptr);  // null without an X server
  unsigned temoins = 0;
  if (ecran == nullptr || XkbGetIndicatorState(ecran, XkbUseCoreKbd, &temoins) != Success) {
    return std::nullopt;
  }
  return Verrous{(temoins & 1U) != 0, (temoins & 2U) != 0};
}

}  // namespace gastrelle
