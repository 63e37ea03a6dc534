// What four recipe files hold, read byte by byte without the program's own code, and which places
// of a folder hold a whole library.
#pragma once

#include <array>
#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace gastrelle::essai {

/// A live recipe, with the name of its family; texts as they lie in the files, names without their
/// padding.
struct RecetteLue {
  std::string famille;
  std::string titre;
  std::string texte;
  std::string image;

  bool operator==(const RecetteLue&) const = default;
};

/// The live families and recipes of four files, in the order of their records.
struct RecettesLues {
  std::vector<std::string> familles;
  std::vector<RecetteLue> recettes;

  bool operator==(const RecettesLues&) const = default;
};

/// Families, recipes, texts, picture paths.
using QuatreFichiers = std::array<std::filesystem::path, 4>;

/// `extension` comes behind "GLR1." to "GLR4."; `dossier` is where they lie.
QuatreFichiers QuatreDe(const std::filesystem::path& dossier, const std::string& extension);

/// What four files hold. None if they aren't whole: one is missing, its head is another one's, the
/// count of a header isn't that of its records, a text reaches beyond its pool, or the family of a
/// recipe isn't there.
std::optional<RecettesLues> LitRecettes(const QuatreFichiers& fichiers);

/// The places of a program's folder that hold exactly that library, a blank between them: ".DAT",
/// ".tmp", ".DAT/.tmp" (the .DAT files and, for those that are missing, the .tmp files), "TEMP",
/// "SAUVE". Empty: none holds it.
std::string PlacesTenant(const std::filesystem::path& dossier, const RecettesLues& recettes);

}  // namespace gastrelle::essai
