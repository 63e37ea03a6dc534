// The window of the favourites: the table of its five tabs.
#pragma once

#include "controles/FenetreOnglets.h"

namespace gastrelle {

class frmFavorisListe;

class frmFavoris final : public FenetreOnglets {
 public:
  /// Fills the lists of categories and favourites and shows the first favourite.
  frmFavoris(Module1& module, Cadre& cadre);

  /// The tab on which the favourite of the whole window is selected.
  [[nodiscard]] frmFavorisListe& liste();

 protected:
  [[nodiscard]] std::string Annonce() override;
};

}  // namespace gastrelle
