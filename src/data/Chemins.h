// The program's folder as a text, and the paths of recipe pictures in the pool.
#pragma once

#include <string>
#include <string_view>

namespace gastrelle {

enum class Convention {
  posix,    ///< "/" between folders, case kept
  windows,  ///< "\" between folders, drive letters, the program's folder in capitals
};

#ifdef _WIN32
inline constexpr Convention conventionDuSysteme = Convention::windows;
#else
inline constexpr Convention conventionDuSysteme = Convention::posix;
#endif

class Chemins {
 public:
  /// `dossier`: the program's folder, with or without the separator at its end (Windows-1252).
  Chemins(Convention convention, std::string_view dossier);

  /// The folder with its separator at the end: what messages show and pictures are compared with.
  [[nodiscard]] const std::string& cheminAppli() const { return cheminAppli_; }

  /// A bare file name behind the program's folder.
  [[nodiscard]] std::string De(std::string_view nom) const;

  /// True on the drives A: and B:. A path without a drive letter is never a floppy disk.
  [[nodiscard]] bool EstDisquette() const;

  /// What the picture pool stores for a path: "/" and the bare name for a file that lies directly
  /// in the picture folder, the whole path otherwise.
  [[nodiscard]] std::string FormeCourte(std::string_view chemin) const;

  /// The path behind a text of the picture pool.
  [[nodiscard]] std::string Developpe(std::string_view texte) const;

  /// What follows the program's folder in a path, or empty if the path leads elsewhere.
  [[nodiscard]] std::string_view Relatif(std::string_view chemin) const;

 private:
  [[nodiscard]] char separateur() const { return convention_ == Convention::windows ? '\\' : '/'; }

  Convention convention_;
  std::string cheminAppli_;
};

}  // namespace gastrelle
