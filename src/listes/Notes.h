// The notes: a plain text file beside the program, which any editor opens and which may be absent.
#pragma once

#include <string>
#include <string_view>

#include "data/Module1.h"

namespace gastrelle {

/// The file, in the program's folder.
inline constexpr std::string_view fichierNotes = "MesNotes.txt";

/// The text of the file (Windows-1252), CR LF between its lines, whatever ended them in the file.
/// Blank lines at its head are dropped, the last line end isn't kept. Empty when the file isn't
/// there. Throws on a failure, and for a file that is longer than a text may be
/// (`Reserve::plafond`).
[[nodiscard]] std::string LitNotes(Module1& module);

/// Puts a text (Windows-1252) in the place of the file, with one CR LF behind it; an empty one
/// leaves no file. A step that fails is passed over without a word.
void EcritNotes(Module1& module, std::string_view texte);

}  // namespace gastrelle
