// The recipe files of someone who has written down everything: one family with as many recipes as a
// folder is asked to hold.
#pragma once

#include <filesystem>

namespace gastrelle::bancs {

/// One less than a header can count.
inline constexpr int nombreRecettes = 32766;

/// Writes `GLR1.DAT` to `GLR4.DAT` into a folder, over those that are there: family 2 and `nombre`
/// recipes of it, each with its text, none with a picture. The same bytes each time.
/// Throws std::runtime_error on a failure.
void EcritGrandeBibliotheque(const std::filesystem::path& dossier, int nombre = nombreRecettes);

}  // namespace gastrelle::bancs
