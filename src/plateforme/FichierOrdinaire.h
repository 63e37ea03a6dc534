// Opening a file that may be anything, for those who read it by means of their own.
#pragma once

#include <filesystem>

namespace gastrelle {

/// Opens a regular file, or a link to one, for reading. The number of the open file, to be closed
/// by whoever asked; -1 if there is none, or something else: a pipe or a device isn't waited for.
int OuvreFichierOrdinaire(const std::filesystem::path& chemin);

}  // namespace gastrelle
