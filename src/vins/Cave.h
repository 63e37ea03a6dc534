// The cellar: how many bottles of each wine in nine colours, and the note on them. It lies in the
// wines' own records. Everything here throws ErreurExecution on a failure. Texts are Windows-1252.
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "data/Collation.h"
#include "data/Module1.h"
#include "data/Texte1252.h"

namespace gastrelle {

/// A colour: its count in the record, its caption, and what its line of the report begins with,
/// for a wine and for the whole cellar. The lines are 21 characters wide, so that the figures stand
/// under each other.
struct CouleurVin {
  std::int16_t RecVin::*nombre;
  std::string_view titre;
  std::string_view ligne;
  std::string_view ligneDeToutes;
};

/// In the one order that is used everywhere: record, boxes, report.
inline constexpr std::array<CouleurVin, 9> couleursVin{{
    {&RecVin::nbBlanc, "Blanc", ".. Blanc ........... ", ".. BLANC ........... "},
    {&RecVin::nbRouge, "Rouge", ".. Rouge ........... ", ".. ROUGE ........... "},
    {&RecVin::nbRose, "Rosé"_1252, ".. Rosé ............ "_1252, ".. ROSÉ ............ "_1252},
    {&RecVin::nbChampagne, "Champagne", ".. Champagne ....... ", ".. CHAMPAGNE ....... "},
    {&RecVin::nbVinDoux, "Vin doux naturel", ".. Vin doux naturel  ", ".. VIN DOUX NATUREL  "},
    {&RecVin::nbJaune, "Jaune", ".. Jaune ........... ", ".. JAUNE ........... "},
    {&RecVin::nbPaille, "Paille", ".. Paille .......... ", ".. PAILLE .......... "},
    {&RecVin::nbMousseux, "Mousseux", ".. Mousseux ........ ", ".. MOUSSEUX ........ "},
    {&RecVin::nbGris, "Gris", ".. Gris ............ ", ".. GRIS ............ "},
}};

/// Bottles by colour.
using Bouteilles = std::array<std::int16_t, couleursVin.size()>;

/// What a record holds.
Bouteilles BouteillesDe(const RecVin& vin);

/// What the working record holds; no file is read.
Bouteilles BouteillesCourantes(Module1& module);

/// True if every character lies from "0" to "9"; also for an empty text.
[[nodiscard]] bool EstEntier(std::string_view texte);

/// How often the user is told that a text, trimmed and not empty, is no number of bottles: 0 for
/// one that is, from 0 to 32767. A number that isn't whole and is larger than that is told twice.
[[nodiscard]] int RefusDuNombre(std::string_view texte);

/// The number at the head of a text that was accepted. Throws where it doesn't fit its field.
[[nodiscard]] std::int16_t NombreSaisi(std::string_view texte);

/// The files that the cellar is written to must still be there (the user is told when one isn't).
void ExigePourCave(Module1& module);

/// Writes the working record at `numero`, with these bottles and, if it has changed, the note on
/// them (none: it stays as it is). The old reference of the note is taken from the working record,
/// whatever wine it holds.
void EcritCave(Module1& module, std::int32_t numero, const Bouteilles& bouteilles,
               std::optional<std::string_view> notes);

/// The live wines of which there is a bottle, through the working record. The file must still be
/// there (the user is told when it isn't); nothing is repaired.
Liste VinsEnCave(Module1& module);

}  // namespace gastrelle
