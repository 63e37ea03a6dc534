// The lines that a document or a printed page is made of. Windows-1252.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "data/Texte1252.h"
#include "data/Vues.h"

namespace gastrelle {

/// Each is followed by one line end when it is put out; it may hold line ends of its own.
using LignesTexte = std::vector<std::string>;

/// A label and its value.
inline std::string Joint(std::string_view legende, std::string_view valeur) {
  std::string ligne(legende);
  ligne += valeur;
  return ligne;
}

/// Adds the entries of a list, without the blanks at their ends.
inline void AjouteRognees(LignesTexte& lignes, const std::vector<std::string>& entrees) {
  for (const std::string& entree : entrees) {
    lignes.emplace_back(Rogne(entree));
  }
}

/// Adds what a favourite has besides its name, one line each, also for what is empty.
void AjouteDetails(LignesTexte& lignes, const VueFavori& vue);

}  // namespace gastrelle
