// The catalogues of titled texts, menus and tips: one set of operations over two pairs of files. A
// pool is written before the record that points into it, a record before the header that counts it.
// Everything here throws ErreurExecution on a failure, and what was written before it stays. Texts
// are Windows-1252. A file that is asked for must still be there: the user is told when it isn't.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "data/Collation.h"
#include "data/Module1.h"

namespace gastrelle {

/// Where a catalogue keeps its records and its texts.
struct FichiersFiches {
  Donnees fiches;
  Donnees textes;
  FichierEnregistrements<RecFiche> Module1::*tampon;
  Reserve Module1::*reserve;
};

inline constexpr FichiersFiches fichiersMenus{Donnees::GLM1, Donnees::GLM2, &Module1::bufMenu,
                                              &Module1::textesMenus};
inline constexpr FichiersFiches fichiersTrucs{Donnees::GLT1, Donnees::GLT2, &Module1::bufTruc,
                                              &Module1::textesTrucs};

/// Asks for the file of the records, and for nothing else.
void ExigeFiches(Module1& module, const FichiersFiches& fichiers);

/// All live records, through the working record; the header's count is then put right. Asks for the
/// file of the records, here and below.
[[nodiscard]] Liste ListeFiches(Module1& module, const FichiersFiches& fichiers);

/// Reads a record into the working record, then its text, of which the first `limiteTexte` bytes
/// count. Asks for the pool too.
[[nodiscard]] std::string LitFiche(Module1& module, const FichiersFiches& fichiers,
                                   std::int32_t numero);

/// Puts a new record behind the last one. Asks for the pool only for a text that isn't empty.
/// Returns the record's number.
std::int32_t AjouteFiche(Module1& module, const FichiersFiches& fichiers, std::string_view titre,
                         std::string_view texte);

/// Writes the selected record anew at its number. The working record must hold it as it was read:
/// the old reference of its text is taken from there.
void ChangeFiche(Module1& module, const FichiersFiches& fichiers, std::int32_t numero,
                 std::string_view titre, std::string_view texte);

/// Deletes a record; its title and its text stay where they are.
void SupprimeFiche(Module1& module, const FichiersFiches& fichiers, std::int32_t numero);

/// True for the records that the factory brought, which can't be deleted.
[[nodiscard]] constexpr bool EstProtegee(const FichiersFiches& fichiers, std::int32_t numero) {
  return numero <= DernierProtege(fichiers.fiches);
}

/// Number of live records, as the header in memory counts them.
[[nodiscard]] inline std::int16_t NombreFiches(Module1& module, const FichiersFiches& fichiers) {
  return (module.*fichiers.tampon).nbActifs();
}

}  // namespace gastrelle
