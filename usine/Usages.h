// The ways of the house in the factory texts: one spelling where French has two, one form for
// durations, heats, ages and areas, one voice. What docs/catalogues.md asks of who writes, as far
// as a rule can hold it.
#pragma once

#include <optional>
#include <string_view>

#include "usine/Typographie.h"

namespace gastrelle::usine {

/// The first breach, in a source text (Windows-1252), of the ways in `portees` (bits of `usages`).
std::optional<Faute> FauteUsage(std::string_view texte, unsigned portees);

/// True if a text explains itself after a colon.
bool ExpliqueApresDeuxPoints(std::string_view texte);

}  // namespace gastrelle::usine
