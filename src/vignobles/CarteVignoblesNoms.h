// Where the names of the map of the vineyards stand.
#pragma once

#include <cstdint>
#include <vector>

#include <QFont>
#include <QRectF>
#include <QString>
#include <QTransform>

#include "vignobles/CarteVignoblesEtiquette.h"

namespace gastrelle {

/// A town that is shown for orientation.
struct VillePosee {
  QString texte;
  QRectF cadre;
  QPointF point;
};

struct PlanCarte {
  QTransform versEcran;       ///< from kilometres to pixels
  std::vector<NomPose> noms;  ///< in the order of the record numbers; a missing one had no room
  std::vector<VillePosee> villes;
};

/// The largest map, in a place of that size, on which all names of the vineyards stand, whole or
/// short: none over another one, over another vineyard or over the line that leads to one, none
/// beyond the edge. Where there is no such map, one with as many names as there is room for.
/// `police`: of the names; they have room in bold as well.
[[nodiscard]] PlanCarte PlanDeLaCarte(const QSizeF& taille, const QFont& police);

/// The name of one vineyard: as it stands on the map, or whole at its vineyard where it had no room
/// there.
[[nodiscard]] NomPose NomSurLaCarte(const PlanCarte& plan, std::int32_t numero,
                                    const QSizeF& taille, const QFont& police);

/// The usual font, larger on a large map.
[[nodiscard]] QFont PoliceDesNoms(const QSizeF& taille, const QFont& police);

/// The font of the towns on a map whose names have that one.
[[nodiscard]] QFont PoliceDesVilles(QFont police);

}  // namespace gastrelle
