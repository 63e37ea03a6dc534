// How long texts are, in characters: on file each is one byte, a line break two.
#pragma once

#include <cstdint>

namespace gastrelle {

/// A title: of a recipe, a family of them, a cheese, a menu, a tip.
inline constexpr int limiteNom = 128;
/// A text of a pool.
inline constexpr std::int32_t limiteTexte = 30000;
/// A path: no system knows a longer one.
inline constexpr std::int32_t limiteChemin = 32767;

}  // namespace gastrelle
