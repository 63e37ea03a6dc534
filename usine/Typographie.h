// French typography of the factory texts. The sources are written with plain blanks, which a person
// can see and correct; the compiler makes them the no-break spaces that the screen wants.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace gastrelle::usine {

/// What a text is made of, and so what is examined in it.
struct Forme {
  bool lignes = false;       ///< several lines are allowed
  bool mots = false;         ///< French words: the ligature œ
  bool ponctuation = false;  ///< French sentences: blanks at the punctuation and the units
  unsigned usages = 0;       ///< the ways of the house that it keeps to, from `usages`
};

/// The ways of the house, by the texts that they hold for; a text may be under several.
namespace usages {
inline constexpr unsigned phrase = 1;       ///< every sentence of the catalogues
inline constexpr unsigned portrait = 2;     ///< wines, cheeses, menus: the heats of service
inline constexpr unsigned vin = 4;          ///< wines: ages and areas
inline constexpr unsigned cuisine = 8;      ///< recipes, tips, menus: the oven's thermostat
inline constexpr unsigned fourneau = 16;    ///< recipes, menus: where a heat is mostly the oven's
inline constexpr unsigned recette = 32;     ///< recipes: durations
inline constexpr unsigned ingredient = 64;  ///< one line of an ingredient list
}  // namespace usages

namespace formes {
inline constexpr Forme brut{};  ///< a number, a file, an address on the net
inline constexpr Forme nom{.mots = true};
inline constexpr Forme adresse{.lignes = true, .mots = true};
inline constexpr Forme phrase{.mots = true, .ponctuation = true, .usages = usages::phrase};
inline constexpr Forme prose{
    .lignes = true, .mots = true, .ponctuation = true, .usages = usages::phrase};

/// A form that keeps to further ways of the house.
constexpr Forme Soumet(Forme forme, unsigned portees) {
  forme.usages |= portees;
  return forme;
}
}  // namespace formes

struct Faute {
  std::string raison;        ///< in French, UTF-8
  std::size_t position = 0;  ///< of its first byte in the text
};

/// A text of the sources (Windows-1252, "\n" between its lines) as it goes into a pool: no-break
/// spaces at the double punctuation and inside the quotation marks, CR LF line breaks.
std::string Compose(std::string_view texte);

/// The first fault in the typography of a source text (Windows-1252), if there is one.
std::optional<Faute> FauteTypographique(std::string_view texte, Forme forme);

}  // namespace gastrelle::usine
