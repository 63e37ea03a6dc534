// The files that what leaves the program is held against, byte for byte.
#pragma once

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

namespace gastrelle::essai {

/// The bytes of a model by its name; none if it isn't there.
inline std::string Modele(const std::string& nom) {
  std::ifstream entree(std::filesystem::path(DOSSIER_MODELES) / (nom + ".txt"), std::ios::binary);
  return {std::istreambuf_iterator<char>(entree), {}};
}

}  // namespace gastrelle::essai
