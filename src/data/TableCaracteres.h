// The Windows-1252 code page as tables of 256 entries, all computed at compile time.
#pragma once

#include <array>
#include <cstdint>

namespace gastrelle {

/// Unicode code point of each byte. The five bytes that the code page leaves without a character
/// (81, 8D, 8F, 90, 9D) stand for the control character of the same number, so that every byte of a
/// foreign file survives being read, shown and written back.
inline constexpr std::array<char16_t, 256> unicodeDe1252 = [] {
  std::array<char16_t, 256> table{};
  for (unsigned i = 0; i < table.size(); ++i) {
    table[i] = static_cast<char16_t>(i);
  }
  constexpr std::array<char16_t, 32> haut{
      0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
      0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
      0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};
  constexpr unsigned debutHaut = 0x80;
  for (unsigned i = 0; i < haut.size(); ++i) {
    table[debutHaut + i] = haut[i];
  }
  return table;
}();

/// The byte of a code point, or -1 when the code page has none.
constexpr int OctetDe(char32_t code) {
  if (code < 0x80 || (code >= 0xA0 && code <= 0xFF)) {
    return static_cast<int>(code);
  }
  for (unsigned i = 0x80; i < 0xA0; ++i) {
    if (unicodeDe1252[i] == code) {
      return static_cast<int>(i);
    }
  }
  return -1;
}

/// Capital of each byte: the accented letters too, œ to Œ, ÿ to Ÿ, š to Š, ž to Ž.
inline constexpr std::array<char, 256> capitale1252 = [] {
  std::array<char, 256> table{};
  for (unsigned i = 0; i < table.size(); ++i) {
    const bool minuscule =
        (i >= 'a' && i <= 'z') || (i >= 0xE0 && i <= 0xFE && i != 0xF7);  // F7: the division sign
    table[i] = static_cast<char>(minuscule ? i - 0x20 : i);
  }
  table[0x9A] = static_cast<char>(0x8A);
  table[0x9C] = static_cast<char>(0x8C);
  table[0x9E] = static_cast<char>(0x8E);
  table[0xFF] = static_cast<char>(0x9F);
  return table;
}();

}  // namespace gastrelle
