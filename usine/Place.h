// A place in a source text (Windows-1252), as the rules of typography and of the house look at it.
#pragma once

#include <cstddef>
#include <string_view>

#include "data/Texte1252.h"

namespace gastrelle::usine {

inline bool Parmi(char c, std::string_view caracteres) {
  return caracteres.find(c) != std::string_view::npos;
}

inline bool EstBlanc(char c) {
  return c == ' ' || c == '\n';
}

inline bool EstChiffre(char c) {
  return c >= '0' && c <= '9';
}

inline bool EstLettre(char c) {
  const char capitale = capitale1252[static_cast<unsigned char>(c)];
  return (capitale >= 'A' && capitale <= 'Z') || Parmi(capitale, "\x8C\x9F") ||
         (static_cast<unsigned char>(capitale) >= 0xC0 && !Parmi(capitale, "\xD7\xF7"));
}

/// A text and a place in it, with what stands around. Beyond its ends there are line breaks.
struct Place {
  std::string_view texte;
  std::size_t i;

  [[nodiscard]] char a(std::size_t decalage) const {
    return i + decalage < texte.size() ? texte[i + decalage] : '\n';
  }
  [[nodiscard]] char c() const { return texte[i]; }
  [[nodiscard]] char avant() const { return i > 0 ? texte[i - 1] : '\n'; }
  [[nodiscard]] char apres() const { return a(1); }
  [[nodiscard]] std::string_view suite() const { return texte.substr(i); }
  [[nodiscard]] bool Commence(std::string_view debut) const { return suite().starts_with(debut); }
};

}  // namespace gastrelle::usine
