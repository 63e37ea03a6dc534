// The search for the places of the names on the map of the vineyards, at one size of the map.
#pragma once

#include <array>
#include <string_view>
#include <vector>

#include <QFont>
#include <QFontMetricsF>

#include "vignobles/CarteVignoblesEtiquette.h"
#include "vignobles/CarteVignoblesGrille.h"
#include "vignobles/TraceVignobles.h"

namespace gastrelle {

class PlacementNoms {
 public:
  /// `taille`: of the place of the map; `police`: in bold, which needs most room; `versEcran`: from
  /// kilometres to pixels.
  PlacementNoms(const QSizeF& taille, const QFont& police, const QTransform& versEcran);

  /// The names, in the order of the record numbers, those missing for which there is no room: all
  /// by their short forms, or whole where that costs little.
  [[nodiscard]] std::vector<NomPose> Noms(bool abreges);

  [[nodiscard]] const GrilleCarte& grille() const { return grille_; }

 private:
  static constexpr std::size_t nombre = vignobles.size();

  /// A place that a name could have, and what it costs, in heights of a line.
  struct Candidat {
    NomPose nom;
    double cout;
  };
  using Choix = const Candidat*;

  void Cherche(std::size_t rang, bool abreges);
  void ChercheForme(std::size_t rang, std::u16string_view forme, double supplement);
  void Considere(std::size_t rang, const NomPose& nom, double supplement);
  [[nodiscard]] double CoutAuLarge(const NomPose& nom, int rang) const;
  void OrdonneParGene();
  void Pose();
  bool Ameliore();
  bool AmelioreUn(std::size_t rang);
  bool Deloge(std::size_t rang, Choix voulu, std::size_t occupant);
  [[nodiscard]] Choix Meilleur(std::size_t rang) const;
  [[nodiscard]] std::vector<std::size_t> Genes(const NomPose& nom, std::size_t rang) const;
  [[nodiscard]] double Cout(std::size_t rang) const;

  QRectF place_;
  QFontMetricsF metrique_;
  double hauteur_;
  GrilleCarte grille_;
  std::array<QPointF, nombre> points_;
  std::array<std::vector<Candidat>, nombre> candidats_;
  std::array<std::size_t, nombre> ordre_{};
  std::array<Choix, nombre> choisis_{};
};

}  // namespace gastrelle
