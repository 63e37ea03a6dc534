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

/// The first record of families and of recipes can't be deleted: each file keeps a live record.
inline constexpr std::int32_t numeroProtege = DernierProtege(Donnees::GLR2);
static_assert(numeroProtege == DernierProtege(Donnees::GLR1));

/// What the user entered for a recipe; title and text are trimmed.
struct RecetteSaisie {
  std::int32_t idFamille = 0;
  std::string titre;
  std::string texte;
  std::string image;  ///< as it goes into the pool of picture paths
};

/// Puts a new family behind the last record; their file must still be there. Returns its number.
std::int32_t AjouteFamille(Module1& module, std::string_view nom);

/// The files that AjouteRecette is going to write must still be there (the user is told when one
/// isn't): a pool only if there is a text or a picture to put into it.
void ExigePourAjout(Module1& module, bool avecTexte, bool avecImage);

/// Puts a new recipe behind the last record, after ExigePourAjout. Returns its number.
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

/// Deletes a family and the recipes listed for it. Both files must still be there.
void SupprimeFamille(Module1& module, std::int32_t numero, std::span<const EntreeListe> recettes);

/// Deletes a recipe; its file must still be there.
void SupprimeRecette(Module1& module, std::int32_t numero);

}  // namespace gastrelle
