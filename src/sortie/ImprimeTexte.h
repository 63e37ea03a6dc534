// Running text on a printer: words wrapped at the width of the page.
#pragma once

#include <string_view>

#include "plateforme/Imprimante.h"

namespace gastrelle {

/// Prints a text, each of its lines from the left margin `marge` (twips) on. CR LF alone ends a
/// line, a blank alone ends a word; a word that is wider than the page runs off its right edge. An
/// empty text prints nothing at all. A font that the printer refuses leaves the one it has. False
/// as soon as the printer fails.
[[nodiscard]] bool ImprimeTexte(Imprimante& imprimante, const Police& police, double marge,
                                std::string_view texte);

}  // namespace gastrelle
