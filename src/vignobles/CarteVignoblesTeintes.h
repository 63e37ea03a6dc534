// The colours of the map of the vineyards, mixed from the desktop's palette.
#pragma once

#include <array>

#include <QColor>
#include <QPalette>

namespace gastrelle {

struct TeintesCarte {
  QColor mer;
  QColor cote;  ///< the water at the shore
  QColor terre;
  QColor trait;  ///< shore and borders
  QColor fleuve;
  QColor encre;     ///< of the names: readable on all grounds here
  QColor discrete;  ///< of the towns: readable on `terre` and `mer`
  std::array<QColor, 6> aires;
  std::array<QColor, 6> bords;  ///< of the areas, and the area itself once it is brought out
};

[[nodiscard]] TeintesCarte TeintesDeLaCarte(const QPalette& palette);

}  // namespace gastrelle
