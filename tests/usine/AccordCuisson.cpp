#include <algorithm>
#include <array>
#include <map>
#include <regex>

#include "usine/Accord.h"

namespace gastrelle::usine {
namespace {

/// What speaks of the oven without baking in it.
std::string SansLeFourDontOnParle(const std::string& etape) {
  static const std::regex tours(
      "allant au four|Pour une cuisson au four|avant de l'enfourner|four éteint");
  return std::regex_replace(etape, tours, "");
}

}  // namespace

Desaccords FoursFroids(const Ouvrages& ouvrages) {
  Desaccords desaccords;
  for (const Notice& recette : ouvrages.recettes) {
    bool allume = false;
    for (const std::string& etape : Etapes(recette)) {
      const bool allumeIci = Dit(etape, {"chauffer le four", "llumer le four", "llumer le gril",
                                         "chauffer le gril", "four, le préchauffer"});
      const bool cuit = Dit(SansLeFourDontOnParle(etape),
                            {"nfourner", " au four", " sous le gril", "dans le four"}) ||
                        (Dit(etape, {"(th. "}) && !allumeIci);
      if (cuit && !allume) {
        desaccords.push_back(recette.nom + " : four froid à l'étape " + etape.substr(0, 60));
        break;
      }
      allume = allume || allumeIci;
    }
  }
  return desaccords;
}

namespace {

struct Viande {
  const char* famille;  ///< of its recipes; empty: its recipes are those that name it
  const char* nom;
  const char* nomEnTete;  ///< as a sentence begins with it
};

constexpr std::array<Viande, 7> viandes{{{"Bœuf", "bœuf", "Bœuf"},
                                         {"Veau", "veau", "Veau"},
                                         {"Agneau", "agneau", "Agneau"},
                                         {"Porc", "porc", "Porc"},
                                         {"Volailles et lapin", "volaille", "Volaille"},
                                         {"", "chevreuil", "Chevreuil"},
                                         {"", "lièvre", "Lièvre"}}};

const Viande* ViandeDe(const Notice& recette) {
  const auto place = std::find_if(viandes.begin(), viandes.end(), [&](const Viande& v) {
    return *v.famille != '\0' ? recette.groupe == v.famille : Dit(recette.nom, {v.nom});
  });
  return place == viandes.end() ? nullptr : &*place;
}

/// The core heats that a tip gives for each meat: a heat goes with the meats named last before it
/// in its sentence.
std::map<const Viande*, std::vector<Etendue>> CoeursPermis(const std::string& truc) {
  std::map<const Viande*, std::vector<Etendue>> permis;
  std::vector<const Viande*> dernieres;
  for (const std::string& morceau : Morceaux(truc, ",;.")) {
    std::vector<const Viande*> nommees;
    for (const Viande& viande : viandes) {
      if (Dit(morceau, {viande.nom, viande.nomEnTete})) {
        nommees.push_back(&viande);
      }
    }
    dernieres = nommees.empty() ? dernieres : nommees;
    for (const Viande* viande : dernieres) {
      for (const Etendue& etendue : Chaleurs(morceau)) {
        permis[viande].push_back(etendue);
      }
    }
    if (morceau.ends_with('.')) {
      dernieres.clear();
    }
  }
  return permis;
}

/// The core heats that the steps of a recipe wait for.
std::vector<Etendue> CoeursDe(const Notice& recette) {
  constexpr int duFour = 100;
  std::vector<Etendue> coeurs;
  for (const std::string& etape : Etapes(recette)) {
    for (const std::string& phrase : Morceaux(etape, ".")) {
      for (const Etendue& chaleur : Chaleurs(phrase)) {
        if (chaleur.de < duFour && Dit(phrase, {"sonde", "à cœur", "au cœur"})) {
          coeurs.push_back(chaleur);
        }
      }
    }
  }
  return coeurs;
}

}  // namespace

Desaccords CoeursContraires(const Ouvrages& ouvrages) {
  const auto truc = std::find_if(ouvrages.trucs.begin(), ouvrages.trucs.end(), [](const Notice& t) {
    return t.nom == "Viandes : les températures à cœur";
  });
  if (truc == ouvrages.trucs.end()) {
    return {"le truc des températures à cœur manque"};
  }
  auto permis = CoeursPermis(truc->texte);
  Desaccords desaccords;
  for (const Viande& viande : viandes) {
    if (std::none_of(ouvrages.recettes.begin(), ouvrages.recettes.end(),
                     [&](const Notice& r) { return ViandeDe(r) == &viande; })) {
      desaccords.push_back(std::string("aucune recette de ") + viande.nom);
    }
  }
  for (const Notice& recette : ouvrages.recettes) {
    const Viande* viande = ViandeDe(recette);
    if (viande == nullptr) {
      continue;
    }
    for (const Etendue& coeur : CoeursDe(recette)) {
      if (!coeur.TientDans(permis[viande])) {
        desaccords.push_back(recette.nom + " : " + coeur.EnTexte() +
                             " à cœur, le truc dit autrement");
      }
    }
  }
  return desaccords;
}

}  // namespace gastrelle::usine
