#include "shell/PlaceAide.h"

#include <algorithm>
#include <array>

namespace gastrelle {
namespace {

constexpr QSize tailleVoulue(980, 640);
constexpr double partDeLEcran = 0.85;

qint64 Couvre(const QRect& aide, const QRect& programme) {
  const QRect commun = aide & programme;
  return commun.isEmpty() ? 0 : qint64{commun.width()} * commun.height();
}

/// The same rectangle, moved into the screen.
QRect Ramene(QRect place, const QRect& ecran) {
  place.moveRight(std::min(place.right(), ecran.right()));
  place.moveBottom(std::min(place.bottom(), ecran.bottom()));
  place.moveLeft(std::max(place.left(), ecran.left()));
  place.moveTop(std::max(place.top(), ecran.top()));
  return place;
}

}  // namespace

QSize TailleAide(const QRect& ecran) {
  return tailleVoulue.boundedTo((QSizeF(ecran.size()) * partDeLEcran).toSize());
}

QPoint CoinAide(const QRect& ecran, const QSize& taille, const QRect& programme) {
  const int aDroite = programme.right() + 1;
  const int aGauche = programme.left() - taille.width();
  const int dessous = programme.bottom() + 1;
  const int dessus = programme.top() - taille.height();
  // The best first: what covers no more than another place is taken.
  std::array<QRect, 6> places{{{{aDroite, programme.top()}, taille},
                               {{aGauche, programme.top()}, taille},
                               {{programme.left(), dessous}, taille},
                               {{programme.left(), dessus}, taille},
                               {{aDroite, dessous}, taille},
                               {{aGauche, dessous}, taille}}};
  for (QRect& place : places) {
    place = Ramene(place, ecran);
  }
  return std::min_element(places.begin(), places.end(),
                          [&](const QRect& a, const QRect& b) {
                            return Couvre(a, programme) < Couvre(b, programme);
                          })
      ->topLeft();
}

}  // namespace gastrelle
