// What a text of the files costs in memory on the screen, before it is put there. Most texts cost a
// few bytes a character; a text of nothing but line ends costs two hundred times as much.
#pragma once

#include <cstdint>
#include <string_view>

namespace gastrelle {

/// Most that a text may cost, in bytes.
inline constexpr std::int64_t plafondMemoireTexte = 200'000'000;

/// About how many bytes of memory a text (Windows-1252) costs once it stands in the three boxes of
/// a window that show it (list, change, deletion), while one of them breaks its lines.
[[nodiscard]] std::int64_t MemoireDeTexte(std::string_view texte);

/// True if the text holds a word that is longer than anybody can type. To find its line ends the
/// toolkit would read such a word again for every line.
[[nodiscard]] bool TientUnMotSansFin(std::string_view texte);

}  // namespace gastrelle
