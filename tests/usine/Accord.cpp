#include "usine/Accord.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <optional>
#include <regex>
#include <set>

#include "data/Texte1252.h"
#include "usine/Place.h"

namespace gastrelle::usine {
namespace {

/// A name as names are compared: capitals, a blank for each hyphen and apostrophe.
std::string Reduit(std::string_view utf8) {
  std::string nom = Majuscules(DepuisUtf8(utf8));
  std::replace_if(
      nom.begin(), nom.end(), [](char c) { return c == '-' || c == '\'' || c == '\n'; }, ' ');
  return nom;
}

std::vector<std::string> Lignes(const std::string& texte) {
  std::vector<std::string> lignes;
  for (std::size_t debut = 0; debut <= texte.size();) {
    const std::size_t fin = std::min(texte.find('\n', debut), texte.size());
    lignes.push_back(texte.substr(debut, fin - debut));
    debut = fin + 1;
  }
  return lignes;
}

/// All matches of an expression in a text, from left to right.
std::vector<std::smatch> Toutes(const std::string& texte, const std::regex& expression) {
  return {std::sregex_iterator(texte.begin(), texte.end(), expression), std::sregex_iterator()};
}

struct Etendue {
  int de;
  int a;
};

/// What an expression of one number, or of two, has read.
Etendue Lue(const std::smatch& lue) {
  const int premiere = std::stoi(lue[1]);
  return {premiere, lue[2].matched ? std::stoi(lue[2]) : premiere};
}

/// "14 °C", "12-14 °C", "entre 12 et 14 °C", "12 à 14 °C".
const std::regex& Degres() {
  static const std::regex degres("([0-9]+)(?:(?:-| et | à )([0-9]+))? °C");
  return degres;
}

std::vector<Etendue> Chaleurs(const std::string& texte) {
  std::vector<Etendue> etendues;
  for (const std::smatch& lue : Toutes(texte, Degres())) {
    etendues.push_back(Lue(lue));
  }
  return etendues;
}

/// The pieces of a text between any of some characters, each with the one that ends it.
std::vector<std::string> Morceaux(const std::string& texte, const char* coupures) {
  std::vector<std::string> morceaux;
  for (std::size_t debut = 0; debut < texte.size();) {
    const std::size_t fin = std::min(texte.find_first_of(coupures, debut), texte.size() - 1) + 1;
    morceaux.push_back(texte.substr(debut, fin - debut));
    debut = fin;
  }
  return morceaux;
}

/// How many guests a text begins with: "Pour 6 personnes".
std::optional<int> Convives(const std::string& texte) {
  static const std::regex debut("^Pour ([0-9]+)( à [0-9]+)? (personne|convive)");
  std::smatch lu;
  return std::regex_search(texte, lu, debut) ? std::optional(std::stoi(lu[1])) : std::nullopt;
}

/// What is told of a meal before the order of its work, and only the lines that serve something.
std::vector<std::string> Services(const Notice& menu) {
  const std::string repas = menu.texte.substr(0, menu.texte.find("\nOrganisation"));
  std::vector<std::string> services;
  for (const std::string& ligne : Lignes(repas)) {
    if (ligne.find(" : ") != std::string::npos && !Convives(ligne)) {
      services.push_back(ligne);
    }
  }
  return services;
}

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

std::vector<std::string> Etapes(const Notice& recette) {
  static const std::regex numero("^[0-9]+\\. .*");
  std::vector<std::string> etapes = Lignes(recette.texte);
  std::erase_if(etapes, [](const std::string& ligne) { return !std::regex_match(ligne, numero); });
  return etapes;
}

bool Dit(const std::string& texte, std::initializer_list<const char*> tours) {
  return std::any_of(tours.begin(), tours.end(),
                     [&](const char* tour) { return texte.find(tour) != std::string::npos; });
}

}  // namespace

Appellations::Appellations(const std::vector<std::string>& connues,
                           const std::vector<Notice>& vins) {
  for (const Notice& vin : vins) {
    fiches_.emplace(Reduit(vin.nom), &vin);
  }
  for (const std::string& ligne : connues) {
    const std::size_t egal = ligne.find(" = ");
    const std::string fiche = Reduit(egal == std::string::npos ? ligne : ligne.substr(egal + 3));
    const auto place = fiches_.find(fiche);
    const std::string nom = Reduit(ligne.substr(0, egal));
    fiches_.emplace(nom, place == fiches_.end() ? nullptr : place->second);
    connues_.insert(nom);
  }
}

std::vector<Appellations::Citation> Appellations::Dans(std::string_view texte) const {
  const std::string reduit = Reduit(texte);
  std::vector<Citation> citations;
  for (std::size_t i = 0; i < reduit.size();) {
    const bool debut = EstLettre(reduit[i]) && (i == 0 || !EstLettre(reduit[i - 1]));
    const std::string tete = reduit.substr(i, 2);  // the names that begin with it lie together
    std::size_t longueur = 0;
    for (auto place = debut ? fiches_.lower_bound(tete) : fiches_.end();
         place != fiches_.end() && place->first.starts_with(tete); ++place) {
      const std::string& nom = place->first;
      const bool entier = i + nom.size() >= reduit.size() || !EstLettre(reduit[i + nom.size()]);
      if (nom.size() > longueur && entier && reduit.compare(i, nom.size(), nom) == 0) {
        longueur = nom.size();
      }
    }
    if (longueur > 0) {
      const std::string nom = reduit.substr(i, longueur);
      citations.push_back({VersUtf8(nom), fiches_.at(nom), connues_.contains(nom)});
    }
    i += std::max<std::size_t>(longueur, 1);
  }
  return citations;
}

namespace {

/// Goes through the wines named in the menus, the cheeses and the recipes.
template <class Fonction>
void PourChaqueCitation(const Ouvrages& ouvrages, const Appellations& appellations,
                        Fonction&& fonction) {
  for (const auto* catalogue : {&ouvrages.menus, &ouvrages.fromages, &ouvrages.recettes}) {
    for (const Notice& notice : *catalogue) {
      for (const Appellations::Citation& citation : appellations.Dans(notice.texte)) {
        fonction(notice, citation);
      }
    }
  }
}

}  // namespace

Desaccords VinsSansFiche(const Ouvrages& ouvrages, const Appellations& appellations) {
  Desaccords desaccords;
  PourChaqueCitation(ouvrages, appellations, [&](const Notice& notice, const auto& citation) {
    if (citation.fiche == nullptr) {
      desaccords.push_back(notice.nom + " : " + citation.nom + " n'a pas de fiche");
    }
  });
  return desaccords;
}

Desaccords VinsAConnaitre(const Ouvrages& ouvrages, const Appellations& appellations) {
  std::set<std::string> noms;
  PourChaqueCitation(ouvrages, appellations, [&](const Notice& /*notice*/, const auto& citation) {
    if (!citation.connue) {
      noms.insert(citation.nom);
    }
  });
  return {noms.begin(), noms.end()};
}

namespace {

/// One heat told in a text, and the words before it since the last one, on its line.
struct ChaleurDite {
  Etendue etendue;
  std::string avant;
};

std::vector<ChaleurDite> ChaleursDites(const std::string& ligne) {
  std::vector<ChaleurDite> dites;
  std::size_t debut = 0;
  for (const std::smatch& lue : Toutes(ligne, Degres())) {
    const auto place = static_cast<std::size_t>(lue.position());
    dites.push_back({Lue(lue), ligne.substr(debut, place - debut)});
    debut = place + static_cast<std::size_t>(lue.length());
  }
  return dites;
}

std::string EnTexte(const Etendue& etendue) {
  return std::to_string(etendue.de) +
         (etendue.a > etendue.de ? "-" + std::to_string(etendue.a) : "") + " °C";
}

void CompareChaleur(const Notice& notice, const ChaleurDite& dite, const Appellations& appellations,
                    Desaccords& desaccords) {
  for (const Appellations::Citation& citation : appellations.Dans(dite.avant)) {
    const std::vector<Etendue> siennes =
        citation.fiche == nullptr ? std::vector<Etendue>{} : Chaleurs(citation.fiche->texte);
    const bool convient = std::any_of(siennes.begin(), siennes.end(), [&](const Etendue& sienne) {
      return sienne.de <= dite.etendue.de && dite.etendue.a <= sienne.a;
    });
    if (!convient) {
      desaccords.push_back(notice.nom + " : " + citation.nom + " à " + EnTexte(dite.etendue) +
                           ", sa fiche dit autrement");
    }
  }
}

}  // namespace

Desaccords ChaleursDeService(const Ouvrages& ouvrages, const Appellations& appellations) {
  static const std::regex boissons("(Vins?|Boissons?) : .*");
  constexpr int plusChaudQueToutVin = 20;
  Desaccords desaccords;
  for (const Notice& menu : ouvrages.menus) {
    for (const std::string& service : Services(menu)) {
      std::smatch lues;
      const std::string bues = std::regex_search(service, lues, boissons) ? lues[0] : std::string();
      for (const ChaleurDite& dite : ChaleursDites(bues)) {
        if (appellations.Dans(dite.avant).empty() &&
            !Dit(dite.avant, {"cidre", "poiré", "bière", "porto", "xérès", "madère", "même"})) {
          desaccords.push_back(menu.nom + " : rien de connu à " + EnTexte(dite.etendue) +
                               " dans [" + dite.avant + "]");
        }
        CompareChaleur(menu, dite, appellations, desaccords);
      }
    }
  }
  for (const auto* catalogue : {&ouvrages.fromages, &ouvrages.recettes}) {
    for (const Notice& notice : *catalogue) {
      for (const std::string& phrase : Morceaux(notice.texte, ".\n")) {
        for (const ChaleurDite& dite : ChaleursDites(phrase)) {
          if (dite.etendue.a <= plusChaudQueToutVin) {
            CompareChaleur(notice, dite, appellations, desaccords);
          }
        }
      }
    }
  }
  return desaccords;
}

namespace {

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
      const std::vector<Etendue>& dites = permis[viande];
      const bool convient = std::any_of(dites.begin(), dites.end(), [&](const Etendue& dite) {
        return dite.de <= coeur.de && coeur.a <= dite.a;
      });
      if (!convient) {
        desaccords.push_back(recette.nom + " : " + EnTexte(coeur) +
                             " à cœur, le truc dit autrement");
      }
    }
  }
  return desaccords;
}

}  // namespace gastrelle::usine
