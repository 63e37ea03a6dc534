// Room for files that are too large to be taken for granted.
#pragma once

#include <cstdint>
#include <filesystem>
#include <string>

namespace gastrelle::bancs {

/// The temporary files of the process go to a folder from now on.
void PoseDossierTemporaire(const std::filesystem::path& dossier);

/// True if a folder's disk has room for that many bytes and some more. Otherwise a line of the
/// table says what isn't measured.
[[nodiscard]] bool APlace(const std::filesystem::path& dossier, std::int64_t octets,
                          const std::string& mesure);

}  // namespace gastrelle::bancs
