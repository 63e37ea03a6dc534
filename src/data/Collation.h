// The alphabetical order of every sorted list: French, case ignored, accents beside their base
// letter, the same on every machine whatever its locale.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace gastrelle {

/// An entry of a list control: what it shows (Windows-1252) and the integer that it bears, the
/// record number of the entry.
struct EntreeListe {
  std::string texte;
  std::int32_t numero = 0;

  bool operator==(const EntreeListe&) const = default;
};

using Liste = std::vector<EntreeListe>;

/// What a text is compared by before its accents: lower case without accents, œ and æ as two
/// letters, the no-break space as a blank. Whatever is no letter stays as it is (Windows-1252).
std::string LettresDeBase(std::string_view texte);

/// Compares first the base letters, case ignored and œ read as oe, then the accents.
/// Negative, 0 or positive, as `std::string_view::compare`.
int CompareFrancais(std::string_view gauche, std::string_view droite);

/// Puts a list in order, in one go; equal texts keep the order in which they stand.
void TrieFrancais(Liste& liste);

/// The place where a single entry goes in a list that is in order: after its equals.
std::size_t PlaceFrancaise(const Liste& liste, std::size_t depuis, std::string_view texte);

}  // namespace gastrelle
