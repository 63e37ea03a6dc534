#include "controles/Teintes.h"

#include <algorithm>
#include <cmath>

namespace gastrelle {
namespace {

/// Linear light of a channel from 0 to 1.
double Lineaire(double canal) {
  return canal <= 0.04045 ? canal / 12.92 : std::pow((canal + 0.055) / 1.055, 2.4);
}

double Luminance(const QColor& couleur) {
  return 0.2126 * Lineaire(couleur.redF()) + 0.7152 * Lineaire(couleur.greenF()) +
         0.0722 * Lineaire(couleur.blueF());
}

QColor Melange(const QColor& encre, const QColor& fond, int centiemes) {
  constexpr int cent = 100;
  const auto canal = [&](int un, int autre) {
    return (un * (cent - centiemes) + autre * centiemes) / cent;
  };
  return {canal(encre.red(), fond.red()), canal(encre.green(), fond.green()),
          canal(encre.blue(), fond.blue())};
}

}  // namespace

double Contraste(const QColor& une, const QColor& autre) {
  constexpr double eblouissement = 0.05;
  const auto [sombre, claire] = std::minmax({Luminance(une), Luminance(autre)});
  return (claire + eblouissement) / (sombre + eblouissement);
}

QColor TonDiscret(const QColor& encre, const QColor& fond) {
  constexpr int tiers = 33;
  int part = tiers;
  while (part > 0 && Contraste(Melange(encre, fond, part), fond) < contrasteLisible) {
    --part;
  }
  return Melange(encre, fond, part);
}

QColor Framboise(const QPalette& palette) {
  constexpr QRgb surClair = 0xff9d2449;
  constexpr QRgb surSombre = 0xffff9db3;
  const QColor papier = palette.color(QPalette::Base);
  const QColor claire = QColor::fromRgb(surSombre);
  const QColor foncee = QColor::fromRgb(surClair);
  return Contraste(claire, papier) > Contraste(foncee, papier) ? claire : foncee;
}

}  // namespace gastrelle
