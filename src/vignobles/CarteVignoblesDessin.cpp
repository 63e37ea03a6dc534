#include "vignobles/CarteVignoblesDessin.h"

#include <array>

#include "controles/Teintes.h"
#include "vignobles/CarteVignoblesFormes.h"

namespace gastrelle {
namespace {

constexpr double arrondi = 6;  ///< of the corners, in pixels

QPen Plume(const QColor& couleur, double largeur) {
  QPen plume(couleur, largeur, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin);
  plume.setCosmetic(true);
  return plume;
}

std::size_t Rang(std::int32_t numero) {
  return static_cast<std::size_t>(numero - premierVignoble);
}

/// A text with a rim of its ground around it, so that no line runs into its letters.
void EcritDetache(QPainter& peintre, const QRectF& cadre, const QString& texte, const QColor& encre,
                  const QColor& fond) {
  constexpr std::array<QPointF, 8> autour{QPointF(-1, 0), QPointF(1, 0),   QPointF(0, -1),
                                          QPointF(0, 1),  QPointF(-1, -1), QPointF(1, -1),
                                          QPointF(-1, 1), QPointF(1, 1)};
  peintre.setPen(fond);
  for (const QPointF& ecart : autour) {
    peintre.drawText(cadre.translated(ecart), Qt::AlignCenter | Qt::TextDontClip, texte);
  }
  peintre.setPen(encre);
  peintre.drawText(cadre, Qt::AlignCenter | Qt::TextDontClip, texte);
}

void DessinePays(QPainter& peintre, const PlanCarte& plan, const TeintesCarte& teintes) {
  constexpr double largeCote = 9;
  constexpr double largeTrait = 1.2;
  constexpr double largeFleuve = 1.2;
  const FormesCarte& formes = FormesDeLaCarte();
  peintre.setTransform(plan.versEcran, true);
  peintre.strokePath(formes.pays, Plume(teintes.cote, largeCote));
  peintre.fillPath(formes.pays, teintes.terre);
  peintre.save();
  peintre.setClipPath(formes.pays, Qt::IntersectClip);
  peintre.strokePath(formes.fleuves, Plume(teintes.fleuve, largeFleuve));
  peintre.restore();
  for (std::size_t i = 0; i < vignobles.size(); ++i) {
    peintre.fillPath(formes.aires[i], teintes.aires[vignobles[i].teinte]);
    peintre.strokePath(formes.aires[i], Plume(teintes.bords[vignobles[i].teinte], 1));
  }
  peintre.strokePath(formes.pays, Plume(teintes.trait, largeTrait));
}

void DessineTrait(QPainter& peintre, const QLineF& trait, const QColor& couleur, double largeur) {
  constexpr double bout = 1.8;
  if (trait.isNull()) {
    return;
  }
  peintre.setPen(Plume(couleur, largeur));
  peintre.drawLine(trait);
  peintre.setPen(Qt::NoPen);
  peintre.setBrush(couleur);
  peintre.drawEllipse(trait.p2(), bout, bout);
}

void DessineVilles(QPainter& peintre, const PlanCarte& plan, const TeintesCarte& teintes) {
  constexpr double point = 1.6;
  peintre.setFont(PoliceDesVilles(peintre.font()));
  for (const VillePosee& ville : plan.villes) {
    peintre.setPen(Plume(teintes.discrete, 1));
    peintre.setBrush(teintes.terre);
    peintre.drawEllipse(ville.point, point, point);
    EcritDetache(peintre, ville.cadre, ville.texte, teintes.discrete, teintes.terre);
  }
}

/// What a name stands on, where that isn't its vineyard.
QColor FondDuNom(const PlanCarte& plan, const TeintesCarte& teintes, const NomPose& nom) {
  const QPointF milieu = plan.versEcran.inverted().map(nom.cadre.center());
  return FormesDeLaCarte().pays.contains(milieu) ? teintes.terre : teintes.mer;
}

}  // namespace

void DessineCarte(QPainter& peintre, const PlanCarte& plan, const TeintesCarte& teintes,
                  const QSizeF& taille) {
  peintre.setRenderHint(QPainter::Antialiasing);
  peintre.setPen(Qt::NoPen);
  peintre.setBrush(teintes.mer);
  peintre.drawRoundedRect(QRectF(QPointF(), taille), arrondi, arrondi);
  peintre.save();
  DessinePays(peintre, plan, teintes);
  peintre.restore();
  peintre.save();
  DessineVilles(peintre, plan, teintes);
  peintre.restore();
  constexpr int partDuTrait = 60;
  for (const NomPose& nom : plan.noms) {
    DessineTrait(peintre, nom.trait, Melange(teintes.terre, teintes.encre, partDuTrait), 1);
  }
  for (const NomPose& nom : plan.noms) {
    const QColor fond = nom.trait.isNull() ? teintes.aires[vignobles[Rang(nom.numero)].teinte]
                                           : FondDuNom(plan, teintes, nom);
    EcritDetache(peintre, nom.cadre, nom.texte, teintes.encre, fond);
  }
}

void DessineEnValeur(QPainter& peintre, const PlanCarte& plan, const TeintesCarte& teintes,
                     const NomPose& nom, bool fort) {
  constexpr int partLegere = 40;
  constexpr double largeContour = 1.4;
  const Vignoble& vignoble = vignobles[Rang(nom.numero)];
  const QPainterPath& aire = FormesDeLaCarte().aires[Rang(nom.numero)];
  const QColor& vif = teintes.bords[vignoble.teinte];
  peintre.setRenderHint(QPainter::Antialiasing);
  peintre.save();
  peintre.setTransform(plan.versEcran, true);
  peintre.fillPath(aire, fort ? vif : Melange(teintes.aires[vignoble.teinte], vif, partLegere));
  peintre.strokePath(aire, Plume(teintes.encre, fort ? largeContour : 1));
  peintre.restore();
  DessineTrait(peintre, nom.trait, teintes.encre, fort ? largeContour : 1);
  QFont police = peintre.font();
  police.setBold(fort);
  peintre.setFont(police);
  peintre.setPen(Plume(fort ? teintes.encre : vif, 1));
  peintre.setBrush(teintes.terre);
  peintre.drawRoundedRect(nom.cadre.adjusted(0.5, 0.5, -0.5, -0.5), arrondi / 2, arrondi / 2);
  peintre.setPen(teintes.encre);
  peintre.drawText(nom.cadre, Qt::AlignCenter | Qt::TextDontClip, nom.texte);
}

}  // namespace gastrelle
