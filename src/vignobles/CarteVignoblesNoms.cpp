#include "vignobles/CarteVignoblesNoms.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "vignobles/CarteVignoblesFormes.h"
#include "vignobles/CarteVignoblesPlacement.h"

namespace gastrelle {
namespace {

constexpr double marge = 10;  ///< pixels between the country and the edge

QFont Grasse(QFont police) {
  police.setBold(true);
  return police;
}

QFont Agrandie(QFont police, double combien) {
  if (police.pixelSize() > 0) {
    police.setPixelSize(static_cast<int>(std::lround(police.pixelSize() * combien)));
  } else {
    police.setPointSizeF(police.pointSizeF() * combien);
  }
  return police;
}

/// The map in the middle of its place, so large that it fills that part of it (0 to 1).
QTransform VersEcran(const QSizeF& taille, double part) {
  const QRectF carte = EtendueCarte();
  const double echelle = part * std::min((taille.width() - 2 * marge) / carte.width(),
                                         (taille.height() - 2 * marge) / carte.height());
  const QPointF milieu(taille.width() / 2, taille.height() / 2);
  const QPointF origine = milieu - carte.center() * echelle;
  return {echelle, 0, 0, echelle, origine.x(), origine.y()};
}

/// The towns that leave names, lines and vineyards alone.
class PlacementVilles {
 public:
  PlacementVilles(const PlanCarte& plan, const GrilleCarte& grille, const QSizeF& taille,
                  const QFont& police)
      : plan_(plan),
        grille_(grille),
        place_(QPointF(), taille),
        metrique_(PoliceDesVilles(police)) {}

  [[nodiscard]] std::vector<VillePosee> Villes() {
    constexpr double pixelsAuKilometre = 0.45;  ///< a smaller map is full without them
    if (plan_.versEcran.m11() >= pixelsAuKilometre) {
      std::for_each(std::begin(villes), std::end(villes), [&](const Ville& ville) { Pose(ville); });
    }
    return posees_;
  }

 private:
  static constexpr double point = 3;

  void Pose(const Ville& ville) {
    const QString texte = Lisible(ville.nom);
    const QPointF la = plan_.versEcran.map(Projection(ville.lieu));
    const QSizeF mesure(std::ceil(metrique_.horizontalAdvance(texte)), metrique_.height());
    const std::array<QPointF, 4> coins{
        la + QPointF(2 * point, -mesure.height() / 2),
        la + QPointF(-2 * point - mesure.width(), -mesure.height() / 2),
        la + QPointF(-mesure.width() / 2, -point - mesure.height()),
        la + QPointF(-mesure.width() / 2, point)};
    const auto coin = std::find_if(coins.begin(), coins.end(), [&](const QPointF& essaye) {
      return EstLibre(QRectF(essaye, mesure));
    });
    if (coin != coins.end() && EstLibre(QRectF(la, la).adjusted(-point, -point, point, point))) {
      posees_.push_back({texte, QRectF(*coin, mesure), la});
    }
  }

  [[nodiscard]] bool EstLibre(const QRectF& cadre) const {
    const NomPose nom{0, {}, cadre, {}};
    return place_.contains(cadre) && grille_.EstLibre(cadre) &&
           std::none_of(plan_.noms.begin(), plan_.noms.end(),
                        [&](const NomPose& autre) { return Gene(nom, autre); }) &&
           std::none_of(posees_.begin(), posees_.end(), [&](const VillePosee& autre) {
             return autre.cadre.adjusted(-point, 0, point, 0).intersects(cadre);
           });
  }

  const PlanCarte& plan_;
  const GrilleCarte& grille_;
  QRectF place_;
  QFontMetricsF metrique_;
  std::vector<VillePosee> posees_;
};

}  // namespace

QFont PoliceDesNoms(const QSizeF& taille, const QFont& police) {
  constexpr QSizeF ordinaire{900, 800};
  constexpr double auPlus = 1.3;
  const double combien =
      std::min(taille.width() / ordinaire.width(), taille.height() / ordinaire.height());
  return Agrandie(police, std::clamp(combien, 1.0, auPlus));
}

QFont PoliceDesVilles(QFont police) {
  constexpr double reduction = 0.85;
  police.setItalic(true);
  return Agrandie(police, reduction);
}

NomPose NomSurLaCarte(const PlanCarte& plan, std::int32_t numero, const QSizeF& taille,
                      const QFont& police) {
  const auto pose = std::find_if(plan.noms.begin(), plan.noms.end(),
                                 [&](const NomPose& nom) { return nom.numero == numero; });
  if (pose != plan.noms.end()) {
    return *pose;
  }
  const Vignoble& vignoble = vignobles[static_cast<std::size_t>(numero - premierVignoble)];
  const QFontMetricsF metrique(Grasse(police));
  const QString entier = Lisible(vignoble.nom);
  const bool tient = MesureDuNom(metrique, entier).width() <= taille.width();
  const QString texte = tient ? entier : Lisible(vignoble.abrege);
  const QSizeF mesure = MesureDuNom(metrique, texte).boundedTo(taille);
  const QPointF point = plan.versEcran.map(Projection(vignoble.lieu));
  const QPointF coin(
      std::clamp(point.x() - mesure.width() / 2, 0.0, taille.width() - mesure.width()),
      std::clamp(point.y() + marge, 0.0, taille.height() - mesure.height()));
  return {numero, texte, QRectF(coin, mesure), QLineF()};
}

PlanCarte PlanDeLaCarte(const QSizeF& taille, const QFont& police) {
  constexpr std::array parts{1.0, 0.94, 0.88, 0.8, 0.72, 0.64};
  constexpr double entiersAuMoins = 0.94;  ///< rather short names than a much smaller map
  PlanCarte meilleur{VersEcran(taille, parts.front()), {}, {}};
  for (const double part : parts) {
    PlacementNoms placement(taille, Grasse(police), VersEcran(taille, part));
    for (const bool abreges : {false, true}) {
      if (!abreges && part < entiersAuMoins) {
        continue;
      }
      PlanCarte plan{VersEcran(taille, part), placement.Noms(abreges), {}};
      if (plan.noms.size() == vignobles.size()) {
        plan.villes = PlacementVilles(plan, placement.grille(), taille, police).Villes();
        return plan;
      }
      if (plan.noms.size() > meilleur.noms.size()) {
        meilleur = std::move(plan);
      }
    }
  }
  return meilleur;
}

}  // namespace gastrelle
