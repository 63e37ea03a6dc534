#include "vignobles/CarteVignoblesEtiquette.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace gastrelle {
namespace {

bool Traverse(const QLineF& trait, const QRectF& cadre) {
  if (trait.isNull()) {
    return false;
  }
  const QRectF autour = QRectF(trait.p1(), trait.p2()).normalized().adjusted(-1, -1, 1, 1);
  if (!autour.intersects(cadre)) {
    return false;
  }
  if (cadre.contains(trait.p1()) || cadre.contains(trait.p2())) {
    return true;
  }
  const std::array<QLineF, 2> diagonales{QLineF(cadre.topLeft(), cadre.bottomRight()),
                                         QLineF(cadre.topRight(), cadre.bottomLeft())};
  return std::any_of(diagonales.begin(), diagonales.end(), [&](const QLineF& diagonale) {
    return trait.intersects(diagonale, nullptr) == QLineF::BoundedIntersection;
  });
}

}  // namespace

QString Lisible(std::u16string_view texte) {
  return QString::fromUtf16(texte.data(), static_cast<qsizetype>(texte.size()));
}

QSizeF MesureDuNom(const QFontMetricsF& metrique, const QString& texte) {
  return {std::ceil(metrique.horizontalAdvance(texte)) + 2 * bordDuNom, metrique.height()};
}

bool Gene(const NomPose& un, const NomPose& autre) {
  const auto autour = [](const QRectF& cadre) { return cadre.adjusted(-1, 0, 1, 0); };
  return un.cadre.intersects(autour(autre.cadre)) || Traverse(un.trait, autour(autre.cadre)) ||
         Traverse(autre.trait, autour(un.cadre)) ||
         (!un.trait.isNull() && !autre.trait.isNull() &&
          un.trait.intersects(autre.trait, nullptr) == QLineF::BoundedIntersection);
}

}  // namespace gastrelle
