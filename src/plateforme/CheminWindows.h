// A path as the calls of Windows take it.
#pragma once

#include <filesystem>
#include <string>

namespace gastrelle {

/// With the system's own separators. A whole path that is longer than older programs may have one
/// gets the prefix that allows for any length.
inline std::wstring PourLeSysteme(const std::filesystem::path& chemin) {
  constexpr std::size_t court = 240;  // folders have twelve letters less than files
  std::wstring texte = std::filesystem::path(chemin).make_preferred().wstring();
  if (texte.size() < court || !chemin.is_absolute() || texte.starts_with(L"\\\\?\\")) {
    return texte;
  }
  texte = chemin.lexically_normal().make_preferred().wstring();
  const bool dUnServeur = texte.starts_with(L"\\\\");
  return dUnServeur ? L"\\\\?\\UNC\\" + texte.substr(2) : L"\\\\?\\" + texte;
}

}  // namespace gastrelle
