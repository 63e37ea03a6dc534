// A folder of factory copies as a package installs it, and what a folder holds altogether.
#pragma once

#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <string>
#include <vector>

#include "data/CatalogueFichiers.h"
#include "doublures/Bibliotheque.h"

namespace gastrelle::essai {

/// Path in a folder, and its bytes; of a folder "/", of a link "-> " and where it leads.
using Contenu = std::map<std::string, std::string>;

inline Contenu ContenuDe(const std::filesystem::path& dossier) {
  Contenu contenu;
  for (const auto& entree : std::filesystem::recursive_directory_iterator(dossier)) {
    const std::string nom = entree.path().lexically_relative(dossier).string();
    if (entree.is_symlink()) {
      contenu[nom] = "-> " + std::filesystem::read_symlink(entree.path()).string();
    } else if (entree.is_directory()) {
      contenu[nom] = "/";
    } else {
      std::ifstream lecture(entree.path(), std::ios::binary);
      contenu[nom] = {std::istreambuf_iterator<char>(lecture), {}};
    }
  }
  return contenu;
}

/// The nineteen copies, the four other files, the edition and pictures; each holds its own name and
/// that of the edition.
inline void PoseFabrique(const std::filesystem::path& dossier, const std::string& edition,
                         const std::vector<std::string>& images = {"agneau.jpg", "porc.jpg"}) {
  std::vector<std::string> noms{"gl32.hlp", "Exclamation", "presentation.html", "secours.html"};
  for (std::size_t i = 0; i < static_cast<std::size_t>(Donnees::GLPREF); ++i) {
    noms.push_back(NomFabrique(static_cast<Donnees>(i)));
  }
  for (const std::string& image : images) {
    noms.push_back("IMAGE/" + image);
  }
  std::filesystem::create_directories(dossier / "IMAGE");
  for (const std::string& nom : noms) {
    std::ofstream(dossier / nom, std::ios::binary) << nom << " " << edition << "\n";
  }
  std::ofstream(dossier / "EDITION", std::ios::binary) << edition << "\n";
}

}  // namespace gastrelle::essai
