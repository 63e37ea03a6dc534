// Every child window of the program, one row each: what the tests that hold for all of them need.
#pragma once

#include <memory>
#include <ostream>
#include <span>
#include <vector>

#include "controles/FenetreOnglets.h"

namespace gastrelle::essai {

struct LigneEssai {
  const char* nom;     ///< objectName
  const char* entree;  ///< in the view menu
  const char* bouton;  ///< key in the toolbar
  std::int16_t premierContexte;
  std::vector<ChangementRefuse> refus;
  /// For each tab, the controls that the Tab key visits, on a library as `Garnit` fills it.
  std::vector<const char*> clavier;
  std::unique_ptr<FenetreEnfant> (*cree)(Module1&, gastrelle::Cadre&);

  [[nodiscard]] int onglets() const { return static_cast<int>(clavier.size()); }
};

inline void PrintTo(const LigneEssai& ligne, std::ostream* sortie) {
  *sortie << ligne.nom;
}

std::span<const LigneEssai> ToutesLesFenetres();

}  // namespace gastrelle::essai
