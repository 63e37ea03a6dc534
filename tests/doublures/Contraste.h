// How well letters are told from their paper.
#pragma once

#include <algorithm>
#include <cmath>

#include <QColor>

namespace gastrelle::essai {

/// The contrast of two colours by WCAG 2.1, from 1 to 21.
inline double Contraste(const QColor& une, const QColor& autre) {
  const auto luminance = [](const QColor& couleur) {
    const auto canal = [](double valeur) {
      constexpr double seuil = 0.04045;
      return valeur <= seuil ? valeur / 12.92 : std::pow((valeur + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * canal(couleur.redF()) + 0.7152 * canal(couleur.greenF()) +
           0.0722 * canal(couleur.blueF());
  };
  const auto [sombre, claire] = std::minmax(luminance(une), luminance(autre));
  return (claire + 0.05) / (sombre + 0.05);
}

inline constexpr double contrasteLisible = 4.5;

}  // namespace gastrelle::essai
