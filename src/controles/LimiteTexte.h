// The limits of text boxes, in characters.
#pragma once

namespace gastrelle {

inline constexpr int sansLimite = 0;

}  // namespace gastrelle
