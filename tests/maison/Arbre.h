// A tree of sources, read: its files of code with their lines and what they include.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace gastrelle::essai {

struct Inclusion {
  std::string nom;
  bool locale = false;  ///< between quotes
};

struct FichierSource {
  std::filesystem::path chemin;  ///< from the root of the tree
  std::vector<std::string> lignes;
  std::vector<Inclusion> inclusions;
};

/// Files of code below a folder of the tree, in the order of their paths: C++, CMake, Python, and
/// scripts of any name. A folder that isn't there has none.
std::vector<FichierSource> Sources(const std::filesystem::path& racine, std::string_view dossier);

/// True for the extensions of C++.
bool EstCpp(const std::filesystem::path& chemin);

/// Where a quoted include of a file leads, from the root of the tree; empty when nowhere.
std::filesystem::path Cible(const std::filesystem::path& racine, const FichierSource& depuis,
                            const Inclusion& inclusion);

}  // namespace gastrelle::essai
