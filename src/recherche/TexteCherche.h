// A piece of text that is looked for in others, capitals and small letters alike.
#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <string_view>

namespace gastrelle {

/// Texts are Windows-1252. Accents count.
class TexteCherche {
 public:
  /// `texte` isn't empty.
  explicit TexteCherche(std::string_view texte);

  /// True if the text holds the pattern.
  [[nodiscard]] bool EstDans(std::string_view texte) const;

  /// In bytes.
  [[nodiscard]] std::size_t longueur() const { return cible_.size(); }

 private:
  /// A letter of the pattern: its place in it, and the one or two bytes that write it.
  struct Repere {
    std::size_t place;
    std::array<char, 2> formes;
  };

  [[nodiscard]] Repere RepereA(std::size_t place) const;
  [[nodiscard]] bool Commence(const char* texte) const;
  /// False if the pattern begins at none of the places of a block; True may be wrong.
  [[nodiscard]] bool PeutEtreDans(const char* bloc) const;

  std::string cible_;                ///< in capitals
  std::array<Repere, 2> reperes_{};  ///< its rarest letters, which are looked for first
};

}  // namespace gastrelle
