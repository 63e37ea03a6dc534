// The files of someone who has written down everything: one family with as many recipes as a folder
// is asked to hold, as many wines and bottles of all of them, as many favourite addresses.
#pragma once

#include <cstddef>
#include <filesystem>

namespace gastrelle::bancs {

/// One less than a header can count.
inline constexpr int nombreRecettes = 32766;
inline constexpr int nombreVins = nombreRecettes;
inline constexpr int nombreFavoris = nombreRecettes;
inline constexpr int nombreFamilles = 50;
inline constexpr std::size_t parTexte =
    1832;  ///< bytes of a recipe in the large book: 60 MB in all

/// Writes `GLR1.DAT` to `GLR4.DAT` into a folder, over those that are there: family 2 and `nombre`
/// recipes of it, each with its text, none with a picture. The same bytes each time.
/// Throws std::runtime_error on a failure.
void EcritGrandeBibliotheque(const std::filesystem::path& dossier, int nombre = nombreRecettes);

/// Writes the same files as a large book: `nombreRecettes` recipes in
/// `nombreFamilles` families from 2 on, each with a text of `parTexte` bytes. Those of a family lie
/// together, or (`melees`) each one has another family than the one before.
void EcritGrandCahier(const std::filesystem::path& dossier, bool melees);

/// Writes `GLV1.DAT` to `GLV3.DAT` in the same way: 27 regions and `nombreVins` wines, each with a
/// note and with bottles in all nine colours.
void EcritGrandeCave(const std::filesystem::path& dossier);

/// Writes `GLFV1.DAT` to `GLFV3.DAT` in the same way: 3 categories and `nombreFavoris` favourites,
/// each with a postal address and notes.
void EcritGrandCarnet(const std::filesystem::path& dossier);

}  // namespace gastrelle::bancs
