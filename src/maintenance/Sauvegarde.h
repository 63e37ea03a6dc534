// The backup copy of the recipe files, made when the program ends.
#pragma once

#include <string>
#include <string_view>

#include "data/Module1.h"

namespace gastrelle {

inline constexpr std::string_view dossierSauvegarde = "SAUVE";

/// The name of a file's backup copy.
[[nodiscard]] inline std::string NomDeSauvegarde(Donnees fichier) {
  return std::string(dossierSauvegarde) + "/" + Nom(fichier);
}

/// Closes every data file, then copies the four recipe files over those of the backup folder. No
/// catalogue works any more afterwards. False at the first failure: what was copied before stays.
bool CopieSecurite(Module1& module);

}  // namespace gastrelle
