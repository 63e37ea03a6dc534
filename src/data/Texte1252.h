// Texts below the windows: `std::string` holding Windows-1252 bytes, one byte a character, as on
// file. Lengths are bytes, always.
#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <string_view>

#include "data/TableCaracteres.h"

namespace gastrelle {

namespace detail {

template <std::size_t N>
struct Litteral {
  // NOLINTNEXTLINE(google-explicit-constructor): a literal operator's parameter converts by itself
  consteval Litteral(const char (&texte)[N]) {
    for (std::size_t i = 0; i < N; ++i) {
      octets[i] = texte[i];
    }
  }
  std::array<char, N> octets{};
};

struct Point {
  char32_t code;
  std::size_t suite;  ///< index of the byte behind the character
};

/// Decodes one character of well-formed UTF-8. A malformed byte yields U+FFFD and is passed over.
constexpr Point LitPoint(std::string_view utf8, std::size_t i) {
  constexpr char32_t invalide = 0xFFFD;
  const auto octet = [&](std::size_t k) { return static_cast<unsigned char>(utf8[k]); };
  const unsigned premier = octet(i);
  if (premier < 0x80) {
    return {premier, i + 1};
  }
  const std::size_t longueur = premier >= 0xF0 ? 4 : premier >= 0xE0 ? 3 : premier >= 0xC2 ? 2 : 0;
  if (longueur == 0 || premier > 0xF4 || i + longueur > utf8.size()) {
    return {invalide, i + 1};
  }
  char32_t code = premier & (0xFFU >> (longueur + 1));
  for (std::size_t k = 1; k < longueur; ++k) {
    if ((octet(i + k) & 0xC0U) != 0x80U) {
      return {invalide, i + 1};
    }
    code = (code << 6U) | (octet(i + k) & 0x3FU);
  }
  constexpr std::array<char32_t, 5> moindre{0, 0, 0x80, 0x800, 0x10000};
  return code < moindre[longueur] ? Point{invalide, i + 1} : Point{code, i + longueur};
}

template <Litteral L>
consteval std::size_t NombreOctets() {
  const std::string_view utf8(L.octets.data(), L.octets.size() - 1);
  std::size_t nombre = 0;
  for (std::size_t i = 0; i < utf8.size(); i = LitPoint(utf8, i).suite) {
    ++nombre;
  }
  return nombre;
}

template <Litteral L>
inline constexpr auto octets1252 = [] {
  constexpr std::size_t nombre = NombreOctets<L>();
  std::array<char, nombre + 1> resultat{};
  const std::string_view utf8(L.octets.data(), L.octets.size() - 1);
  std::size_t n = 0;
  for (std::size_t i = 0; i < utf8.size();) {
    const Point point = LitPoint(utf8, i);
    const int octet = OctetDe(point.code);
    if (octet < 0) {
      throw "this literal holds a character outside Windows-1252";
    }
    resultat[n++] = static_cast<char>(octet);
    i = point.suite;
  }
  return resultat;
}();

}  // namespace detail

inline namespace litteraux {

/// `"Rosé"_1252`: the bytes of a literal, converted at compile time. A character that the code page
/// doesn't hold fails to compile. The result is followed by a zero byte.
template <detail::Litteral L>
consteval std::string_view operator""_1252() {
  constexpr const auto& octets = detail::octets1252<L>;
  return {octets.data(), octets.size() - 1};
}

}  // namespace litteraux

/// Without the blanks (0x20, and they alone) at both ends.
constexpr std::string_view Rogne(std::string_view texte) {
  const std::size_t debut = texte.find_first_not_of(' ');
  if (debut == std::string_view::npos) {
    return {};
  }
  return texte.substr(debut, texte.find_last_not_of(' ') - debut + 1);
}

/// Without the blanks at the right end.
constexpr std::string_view RogneDroite(std::string_view texte) {
  return texte.substr(0, texte.find_last_not_of(' ') + 1);
}

/// In capitals, byte by byte; the length never changes.
std::string Majuscules(std::string_view texte);

/// To UTF-8, byte by byte.
std::string VersUtf8(std::string_view texte);

/// From UTF-8 in composed form. Each character that the code page doesn't hold becomes "?".
std::string DepuisUtf8(std::string_view utf8);

/// True if DepuisUtf8 would lose nothing.
bool TientEn1252(std::string_view utf8);

}  // namespace gastrelle
