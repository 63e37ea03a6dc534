#include "vignobles/CarteVignoblesFormes.h"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <span>

#include <QPolygonF>

namespace gastrelle {
namespace {

constexpr double rayonTerre = 6371;  ///< kilometres
constexpr Lieu centre{3, 46.5};
constexpr double paralleleSud = 44;
constexpr double paralleleNord = 49;

double Radians(double degres) {
  return degres * std::numbers::pi / 180;
}

double Colatitude(double degres) {
  return std::tan(std::numbers::pi / 4 + Radians(degres) / 2);
}

/// How fast the meridians open, and the size of the cone: the same for every place.
struct Cone {
  double ouverture = std::log(std::cos(Radians(paralleleSud)) / std::cos(Radians(paralleleNord))) /
                     std::log(Colatitude(paralleleNord) / Colatitude(paralleleSud));
  double taille = rayonTerre * std::cos(Radians(paralleleSud)) *
                  std::pow(Colatitude(paralleleSud), ouverture) / ouverture;

  [[nodiscard]] double Rayon(double nord) const {
    return taille / std::pow(Colatitude(nord), ouverture);
  }
};

template <class Trace>
void PourChaqueTrait(std::span<const Lieu> lieux, Trace&& trace) {
  QPolygonF trait;
  for (const Lieu& lieu : lieux) {
    if (lieu.est == leve.est && lieu.nord == leve.nord) {
      trace(trait);
      trait.clear();
    } else {
      trait << Projection(lieu);
    }
  }
  trace(trait);
}

QPolygonF Continent() {
  QPolygonF contour;
  for (const std::span<const Lieu> piece : contourContinent) {
    PourChaqueTrait(piece, [&](const QPolygonF& trait) { contour += trait; });
  }
  return contour;
}

QPainterPath Pays() {
  QPainterPath pays;
  const auto ferme = [&](const QPolygonF& trait) {
    pays.addPolygon(trait);
    pays.closeSubpath();
  };
  ferme(Continent());
  PourChaqueTrait(rivageCorse, ferme);
  PourChaqueTrait(rivageIles, ferme);
  return pays;
}

/// A closed line without corners through all points (Catmull and Rom's).
void AjouteGalbe(QPainterPath& chemin, const QPolygonF& points) {
  const qsizetype nombre = points.size();
  const auto point = [&](qsizetype i) { return points[(i + nombre) % nombre]; };
  constexpr double tension = 6;
  chemin.moveTo(point(0));
  for (qsizetype i = 0; i < nombre; ++i) {
    chemin.cubicTo(point(i) + (point(i + 1) - point(i - 1)) / tension,
                   point(i + 1) - (point(i + 2) - point(i)) / tension, point(i + 1));
  }
  chemin.closeSubpath();
}

/// A line without corners from the first point to the last one.
void AjouteCours(QPainterPath& chemin, const QPolygonF& points) {
  chemin.moveTo(points.first());
  for (qsizetype i = 1; i + 1 < points.size(); ++i) {
    chemin.quadTo(points[i], (points[i] + points[i + 1]) / 2);
  }
  chemin.lineTo(points.last());
}

QPainterPath Aire(const Vignoble& vignoble) {
  QPainterPath aire;
  aire.setFillRule(Qt::WindingFill);
  PourChaqueTrait(vignoble.contours, [&](const QPolygonF& trait) { AjouteGalbe(aire, trait); });
  return aire;
}

FormesCarte Formes() {
  FormesCarte formes{Pays(), {}, {}};
  for (const auto& fleuves :
       {std::span<const Lieu>(fleuvesAtlantique), std::span<const Lieu>(fleuvesManche),
        std::span<const Lieu>(fleuvesRhin), std::span<const Lieu>(fleuvesMediterranee)}) {
    PourChaqueTrait(fleuves, [&](const QPolygonF& trait) { AjouteCours(formes.fleuves, trait); });
  }
  // The later ones lie over the earlier ones: a hillside over the region that it is in.
  QPainterPath couvert;
  for (std::size_t i = vignobles.size(); i-- > 0;) {
    const QPainterPath aire = Aire(vignobles[i]);
    formes.aires[i] = aire.intersected(formes.pays).subtracted(couvert);
    couvert.addPath(aire);
    couvert.setFillRule(Qt::WindingFill);
  }
  return formes;
}

}  // namespace

const FormesCarte& FormesDeLaCarte() {
  static const FormesCarte formes = Formes();
  return formes;
}

QPointF Projection(const Lieu& lieu) {
  static const Cone cone;
  const double rayon = cone.Rayon(lieu.nord);
  const double angle = cone.ouverture * Radians(lieu.est - centre.est);
  return {rayon * std::sin(angle), rayon * std::cos(angle) - cone.Rayon(centre.nord)};
}

QRectF EtendueCarte() {
  return FormesDeLaCarte().pays.boundingRect();
}

}  // namespace gastrelle
