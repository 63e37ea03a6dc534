// The reading half of the recipe catalogue: families, recipes, the text and the picture of a
// recipe. Lists are built by a full scan in record order; the windows' lists sort them.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "data/Collation.h"
#include "data/Module1.h"

namespace gastrelle {

/// The families' file must still be there (the user is told when it isn't). Throws if it isn't.
void ExigeFamilles(Module1& module);

/// All live families, through the working record. The scan stops at the header's count, or quietly
/// at the last record, repairs nothing and asks for no file. Throws on a failure.
Liste ListeFamilles(Module1& module);

/// The live recipes of a family, through the working record; the header's count is then put right.
/// The file must still be there (the user is told when it isn't). Throws on a failure.
Liste RecettesDeFamille(Module1& module, std::int32_t idFamille);

/// All live recipes, under the same rules.
Liste ToutesRecettes(Module1& module);

/// What a recipe shows.
struct RecetteLue {
  std::string texte;
  bool associee = false;  ///< the record had a picture when it was read
  std::string image;      ///< complete path of the picture, empty when there is none
  /// Path of a picture that is gone, maybe an empty one: its association has been removed.
  std::optional<std::string> imagePerdue;
};

/// Reads a recipe into the working record, then its text and the path of its picture. A picture
/// that is gone loses its association for good: the record is written back without it. The three
/// files must still be there (the user is told when one isn't). Throws on a failure.
RecetteLue LitRecette(Module1& module, std::int32_t numero);

/// The record of a recipe, read beside the working record. The recipes and their texts must still
/// be there (the user is told when they aren't). Throws on a failure.
RecRecette LitEnregistrementRecette(Module1& module, std::int32_t numero);

}  // namespace gastrelle
