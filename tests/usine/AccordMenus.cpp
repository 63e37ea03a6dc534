#include <algorithm>
#include <array>
#include <cmath>
#include <optional>
#include <regex>

#include "usine/Accord.h"

namespace gastrelle::usine {
namespace {

/// The dishes of a line of a menu, without its name and its drinks.
std::string Plats(const std::string& service) {
  static const std::regex boissons("\\. (Vin|Vins|Boisson|Boissons) : .*$");
  return std::regex_replace(service.substr(service.find(" : ") + 3), boissons, "");
}

/// How many times the recipe: none if the words tell no number.
std::optional<double> Fois(const std::string& parenthese) {
  struct Part {
    const char* mots;
    double fois;
  };
  constexpr std::array<Part, 12> parts{{{"deux fois et demie", 2.5},
                                        {"une fois et demie", 1.5},
                                        {"une fois un tiers", 4.0 / 3},
                                        {"deux tiers", 2.0 / 3},
                                        {"trois quarts", 0.75},
                                        {"deux fois", 2},
                                        {"trois fois", 3},
                                        {"quatre fois", 4},
                                        {"la moitié", 0.5},
                                        {"un tiers", 1.0 / 3},
                                        {"le tiers", 1.0 / 3},
                                        {"un quart", 0.25}}};
  const auto part = std::find_if(parts.begin(), parts.end(), [&](const Part& p) {
    return parenthese.find(p.mots) != std::string::npos;
  });
  return part == parts.end() ? std::nullopt : std::optional(part->fois);
}

/// How many guests a parenthesis says that the recipe serves: "la recette sert six".
std::optional<int> Sert(const std::string& parenthese) {
  constexpr std::array<const char*, 13> nombres{"",     "un",   "deux", "trois", "quatre",
                                                "cinq", "six",  "sept", "huit",  "neuf",
                                                "dix",  "onze", "douze"};
  static const std::regex sert("sert ([a-z]+)");
  std::smatch lu;
  if (!std::regex_search(parenthese, lu, sert)) {
    return std::nullopt;
  }
  const auto place = std::find(nombres.begin(), nombres.end(), lu[1].str());
  return static_cast<int>(place - nombres.begin());
}

/// What stands in parentheses right behind a place of a text.
std::string ParentheseDerriere(const std::string& texte, std::size_t place) {
  return texte.compare(place, 2, " (") == 0
             ? texte.substr(place + 2, texte.find(')', place) - place - 2)
             : "";
}

/// A place where a menu names a dish: a capital behind the beginning, a comma, a semicolon or "et".
std::vector<std::size_t> PlacesDesPlats(const std::string& plats) {
  static const std::regex expression("(^|, | ; | et |\\. )(?=[A-Z]|É|Œ|Î|À|Ê|Ç)");
  std::vector<std::size_t> places;
  for (const std::smatch& lue : Toutes(plats, expression)) {
    places.push_back(static_cast<std::size_t>(lue.position() + lue.length()));
  }
  return places;
}

/// The longest title that stands at a place of a text, in whole words.
const Notice* RecetteNommee(const std::string& texte, std::size_t place,
                            const std::vector<Notice>& recettes) {
  const Notice* nommee = nullptr;
  for (const Notice& recette : recettes) {
    const std::size_t fin = place + recette.nom.size();
    const bool entier = fin >= texte.size() || texte.find_first_of(" ,.;:", fin) == fin;
    if (entier && texte.compare(place, recette.nom.size(), recette.nom) == 0 &&
        (nommee == nullptr || recette.nom.size() > nommee->nom.size())) {
      nommee = &recette;
    }
  }
  return nommee;
}

}  // namespace

Desaccords PlatsSansRecette(const Ouvrages& ouvrages) {
  Desaccords desaccords;
  for (const Notice& menu : ouvrages.menus) {
    for (const std::string& service : Services(menu)) {
      const std::string plats = Plats(service);
      std::size_t fin = 0;  // what lies inside a title that holds commas is no dish of its own
      for (const std::size_t place : PlacesDesPlats(plats)) {
        const Notice* recette = RecetteNommee(plats, place, ouvrages.recettes);
        const bool phrase = place >= 2 && plats[place - 2] == '.';
        if (recette != nullptr) {
          fin = place + recette->nom.size();
        } else if (place >= fin && !phrase) {
          desaccords.push_back(menu.nom + " : pas de recette [" + plats.substr(place, 40) + "]");
        }
      }
    }
  }
  return desaccords;
}

Desaccords PartsInegales(const Ouvrages& ouvrages) {
  Desaccords desaccords;
  for (const Notice& menu : ouvrages.menus) {
    const std::optional<int> convives = Convives(menu.texte);
    if (!convives) {
      desaccords.push_back(menu.nom + " : ne dit pas pour combien de personnes");
      continue;
    }
    for (const std::string& service : Services(menu)) {
      const std::string plats = Plats(service);
      for (std::size_t place = 0; place < plats.size(); ++place) {
        const Notice* recette = RecetteNommee(plats, place, ouvrages.recettes);
        const std::optional<int> parts =
            recette != nullptr ? Convives(recette->texte) : std::nullopt;
        if (!parts) {
          continue;
        }
        const std::string dit = ParentheseDerriere(plats, place + recette->nom.size());
        const std::optional<double> fois = Fois(dit);
        const std::optional<int> sert = Sert(dit);
        const std::string annonce = menu.nom + " : " + recette->nom + " (" +
                                    std::to_string(*parts) + " pour " + std::to_string(*convives) +
                                    ")";
        const bool suffit = Dit(dit, {"suffit"});  // smaller helpings, and the menu says so
        if (fois && !suffit && std::abs(*fois * *parts - *convives) > 1) {
          desaccords.push_back(annonce + " : le compte n'y est pas [" + dit + "]");
        } else if (sert && *sert != *parts) {
          desaccords.push_back(annonce + " : la recette dit autrement [" + dit + "]");
        } else if (!fois && !sert && !suffit && *parts != *convives) {
          desaccords.push_back(annonce + " : rien ne dit comment l'accorder");
        }
        place += recette->nom.size() - 1;
      }
    }
  }
  return desaccords;
}

}  // namespace gastrelle::usine
