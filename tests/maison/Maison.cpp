#include "maison/Maison.h"

#include <algorithm>
#include <array>
#include <functional>
#include <map>
#include <optional>
#include <regex>
#include <set>
#include <string_view>

#include "maison/Arbre.h"

namespace gastrelle::essai {
namespace {

namespace fs = std::filesystem;

struct Piece {
  std::string_view dossier;
  int etage;
};

constexpr std::array<Piece, 16> pieces{{
    {"plateforme", 1},
    {"data", 2},
    {"recettes", 3},
    {"vins", 3},
    {"fromages", 3},
    {"fiches", 3},
    {"favoris", 3},
    {"listes", 3},
    {"sortie", 4},
    {"recherche", 4},
    {"maintenance", 4},
    {"controles", 5},
    {"images", 5},
    {"imprimante", 5},
    {"vignobles", 5},
    {"shell", 7},
}};
constexpr int etageControles = 5;
constexpr int etageFenetres = 6;
constexpr int etageDepart = 8;

constexpr std::array<std::string_view, 4> dossiersDeCode{"src", "usine", "tests", "bancs"};

/// Path of a file in `src`, or nothing if it lies elsewhere.
std::optional<fs::path> DansSrc(const fs::path& chemin) {
  if (chemin.empty() || *chemin.begin() != "src") {
    return std::nullopt;
  }
  return chemin.lexically_relative("src");
}

/// The floor of a folder of `src`, 0 for one that has none.
int EtageDuDossier(const fs::path& dossier) {
  const auto piece = std::find_if(pieces.begin(), pieces.end(),
                                  [&](const Piece& p) { return dossier == p.dossier; });
  return piece == pieces.end() ? 0 : piece->etage;
}

std::string Dit(const FichierSource& fichier, const std::string& quoi) {
  return fichier.chemin.generic_string() + " : " + quoi;
}

template <class Visite>
void PourChaqueFichier(const fs::path& racine, Visite&& visite) {
  for (const std::string_view dossier : dossiersDeCode) {
    for (const FichierSource& fichier : Sources(racine, dossier)) {
      visite(fichier);
    }
  }
}

/// Visits each quoted include of `src` that leads to another file of `src`, as paths in there.
template <class Visite>
void PourChaqueInclusion(const fs::path& racine, Visite&& visite) {
  for (const FichierSource& fichier : Sources(racine, "src")) {
    for (const Inclusion& inclusion : fichier.inclusions) {
      if (const auto vers = DansSrc(Cible(racine, fichier, inclusion))) {
        visite(*DansSrc(fichier.chemin), *vers);
      }
    }
  }
}

/// Depth-first walk of the include graph: a file met again on its own path closes a ring.
class Parcours {
 public:
  explicit Parcours(std::map<fs::path, std::vector<fs::path>> graphe)
      : graphe_(std::move(graphe)) {}

  Constats Cycles() {
    for (const auto& [fichier, inclus] : graphe_) {
      Visite(fichier);
    }
    return std::move(cycles_);
  }

 private:
  void Visite(const fs::path& fichier) {
    if (const auto debut = std::find(chemin_.begin(), chemin_.end(), fichier);
        debut != chemin_.end()) {
      std::string cycle;
      for (auto i = debut; i != chemin_.end(); ++i) {
        cycle += i->generic_string() + " > ";
      }
      cycles_.push_back(cycle + fichier.generic_string());
      return;
    }
    if (!vus_.insert(fichier).second) {
      return;
    }
    chemin_.push_back(fichier);
    for (const fs::path& inclus : graphe_[fichier]) {
      Visite(inclus);
    }
    chemin_.pop_back();
  }

  std::map<fs::path, std::vector<fs::path>> graphe_;
  std::set<fs::path> vus_;
  std::vector<fs::path> chemin_;
  Constats cycles_;
};

}  // namespace

int Etage(const fs::path& fichier) {
  if (fichier == "main.cpp") {
    return etageDepart;
  }
  const int etage = EtageDuDossier(*fichier.begin());
  // A window lives with its catalogue, but above the controls that it is made of.
  const std::string nom = fichier.filename().string();
  const bool fenetre = nom.starts_with("frm") || nom.starts_with("Fenetre");
  return fenetre && etage > 0 && etage < etageControles ? etageFenetres : etage;
}

Constats IncluantPlusHaut(const fs::path& racine) {
  Constats constats;
  for (const FichierSource& fichier : Sources(racine, "src")) {
    if (!EstCpp(fichier.chemin)) {
      continue;
    }
    const int etage = Etage(*DansSrc(fichier.chemin));
    if (etage == 0) {
      constats.push_back(Dit(fichier, "dans un dossier sans étage"));
      continue;
    }
    for (const Inclusion& inclusion : fichier.inclusions) {
      const auto vers = DansSrc(Cible(racine, fichier, inclusion));
      if (inclusion.locale && !vers) {
        constats.push_back(Dit(fichier, inclusion.nom + " n'est pas dans src"));
      } else if (vers && Etage(*vers) > etage) {
        constats.push_back(Dit(fichier, "étage " + std::to_string(etage) + ", inclut " +
                                            inclusion.nom + ", étage " +
                                            std::to_string(Etage(*vers))));
      }
    }
  }
  return constats;
}

Constats PiecesQuiSIncluent(const fs::path& racine) {
  std::set<std::pair<std::string, std::string>> fleches;
  PourChaqueInclusion(racine, [&](const fs::path& de, const fs::path& vers) {
    const int etage = Etage(de);
    if (etage == Etage(vers) && (etage == 3 || etage == 4) && *de.begin() != *vers.begin()) {
      fleches.emplace(de.begin()->string(), vers.begin()->string());
    }
  });
  Constats constats;
  for (const auto& [de, vers] : fleches) {
    if (de < vers && fleches.contains({vers, de})) {
      constats.push_back(de + " et " + vers + " s'incluent");
    }
  }
  return constats;
}

Constats ControlesAvecCatalogue(const fs::path& racine) {
  Constats constats;
  PourChaqueInclusion(racine, [&](const fs::path& de, const fs::path& vers) {
    const int etage = EtageDuDossier(*vers.begin());
    if (Etage(de) == etageControles && (etage == 3 || etage == 4)) {
      constats.push_back("src/" + de.generic_string() + " : inclut " + vers.generic_string());
    }
  });
  return constats;
}

Constats FenetresNommantUnFichier(const fs::path& racine) {
  static const std::regex nom(
      R"re(\bDonnees::|\bGL(R[1-4]|F[12]|M[12]|V[1-3]|MV|T[12]|FV[1-3]|MCN?|PREF)\b(\.\w+)?)re");
  Constats constats;
  for (const FichierSource& fichier : Sources(racine, "src")) {
    if (!EstCpp(fichier.chemin) || Etage(*DansSrc(fichier.chemin)) != etageFenetres) {
      continue;
    }
    for (const std::string& ligne : fichier.lignes) {
      if (std::smatch trouve; std::regex_search(ligne, trouve, nom)) {
        constats.push_back(Dit(fichier, "nomme " + trouve.str()));
      }
    }
  }
  return constats;
}

Constats QtSousLesFenetres(const fs::path& racine) {
  Constats constats;
  for (const FichierSource& fichier : Sources(racine, "src")) {
    for (const Inclusion& inclusion : fichier.inclusions) {
      if (inclusion.nom.starts_with('Q') && Etage(*DansSrc(fichier.chemin)) < etageControles) {
        constats.push_back(Dit(fichier, "inclut " + inclusion.nom));
      }
    }
  }
  return constats;
}

Constats Cycles(const fs::path& racine) {
  const auto salle = [](fs::path fichier) { return fichier.replace_extension(); };
  std::map<fs::path, std::vector<fs::path>> graphe;
  PourChaqueFichier(racine, [&](const FichierSource& fichier) {
    for (const Inclusion& inclusion : fichier.inclusions) {
      const fs::path vers = Cible(racine, fichier, inclusion);
      if (!vers.empty() && (salle(vers) != salle(fichier.chemin) || vers == fichier.chemin)) {
        graphe[salle(fichier.chemin)].push_back(salle(vers));
      }
    }
  });
  return Parcours(std::move(graphe)).Cycles();
}

Constats TropLongs(const fs::path& racine) {
  Constats constats;
  PourChaqueFichier(racine, [&](const FichierSource& fichier) {
    if (fichier.lignes.size() > lignesAuPlus) {
      constats.push_back(Dit(fichier, std::to_string(fichier.lignes.size()) + " lignes"));
    }
  });
  return constats;
}

Constats Inacheves(const fs::path& racine) {
  // In two pieces, so that this very file is clean.
  static const std::regex marque(
      "\\b(TO"
      "DO|FIX"
      "ME)\\b");
  Constats constats;
  PourChaqueFichier(racine, [&](const FichierSource& fichier) {
    for (const std::string& ligne : fichier.lignes) {
      if (std::regex_search(ligne, marque)) {
        constats.push_back(Dit(fichier, ligne));
      }
    }
  });
  return constats;
}

Constats NonCompiles(const fs::path& racine) {
  static const std::regex mot(R"re([^\s()"]+)re");
  std::set<std::string> nommes;
  for (const FichierSource& fichier : Sources(racine, "src")) {
    if (fichier.chemin != fs::path("src") / "CMakeLists.txt") {
      continue;
    }
    for (const std::string& ligne : fichier.lignes) {
      const std::string utile = ligne.substr(0, ligne.find('#'));
      for (std::sregex_iterator i(utile.begin(), utile.end(), mot), fin; i != fin; ++i) {
        nommes.insert(i->str());
      }
    }
  }
  Constats constats;
  for (const FichierSource& fichier : Sources(racine, "src")) {
    const std::string nom = DansSrc(fichier.chemin)->generic_string();
    if (fichier.chemin.extension() == ".cpp" && !nommes.contains(nom)) {
      constats.push_back(Dit(fichier, "n'est pas dans src/CMakeLists.txt"));
    }
  }
  return constats;
}

}  // namespace gastrelle::essai
