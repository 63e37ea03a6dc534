// The colours of our own, on the paper that they stand on.
#pragma once

#include <QColor>
#include <QPalette>

namespace gastrelle {

/// The house's raspberry for letters on a palette's paper, at least 4.5 to 1 against it: light on a
/// dark one.
inline QColor Framboise(const QPalette& palette) {
  constexpr int milieu = 128;
  constexpr QRgb surClair = 0xff9d2449;
  constexpr QRgb surSombre = 0xffff9db3;
  return QColor::fromRgb(palette.color(QPalette::Base).lightness() < milieu ? surSombre : surClair);
}

}  // namespace gastrelle
