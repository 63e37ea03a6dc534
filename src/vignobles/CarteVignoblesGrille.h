// What lies where on the map of the vineyards, cell by cell: for the names, which look for room.
#pragma once

#include <vector>

#include <QImage>
#include <QLineF>
#include <QRectF>
#include <QTransform>

namespace gastrelle {

class GrilleCarte {
 public:
  /// `taille`: of the place of the map; `versEcran`: from kilometres to its pixels.
  GrilleCarte(const QSizeF& taille, const QTransform& versEcran);

  /// Does any vineyard reach into a rectangle?
  [[nodiscard]] bool EstLibre(const QRectF& cadre) const;
  /// The part of a rectangle that a vineyard covers, from 0 to 1; below 0 if another one reaches
  /// into it. `rang`: the vineyard's, from 0.
  [[nodiscard]] double PartCouverte(const QRectF& cadre, int rang) const;
  /// How much of a line runs over other vineyards than that one, in pixels.
  [[nodiscard]] double Survol(const QLineF& trait, int rang) const;
  /// The length of shore and border in a rectangle, in pixels.
  [[nodiscard]] double Rivage(const QRectF& cadre) const;

 private:
  /// Sums from the corner, so that any rectangle is counted in four steps.
  using Sommes = std::vector<int>;

  [[nodiscard]] Sommes SommesDe(const QImage& image) const;
  [[nodiscard]] QRect Cellules(const QRectF& cadre) const;
  [[nodiscard]] int Compte(const Sommes& sommes, const QRect& cellules) const;

  double cote_;       ///< of a cell, in pixels
  QImage vignobles_;  ///< 0, or the vineyard's row from 1
  Sommes occupees_;
  Sommes rivages_;
};

}  // namespace gastrelle
