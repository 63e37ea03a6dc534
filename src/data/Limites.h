// How much the text boxes take, in characters: on file each is one byte, a line break two.
#pragma once

#include <cstdint>

namespace gastrelle {

/// A title: of a recipe, a family of them, a cheese, a menu, a tip.
inline constexpr int limiteNom = 128;
/// A text of a pool.
inline constexpr std::int32_t limiteTexte = 30000;

}  // namespace gastrelle
