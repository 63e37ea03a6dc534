// The cheese catalogue: the list, the reading of a cheese, its addition, change and deletion, and
// the list by milk. A pool is written before the record that points into it, a record before the
// header that counts it. Everything here throws ErreurExecution on a failure, and what was written
// before it stays. Texts are Windows-1252.
#pragma once

#include <array>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>

#include "data/Collation.h"
#include "data/Module1.h"
#include "data/Texte1252.h"
#include "data/Vues.h"

namespace gastrelle {

inline constexpr int limiteRegionFromage = 64;  ///< in characters

/// Number of the last cheese that can't be deleted: those of the factory.
inline constexpr std::int32_t dernierFromageProtege = DernierProtege(Donnees::GLF1);

/// The texts of the codes of a record: the index is the code, 0 is "not stated".
inline constexpr std::array<std::string_view, 4> laitNoms{"?", "Vache", "Chèvre"_1252, "Brebis"};
inline constexpr std::array<std::string_view, 13> moisNoms{
    "?",       "Janvier",   "Février"_1252, "Mars",    "Avril",    "Mai",          "Juin",
    "Juillet", "Août"_1252, "Septembre",    "Octobre", "Novembre", "Décembre"_1252};

/// The entries of a list of codes, each bearing its code.
Liste ListeCodes(std::span<const std::string_view> noms);

/// The cheeses' file must still be there (the user is told when it isn't).
void ExigeFromages(Module1& module);

/// All live cheeses, through the working record; the header's count is then put right.
Liste ListeFromages(Module1& module);

/// The live cheeses of a milk, in the same way but through a record of its own: the working record
/// stays on the cheese on display.
Liste FromagesAuLait(Module1& module, std::int16_t lait);

/// Reads a cheese into the working record, then its notes. The files must still be there (the user
/// is told when one isn't); a code outside its table is a failure.
VueFromage LitFromage(Module1& module, std::int32_t numero);

/// What the user entered for a cheese; all texts are trimmed.
struct FromageSaisi {
  std::string nom;
  std::string region;
  std::int16_t lait = 0;
  std::int16_t premierMois = 0;
  std::int16_t dernierMois = 0;
  std::string notes;
};

/// Puts a new cheese behind the last record. The files must still be there. Returns its number.
std::int32_t AjouteFromage(Module1& module, const FromageSaisi& saisi);

/// Writes the selected cheese anew at its number. The working record must hold it as it was read:
/// the old reference of its notes is taken from there. The files must still be there.
void ChangeFromage(Module1& module, std::int32_t numero, const FromageSaisi& saisi);

/// Deletes a cheese; its notes stay in the pool. The file must still be there.
void SupprimeFromage(Module1& module, std::int32_t numero);

}  // namespace gastrelle
