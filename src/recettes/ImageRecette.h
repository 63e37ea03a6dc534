// Which files may be the picture of a recipe.
#pragma once

#include <string_view>

namespace gastrelle {

enum class GenreImage {
  refuse,      ///< a program, a library, a document, or no extension at all
  affichable,  ///< the program's own viewer shows it
  autre,       ///< only the system's viewer may show it
};

/// By the text behind the last "." of the path, case ignored. A path that ends in "." is refused.
GenreImage GenreDe(std::string_view chemin);

/// The first line of defence, when a path has just been chosen: as above, but a path that ends in
/// "." passes.
bool RefuseeAuChoix(std::string_view chemin);

}  // namespace gastrelle
