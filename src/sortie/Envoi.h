// Handing what a window shows to the program that the system associates with its kind of document.
#pragma once

#include <cstdint>
#include <string>

#include "data/Module1.h"
#include "data/Vues.h"

namespace gastrelle {

/// The two commands that send: to the notepad as "txt", to the word processor as "doc".
enum class Extension : std::uint8_t { txt, doc };

/// Writes the document of a view and has it opened. The user is told of a choice that misses (by a
/// beep), of a document that can't be written, which is also said of a view that has none, and of
/// a kind of document that no program is associated with; all else passes in silence. The document
/// stays in the program's folder.
void EnvoieDocument(Module1& module, const Vue& vue, Extension extension);

// The ends that sending shares with whatever else hands over a document.

/// Has a file of the program's folder opened; a missing association alone is told.
void OuvreDocument(Module1& module, const std::string& nom, Extension extension);
/// Tells that a document couldn't be written.
void AnnonceNonCree(Module1& module, Extension extension);

}  // namespace gastrelle
