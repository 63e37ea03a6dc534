// Colours made for the desktop's palette, light or dark, and how well they can be read.
#pragma once

#include <QColor>
#include <QPalette>

namespace gastrelle {

/// Least contrast of a text and its ground.
inline constexpr double contrasteLisible = 4.5;

/// Contrast of two opaque colours as the accessibility guidelines count it: from 1 (the same) to 21
/// (black and white).
[[nodiscard]] double Contraste(const QColor& une, const QColor& autre);

/// A tone between two colours: so many hundredths of the second one.
[[nodiscard]] QColor Melange(const QColor& une, const QColor& autre, int centiemes);

/// The one of two colours that reads better on a ground.
[[nodiscard]] QColor PlusLisible(const QColor& une, const QColor& autre, const QColor& fond);

/// A tone between a text's colour and its ground's, for what is said in passing: as near to the
/// ground as `contrasteLisible` allows, but no nearer than by a third. The text's colour itself
/// where it hasn't that contrast.
[[nodiscard]] QColor TonDiscret(const QColor& encre, const QColor& fond);

/// The house's raspberry for letters on a palette's paper, `contrasteLisible` against it: light on
/// a dark one.
[[nodiscard]] QColor Framboise(const QPalette& palette);

}  // namespace gastrelle
