// How much the text boxes take, in characters: on file each is one byte, a line break two.
#pragma once

#include <cstdint>

namespace gastrelle {

/// The name of a record, or its title.
inline constexpr int limiteNom = 128;
/// A text of a pool; of a longer one, only so much is shown.
inline constexpr std::int32_t limiteTexte = 30000;

}  // namespace gastrelle
