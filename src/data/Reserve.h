// A text pool: a flat file of bytes, its own name at the head, then texts one after the other with
// nothing between them. The only map of what is alive in it is the set of records that point there.
#pragma once

#include <cstddef>
#include <cstdint>
#include <limits>
#include <memory>
#include <span>
#include <string>
#include <string_view>

#include "plateforme/AccesFichiers.h"

namespace gastrelle {

/// Where a record keeps its reference to a text: the position of the first byte, counted from 1,
/// and the length in bytes. (0, 0) is no text.
struct ReferenceTexte {
  std::int32_t& position;
  std::int32_t& longueur;

  /// The record has no text any more; the pool isn't touched.
  void Efface() const {
    position = 0;
    longueur = 0;
  }
};

class Reserve {
 public:
  static constexpr std::int32_t sansLimite = std::numeric_limits<std::int32_t>::max();
  /// The longest text that is read, in bytes: what a damaged length asks for beyond it is refused
  /// instead of filling the memory.
  static constexpr std::int32_t plafond = std::int32_t{1} << 25;

  explicit Reserve(const std::unique_ptr<Fichier>& place) : place_(place) {}

  /// The first `limite` bytes of a text, or what the file holds of them. Throws for a position
  /// below 1, for a negative length, and when that is more than `plafond`.
  [[nodiscard]] std::string Lit(std::int32_t position, std::int32_t longueur,
                                std::int32_t limite = sansLimite);

  /// Reads a text from its position on into a place of its length, with one call of the disk.
  /// Returns the number of bytes read, which is less at the end of the file. Throws for a position
  /// below 1.
  [[nodiscard]] std::size_t LitDans(std::int32_t position, std::span<char> place);

  /// Puts a non-empty text at the end of the pool; the reference is set before the bytes are
  /// written.
  void Ajoute(ReferenceTexte reference, std::string_view texte);

  /// Replaces a text: emptied, it loses its reference; longer than the old one, it goes to the end;
  /// otherwise it overwrites the old one from its first byte.
  void Remplace(ReferenceTexte reference, std::string_view texte);

  /// Length of the whole pool, in bytes.
  [[nodiscard]] std::int64_t Longueur();

 private:
  void Ecrit(ReferenceTexte reference, std::int64_t position, std::string_view texte);

  const std::unique_ptr<Fichier>& place_;
};

}  // namespace gastrelle
