#include "vignobles/CarteVignoblesGrille.h"

#include <algorithm>
#include <cmath>

#include <QPainter>

#include "vignobles/CarteVignoblesFormes.h"

namespace gastrelle {
namespace {

constexpr double coteAuMoins = 2;
constexpr double cellulesAuPlus = 400;  ///< of a side

QImage Vierge(const QSizeF& taille, double cote) {
  QImage image(QSizeF(taille / cote).toSize() + QSize(1, 1), QImage::Format_Grayscale8);
  image.fill(0);
  return image;
}

}  // namespace

GrilleCarte::GrilleCarte(const QSizeF& taille, const QTransform& versEcran)
    : cote_(std::max(coteAuMoins, std::max(taille.width(), taille.height()) / cellulesAuPlus)),
      vignobles_(Vierge(taille, cote_)) {
  const QTransform versCellules = versEcran * QTransform::fromScale(1 / cote_, 1 / cote_);
  const FormesCarte& formes = FormesDeLaCarte();
  QPainter peintre(&vignobles_);
  peintre.setTransform(versCellules);
  for (std::size_t i = 0; i < formes.aires.size(); ++i) {
    const int gris = static_cast<int>(i) + 1;
    peintre.fillPath(formes.aires[i], QColor(gris, gris, gris));
  }
  peintre.end();
  QImage rivage = Vierge(taille, cote_);
  QPainter trace(&rivage);
  trace.setTransform(versCellules);
  QPen plume(Qt::white);
  plume.setCosmetic(true);
  trace.strokePath(formes.pays, plume);
  trace.end();
  occupees_ = SommesDe(vignobles_);
  rivages_ = SommesDe(rivage);
}

GrilleCarte::Sommes GrilleCarte::SommesDe(const QImage& image) const {
  const auto largeur = static_cast<std::size_t>(image.width()) + 1;
  Sommes sommes(largeur * (static_cast<std::size_t>(image.height()) + 1));
  for (int y = 0; y < image.height(); ++y) {
    const uchar* ligne = image.constScanLine(y);
    const std::size_t haut = static_cast<std::size_t>(y) * largeur;
    int somme = 0;
    for (std::size_t x = 0; x + 1 < largeur; ++x) {
      somme += ligne[x] != 0 ? 1 : 0;
      sommes[haut + largeur + x + 1] = sommes[haut + x + 1] + somme;
    }
  }
  return sommes;
}

QRect GrilleCarte::Cellules(const QRectF& cadre) const {
  const QPoint debut(static_cast<int>(std::floor(cadre.left() / cote_)),
                     static_cast<int>(std::floor(cadre.top() / cote_)));
  const QPoint fin(static_cast<int>(std::floor(cadre.right() / cote_)),
                   static_cast<int>(std::floor(cadre.bottom() / cote_)));
  return QRect(debut, fin).intersected(vignobles_.rect());
}

int GrilleCarte::Compte(const Sommes& sommes, const QRect& cellules) const {
  const auto largeur = static_cast<std::size_t>(vignobles_.width()) + 1;
  const auto somme = [&](int x, int y) {
    return sommes[static_cast<std::size_t>(y) * largeur + static_cast<std::size_t>(x)];
  };
  const int droite = cellules.x() + cellules.width();
  const int bas = cellules.y() + cellules.height();
  return somme(droite, bas) - somme(cellules.x(), bas) - somme(droite, cellules.y()) +
         somme(cellules.x(), cellules.y());
}

bool GrilleCarte::EstLibre(const QRectF& cadre) const {
  return Compte(occupees_, Cellules(cadre)) == 0;
}

double GrilleCarte::PartCouverte(const QRectF& cadre, int rang) const {
  const QRect cellules = Cellules(cadre);
  int siennes = 0;
  for (int y = cellules.top(); y <= cellules.bottom(); ++y) {
    const uchar* ligne = vignobles_.constScanLine(y);
    siennes += static_cast<int>(
        std::count(ligne + cellules.left(), ligne + cellules.right() + 1, rang + 1));
  }
  const bool seul = Compte(occupees_, cellules) == siennes;
  return seul ? static_cast<double>(siennes) / (cellules.width() * cellules.height()) : -1;
}

double GrilleCarte::Survol(const QLineF& trait, int rang) const {
  const int pas = static_cast<int>(trait.length() / cote_) + 1;
  int etrangeres = 0;
  for (int i = 0; i <= pas; ++i) {
    const QPointF ici = trait.pointAt(static_cast<double>(i) / pas) / cote_;
    const QPoint cellule(static_cast<int>(ici.x()), static_cast<int>(ici.y()));
    if (vignobles_.valid(cellule)) {
      const int qui = vignobles_.constScanLine(cellule.y())[cellule.x()];
      etrangeres += qui != 0 && qui != rang + 1 ? 1 : 0;
    }
  }
  return etrangeres * cote_;
}

double GrilleCarte::Rivage(const QRectF& cadre) const {
  return Compte(rivages_, Cellules(cadre)) * cote_;
}

}  // namespace gastrelle
