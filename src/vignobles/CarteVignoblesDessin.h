// How the map of the vineyards is drawn.
#pragma once

#include <QPainter>

#include "vignobles/CarteVignoblesNoms.h"
#include "vignobles/CarteVignoblesTeintes.h"

namespace gastrelle {

/// The map as it is while nothing is brought out, in the painter's font.
void DessineCarte(QPainter& peintre, const PlanCarte& plan, const TeintesCarte& teintes,
                  const QSizeF& taille);

/// One vineyard over that map: lightly as under the pointer, or strongly. Its name stands where
/// `nom` says.
void DessineEnValeur(QPainter& peintre, const PlanCarte& plan, const TeintesCarte& teintes,
                     const NomPose& nom, bool fort);

}  // namespace gastrelle
