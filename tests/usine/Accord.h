// Where the compiled catalogues speak of the same thing: wines named beside a dish, dishes named in
// a menu, heats and servings told twice. What doesn't agree is told in words.
#pragma once

#include <string>
#include <vector>

#include "usine/Appellations.h"
#include "usine/Notice.h"

namespace gastrelle::usine {

struct Ouvrages {
  std::vector<Notice> recettes;
  std::vector<Notice> menus;
  std::vector<Notice> fromages;
  std::vector<Notice> vins;
  std::vector<Notice> trucs;
};

/// One line for each disagreement: "Réveillon de Noël : pommard à 17 °C, sa fiche dit 16 °C".
using Desaccords = std::vector<std::string>;

/// Wines named in a menu, a cheese or a recipe that have no entry.
Desaccords VinsSansFiche(const Ouvrages& ouvrages, const Appellations& appellations);
/// Wines that they name by a name that isn't among the known ones yet.
Desaccords VinsAConnaitre(const Ouvrages& ouvrages, const Appellations& appellations);
/// Heats of service, told beside a wine, that aren't in a span of its own entry; in the drinks of a
/// menu also those that stand behind no known drink.
Desaccords ChaleursDeService(const Ouvrages& ouvrages, const Appellations& appellations);
/// Dishes of a menu, known by their capital, that aren't the title of a recipe.
Desaccords PlatsSansRecette(const Ouvrages& ouvrages);
/// Dishes whose recipe is for another number of guests than the menu, where the menu doesn't say
/// how to scale it, or scales it wrongly by more than a guest.
Desaccords PartsInegales(const Ouvrages& ouvrages);
/// Recipes that bake in a step before which no oven or grill was lit.
Desaccords FoursFroids(const Ouvrages& ouvrages);
/// Core heats of recipes that the tip on core heats doesn't allow for their meat, nor within the
/// five degrees that a resting roast still gains.
Desaccords CoeursContraires(const Ouvrages& ouvrages);

}  // namespace gastrelle::usine
