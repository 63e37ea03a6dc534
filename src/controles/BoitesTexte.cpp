#include "controles/BoitesTexte.h"

namespace gastrelle {

bool EstVide(const QWidget& boite) {
  if (const auto* zone = dynamic_cast<const ZoneTexte*>(&boite)) {
    return zone->document()->isEmpty();
  }
  return dynamic_cast<const LigneTexte&>(boite).text().isEmpty();
}

void VideBoites(std::span<QWidget* const> boites) {
  for (QWidget* boite : boites) {
    if (auto* zone = dynamic_cast<ZoneTexte*>(boite)) {
      zone->RemplaceTexte({});
    } else {
      dynamic_cast<LigneTexte&>(*boite).RemplaceTexte({});
    }
  }
}

}  // namespace gastrelle
