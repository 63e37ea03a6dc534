#include "sortie/ChoixFait.h"

#include "data/Surcharge.h"

namespace gastrelle {

bool ChoixFait(const Vue& vue) {
  const Surcharge choix{
      [](const VueFromagesTries& v) { return v.lait.has_value(); },
      [](const VueVinsTries& v) { return v.region.has_value(); },
      [](const VueFavorisTries& v) { return v.categorie.has_value(); },
      [](const auto&) { return true; },
  };
  return std::visit(choix, vue);
}

}  // namespace gastrelle
