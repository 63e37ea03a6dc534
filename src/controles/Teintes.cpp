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

}  // namespace

double Contraste(const QColor& une, const QColor& autre) {
  constexpr double eblouissement = 0.05;
  const auto [sombre, claire] = std::minmax({Luminance(une), Luminance(autre)});
  return (claire + eblouissement) / (sombre + eblouissement);
}

QColor Melange(const QColor& une, const QColor& autre, int centiemes) {
  constexpr int cent = 100;
  const auto canal = [&](int a, int b) { return (a * (cent - centiemes) + b * centiemes) / cent; };
  return {canal(une.red(), autre.red()), canal(une.green(), autre.green()),
          canal(une.blue(), autre.blue())};
}

QColor PlusLisible(const QColor& une, const QColor& autre, const QColor& fond) {
  return Contraste(une, fond) > Contraste(autre, fond) ? une : autre;
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
  return PlusLisible(QColor::fromRgb(surSombre), QColor::fromRgb(surClair),
                     palette.color(QPalette::Base));
}

}  // namespace gastrelle
