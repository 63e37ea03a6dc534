// One name on the map of the vineyards.
#pragma once

#include <cstdint>
#include <string_view>

#include <QFontMetricsF>
#include <QLineF>
#include <QRectF>
#include <QString>

namespace gastrelle {

inline constexpr double bordDuNom = 3;  ///< pixels at either end of a name

/// A text of the map's tables.
[[nodiscard]] QString Lisible(std::u16string_view texte);

/// The room that a name takes.
[[nodiscard]] QSizeF MesureDuNom(const QFontMetricsF& metrique, const QString& texte);

/// A name on the map, in pixels of its place.
struct NomPose {
  std::int32_t numero;  ///< record number of the region
  QString texte;        ///< whole, or its short form
  QRectF cadre;
  QLineF trait;  ///< from the name to its vineyard; null where the name stands on it
};

/// Does one name, or its line, touch the other one's?
[[nodiscard]] bool Gene(const NomPose& un, const NomPose& autre);

}  // namespace gastrelle
