// The plan of the house as checks on a tree of sources: who may include whom, where the toolkit may
// appear, how long a file may be. Each check answers the violations, one line each.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace gastrelle::essai {

using Constats = std::vector<std::string>;

/// Longest file of code, in lines.
inline constexpr std::size_t lignesAuPlus = 600;

/// The floor of a file of `src`, from 1 to 8, by its path in there; 0 for a folder that has none.
int Etage(const std::filesystem::path& fichier);

/// A file of `src` includes a file of a floor above its own, or one that isn't in `src`, or lies in
/// a folder without a floor.
Constats IncluantPlusHaut(const std::filesystem::path& racine);

/// Two folders of floor 3, or of floor 4, include each other.
Constats PiecesQuiSIncluent(const std::filesystem::path& racine);

/// A control or a window base, which serve every window, includes a file of floor 3 or 4: it knows
/// a catalogue.
Constats ControlesAvecCatalogue(const std::filesystem::path& racine);

/// A window, dialog or page names a data file, which is its catalogue's business.
Constats FenetresNommantUnFichier(const std::filesystem::path& racine);

/// A file below floor 5 includes a header of the toolkit.
Constats QtSousLesFenetres(const std::filesystem::path& racine);

/// Rooms of `src`, `usine`, `tests` or `bancs` that include each other in a ring. A room is a
/// header and the source of the same name; a file that includes itself is a ring too.
Constats Cycles(const std::filesystem::path& racine);

/// Files of code of the same four folders with more than `lignesAuPlus` lines.
Constats TropLongs(const std::filesystem::path& racine);

/// Marks of unfinished work in the same files.
Constats Inacheves(const std::filesystem::path& racine);

/// A `.cpp` of `src` that `src/CMakeLists.txt` doesn't name.
Constats NonCompiles(const std::filesystem::path& racine);

}  // namespace gastrelle::essai
