// The shapes of the map of the vineyards, in kilometres.
#pragma once

#include <array>

#include <QPainterPath>

#include "vignobles/TraceVignobles.h"

namespace gastrelle {

/// Everything is in one projection (Lambert's conic one, as on the maps of the country): kilometres
/// to the right of the meridian 3° E, kilometres downwards from 46.5° N.
struct FormesCarte {
  QPainterPath pays;     ///< closed
  QPainterPath fleuves;  ///< lines
  /// In the order of `vignobles`. None lies over another one, all lie in the country.
  std::array<QPainterPath, vignobles.size()> aires;
};

/// Made at the first call.
const FormesCarte& FormesDeLaCarte();

[[nodiscard]] QPointF Projection(const Lieu& lieu);

/// What the map must have room for.
[[nodiscard]] QRectF EtendueCarte();

}  // namespace gastrelle
