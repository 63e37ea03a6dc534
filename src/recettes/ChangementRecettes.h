// The writing half of the recipe catalogue. A pool is written before the record that points into
// it, a record before the header that counts it. Records are never moved, their slots never used
// again. Everything here throws ErreurExecution on a failure, and what was written before it stays.
#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>

#include "data/Collation.h"
#include "data/Module1.h"

namespace gastrelle {

inline constexpr int limiteTitre = 128;  ///< of a recipe or a family, in characters

/// The first record of families and of recipes can't be deleted: each file keeps a live record.
inline constexpr std::int32_t numeroProtege = DernierProtege(Donnees::GLR2);
static_assert(numeroProtege == DernierProtege(Donnees::GLR1));

/// What the user entered for a recipe; all texts are trimmed.
struct RecetteSaisie {
  std::int32_t idFamille = 0;
  std::string_view titre;
  std::string_view texte;
  std::string_view image;  ///< as it goes into the pool of picture paths
};

/// Puts a new family behind the last record. Returns its number.
std::int32_t AjouteFamille(Module1& module, std::string_view nom);

/// Puts a new recipe behind the last record. Returns its number.
std::int32_t AjouteRecette(Module1& module, const RecetteSaisie& saisie);

/// Writes a family's new name at its number.
void RenommeFamille(Module1& module, std::int32_t numero, std::string_view nom);

/// Writes the selected recipe anew at its number. The working record must hold it as it was read:
/// the old reference of its text is taken from there. A picture's path is appended whatever it was
/// before.
void ChangeRecette(Module1& module, std::int32_t numero, const RecetteSaisie& saisie);

/// True if `famille`, which isn't the recipe's present one, has a live recipe of that title, case
/// ignored. The working record stays as it is.
[[nodiscard]] bool TitreDansAutreFamille(Module1& module, std::int32_t familleActuelle,
                                         std::int32_t famille, std::string_view titre);

/// Deletes a family and the recipes listed for it.
void SupprimeFamille(Module1& module, std::int32_t numero, std::span<const EntreeListe> recettes);

/// Deletes a recipe.
void SupprimeRecette(Module1& module, std::int32_t numero);

}  // namespace gastrelle
