#include "maison/Arbre.h"

#include <algorithm>
#include <array>
#include <fstream>
#include <regex>

namespace gastrelle::essai {
namespace {

namespace fs = std::filesystem;

bool EstCode(const fs::path& chemin) {
  constexpr std::array<std::string_view, 3> extensions{".cmake", ".py", ".sh"};
  const std::string extension = chemin.extension().string();
  if (EstCpp(chemin) || chemin.filename() == "CMakeLists.txt" ||
      std::find(extensions.begin(), extensions.end(), extension) != extensions.end()) {
    return true;
  }
  std::string debut(2, ' ');
  std::ifstream(chemin, std::ios::binary).read(debut.data(), 2);
  return extension.empty() && debut == "#!";
}

FichierSource Lu(const fs::path& racine, const fs::path& chemin) {
  static const std::regex directive(R"re(^\s*#\s*include\s*(["<])([^">]+)[">])re");
  FichierSource fichier{fs::relative(chemin, racine), {}, {}};
  std::ifstream entree(chemin);
  for (std::string ligne; std::getline(entree, ligne);) {
    if (std::smatch trouve; EstCpp(chemin) && std::regex_search(ligne, trouve, directive)) {
      fichier.inclusions.push_back({trouve[2], trouve[1] == "\""});
    }
    fichier.lignes.push_back(std::move(ligne));
  }
  return fichier;
}

}  // namespace

bool EstCpp(const fs::path& chemin) {
  return chemin.extension() == ".cpp" || chemin.extension() == ".h";
}

std::vector<FichierSource> Sources(const fs::path& racine, std::string_view dossier) {
  std::vector<fs::path> chemins;
  if (fs::is_directory(racine / dossier)) {
    for (const auto& entree : fs::recursive_directory_iterator(racine / dossier)) {
      if (entree.is_regular_file() && EstCode(entree.path())) {
        chemins.push_back(entree.path());
      }
    }
  }
  std::sort(chemins.begin(), chemins.end());
  std::vector<FichierSource> fichiers;
  std::transform(chemins.begin(), chemins.end(), std::back_inserter(fichiers),
                 [&](const fs::path& chemin) { return Lu(racine, chemin); });
  return fichiers;
}

fs::path Cible(const fs::path& racine, const FichierSource& depuis, const Inclusion& inclusion) {
  for (const fs::path& base : {depuis.chemin.parent_path(), fs::path("src"), fs::path("tests"),
                               fs::path("bancs"), fs::path()}) {
    const fs::path chemin = (base / inclusion.nom).lexically_normal();
    if (inclusion.locale && fs::is_regular_file(racine / chemin)) {
      return chemin;
    }
  }
  return {};
}

}  // namespace gastrelle::essai
