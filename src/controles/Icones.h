// The program's own pictures, rendered from vectors at the build in every size that a screen wants.
#pragma once

#include <QIcon>

namespace gastrelle {

inline constexpr int plusGrandeIcone = 192;
/// A window hands its icon in every size to the system, which shows small ones.
inline constexpr int plusGrandeIconeFenetre = 64;

/// The picture of that name, in the sizes up to `auPlus` pixels; an empty one if there is none.
QIcon IconeDe(const QString& nom, int auPlus = plusGrandeIcone);

}  // namespace gastrelle
