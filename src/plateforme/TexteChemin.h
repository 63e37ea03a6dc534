// Paths as texts in UTF-8, whatever the system takes a narrow text for.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace gastrelle {

inline std::filesystem::path CheminDe(std::string_view texte) {
  return {std::u8string(texte.begin(), texte.end())};
}

/// With the system's own separators, as they stand in the path.
inline std::string EnUtf8(const std::filesystem::path& chemin) {
  const std::u8string texte = chemin.u8string();
  return {texte.begin(), texte.end()};
}

}  // namespace gastrelle
