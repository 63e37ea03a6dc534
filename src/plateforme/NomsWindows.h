// What lies under the names of files, and what becomes of the names.
#pragma once

#include <filesystem>
#include <windows.h>

namespace gastrelle {

/// No attributes: nothing lies there.
inline constexpr DWORD absent = INVALID_FILE_ATTRIBUTES;

/// Attributes of what lies under a path, or `absent`, whatever the reason.
[[nodiscard]] DWORD AttributsDe(const std::filesystem::path& chemin);

[[nodiscard]] inline bool EstDossier(DWORD attributs) {
  return attributs != absent && (attributs & FILE_ATTRIBUTE_DIRECTORY) != 0;
}

/// Attributes of what lies under a path; `absent` if nothing does. A name that no file can have
/// finds nothing; one that is too long for any is a failure, and so is a search that fails.
[[nodiscard]] DWORD Nature(const std::filesystem::path& chemin);

/// The failure of the system's last call, which was about a path.
[[noreturn]] void EchoueSur(const std::filesystem::path& chemin);

/// A call about a path that has to succeed, by its answer.
void Exige(BOOL reussi, const std::filesystem::path& chemin);

/// A name beside a file that nobody has: "~" behind it, and a number where somebody has that one.
/// Empty if all are taken.
[[nodiscard]] std::filesystem::path NomProvisoire(const std::filesystem::path& cible);

/// A file that may only be read keeps nobody from taking its name away who may change its folder.
void PermetDeLOter(const std::filesystem::path& chemin);

/// Gives a file another name, also one that another file has. The system's answer.
BOOL Deplace(const std::filesystem::path& chemin, const std::filesystem::path& nouveau);

/// Deletes a file, or a link without what it leads to. The name is free at once, also if another
/// program holds the file open. The system's answer.
BOOL Ote(const std::filesystem::path& chemin);

}  // namespace gastrelle
