// What stands out in a line of a recipe, a menu or a tip: its headings, the words before a colon,
// the numbers and dashes of its lists. The text itself is left alone.
#pragma once

#include <cstdint>
#include <optional>

#include <QStringView>

namespace gastrelle {

enum class Trait : std::uint8_t {
  titre,   ///< a line that is just a heading: "Ingrédients", "Étapes"
  cle,     ///< what is told about: "Cuisson" in "Cuisson : 20 min", "Pour 4 personnes"
  marque,  ///< what a line of a list begins with: "1.", "-"
};

/// A passage from the start of a line on, in UTF-16 units.
struct PassageTrait {
  Trait trait;
  qsizetype debut;
  qsizetype longueur;
};

/// What stands out in a line; nothing in most. Only the head of a long line is looked at.
std::optional<PassageTrait> TraitDeLigne(QStringView ligne);

}  // namespace gastrelle
