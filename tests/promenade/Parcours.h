// Where the walk leads.
#pragma once

#include "promenade/Trajet.h"

namespace gastrelle::essai {

/// The whole walk, from the first start in a folder without data files to the end with its backup.
Trajet ToutLeTrajet();

/// Its parts, in their order. The start restores every file and opens the recipes.
void Commence(Trajet& trajet);
/// Every window, on each of its tabs.
void OuvreTout(Trajet& trajet);
/// A recipe with a picture, changed; one that goes again; a family.
void TientLesRecettes(Trajet& trajet);
/// Notes, shopping list, cellar, preferences.
void TientLaMaison(Trajet& trajet);
/// Help, printed page, document.
void Consulte(Trajet& trajet);
/// The end with the backup.
void Termine(Trajet& trajet);

}  // namespace gastrelle::essai
