// Vintages for the tests, and what stands on file of them.
#pragma once

#include <string>

#include "data/Texte1252.h"
#include "doublures/Bibliotheque.h"
#include "doublures/Depart.h"
#include "vins/CatalogueMillesimes.h"

namespace gastrelle::essai {

inline constexpr std::size_t longueurAnnee = longueurEnregistrement<RecMillesime>;

/// A file of so many years without a grade.
inline std::string AnneesVides(int combien) {
  return std::string(static_cast<std::size_t>(combien) * longueurAnnee, '\0');
}

inline RecMillesime Fiche(const Classement& classement) {
  RecMillesime fiche;
  for (std::size_t i = 0; i < crus.size(); ++i) {
    fiche.*crus[i].degre = classement[i];
  }
  return fiche;
}

/// The bytes of a year, as on file.
inline std::string OctetsAnnee(const Bibliotheque& b, std::size_t numero) {
  return b.dossier.Lit("GLMV.DAT").substr((numero - 1) * longueurAnnee, longueurAnnee);
}

}  // namespace gastrelle::essai
