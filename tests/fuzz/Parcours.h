// One life of the program on the folder of an input: the start, every list, every recipe, cheese,
// menu, tip, wine and favourite, the cellar, the changes of the wines and the favourites, the notes
// and the aisle texts and their rewriting, the export, some searches, the measure of the dead
// space, the backup, then the cleaning, the emptying and the reinitialising of the recipes.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "data/Collation.h"

namespace gastrelle::essai {

/// What was read of a catalogue beside the recipes.
struct Lus {
  Liste liste;
  std::vector<std::string> textes;  ///< of the entries of `liste` that could be read
};

/// How far it got. A failure of one step doesn't keep the next one from being tried.
struct Bilan {
  bool cadre = false;      ///< the start got to the frame
  std::optional<int> fin;  ///< the end of the program, with its status
  Liste familles;
  Liste recettes;
  std::vector<std::string> textes;  ///< of the recipes of `recettes` that could be read
  std::vector<std::string> images;  ///< the pictures that were found
  Lus fromages;
  Lus menus;
  Lus trucs;
  Liste regions;
  Lus vins;                       ///< their notes, then their notes on the cellar
  std::vector<std::string> cave;  ///< the report
  bool vinPasse = false;          ///< one was added, changed, and deleted with its region
  std::size_t vinsChanges = 0;    ///< those of the input that were changed and deleted
  Liste categories;
  Lus favoris;                        ///< their addresses, then their notes
  bool favoriPasse = false;           ///< one was added and changed, and its category deleted
  std::size_t favorisChanges = 0;     ///< those of the input that were changed and deleted
  bool exporte = false;               ///< all recipes are in a document
  std::vector<std::string> trouvees;  ///< titles that the searches came upon
  std::size_t pannes = 0;             ///< steps that ended in an ErreurExecution
  std::string notes;
  std::size_t rayons = 0;  ///< aisles with a text
  bool copie = false;      ///< the backup was made
  bool nettoye = false;    ///< the recipe files were cleaned
  bool videe = false;      ///< a single recipe was left
  bool restauree = false;  ///< the recipes of the factory came back
  std::vector<std::string> messages;
};

/// Only ErreurExecution and the end of the program are accepted on the way: any other exception,
/// and a std::logic_error for a result that contradicts the files, for a message that the program
/// doesn't know or for a trace where it has nothing to do (`DossierReel`), goes through.
Bilan Parcourt(std::string_view entree);

}  // namespace gastrelle::essai
