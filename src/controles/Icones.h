// The program's own pictures, rendered from vectors at the build in every size that a screen wants.
#pragma once

#include <QIcon>

namespace gastrelle {

inline constexpr int plusGrandeIcone = 192;
/// The drawings that stand alone on a page, and the emblem, are there in this size as well.
inline constexpr int plusGrandDessin = 384;
/// A window hands its icon in every size to the system, which shows small ones.
inline constexpr int plusGrandeIconeFenetre = 64;

/// The picture of that name, in the sizes up to `auPlus` pixels; an empty one if there is none.
QIcon IconeDe(const QString& nom, int auPlus = plusGrandeIcone);

}  // namespace gastrelle
