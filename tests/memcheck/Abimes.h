// Ways in which the files of the factory's folder can be damaged so that the program starts
// nevertheless.
#pragma once

#include <ostream>
#include <span>

#include "doublures/Bibliotheque.h"

namespace gastrelle::essai {

struct Abime {
  const char* nom;
  void (*abime)(const DossierEssai& dossier);  ///< null: the folder stays as it was made
};

inline void PrintTo(const Abime& abime, std::ostream* sortie) {
  *sortie << abime.nom;
}

/// The first one damages nothing.
std::span<const Abime> TousLesAbimes();

}  // namespace gastrelle::essai
