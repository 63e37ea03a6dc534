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

/// How the recipes of a large book lie in their files.
struct GrandCahier {
  std::size_t parTexte = 1832;  ///< bytes of each text: 60 MB in all
  bool melees = false;          ///< each recipe has another family than the one before
  bool eparses = false;         ///< each text lies far from the one before
  int mortesParCent = 0;        ///< recipes that are deleted
};

/// Bytes of each text of a book that has 1 GiB of them.
inline constexpr std::size_t parLongTexte = (std::size_t{1} << 30) / nombreRecettes + 1;

/// Writes `GLR1.DAT` to `GLR4.DAT` into a folder, over those that are there: family 2 and `nombre`
/// recipes of it, each with its text, none with a picture. The same bytes each time.
/// Throws std::runtime_error on a failure.
void EcritGrandeBibliotheque(const std::filesystem::path& dossier, int nombre = nombreRecettes);

/// Writes the same files as a large book: `nombreRecettes` recipes in `nombreFamilles` families
/// from 2 on. Those of a family lie together unless they are `melees`.
void EcritGrandCahier(const std::filesystem::path& dossier, const GrandCahier& cahier);

/// Writes `GLV1.DAT` to `GLV3.DAT` in the same way: 27 regions and `nombreVins` wines, each with a
/// note and with bottles in all nine colours.
void EcritGrandeCave(const std::filesystem::path& dossier);

/// Writes `GLFV1.DAT` to `GLFV3.DAT` in the same way: 3 categories and `nombreFavoris` favourites,
/// each with a postal address and notes.
void EcritGrandCarnet(const std::filesystem::path& dossier);

}  // namespace gastrelle::bancs
