#include "shell/GeometrieCadre.h"

#include <algorithm>
#include <utility>

#include <QGuiApplication>
#include <QRegion>
#include <QScreen>
#include <QStyle>
#include <QWindow>

#include "controles/Reglages.h"

namespace gastrelle {
namespace {

constexpr int twipsParPixel = 15;

QString Cle(const char* nom) {
  return QStringLiteral("Settings/") + QLatin1String(nom);
}

int Pixels(const Reglages& reglages, const char* cle, int twipsParDefaut) {
  bool bon = false;
  const double twips = reglages.Texte(Cle(cle)).toDouble(&bon);
  constexpr double raisonnable = 1'000'000;
  return qRound((bon && qAbs(twips) < raisonnable ? twips : twipsParDefaut) / twipsParPixel);
}

QRect LitGeometrie() {
  constexpr int largeurTwips = 12000;
  constexpr int hauteurTwips = 9000;
  const Reglages reglages;
  return {Pixels(reglages, "MainLeft", 0), Pixels(reglages, "MainTop", 0),
          Pixels(reglages, "MainWidth", largeurTwips),
          Pixels(reglages, "MainHeight", hauteurTwips)};
}

void EcritGeometrie(const QRect& geometrie) {
  Reglages reglages;
  const auto ecrit = [&](const char* cle, int pixels) {
    reglages.Ecrit(Cle(cle), QString::number(pixels * twipsParPixel));
  };
  ecrit("MainLeft", geometrie.left());
  ecrit("MainTop", geometrie.top());
  ecrit("MainWidth", geometrie.width());
  ecrit("MainHeight", geometrie.height());
}

QList<QRect> Ecrans() {
  QList<QRect> ecrans{QGuiApplication::primaryScreen()->availableGeometry()};
  for (const QScreen* ecran : QGuiApplication::screens()) {
    ecrans << ecran->availableGeometry();
  }
  return ecrans;
}

/// What a window of that style is likely to get around it: nobody knows before it is shown.
QMargins BordureProbable(const QWidget& fenetre) {
  const int cote =
      fenetre.style()->pixelMetric(QStyle::PM_MdiSubWindowFrameWidth, nullptr, &fenetre);
  const int titre = fenetre.style()->pixelMetric(QStyle::PM_TitleBarHeight, nullptr, &fenetre);
  return {cote, cote + titre, cote, cote};
}

}  // namespace

QRect PlaceVisible(const QRect& souhait, const QMargins& bordure, const QList<QRect>& ecrans) {
  const QRect entiere(souhait.topLeft(), souhait.size().grownBy(bordure));
  QRegion dehors(entiere);
  for (const QRect& ecran : ecrans) {
    dehors -= ecran;
  }
  if (dehors.isEmpty()) {
    return souhait;
  }
  const auto lieu = std::find_if(ecrans.begin(), ecrans.end(), [&](const QRect& ecran) {
    return ecran.contains(entiere.center()) || ecran.contains(entiere.topLeft());
  });
  const QRect ecran = lieu == ecrans.end() ? ecrans.first() : *lieu;
  const QSize libre = ecran.size().shrunkBy(bordure);
  QRect place(lieu == ecrans.end() ? ecran.topLeft() : souhait.topLeft(),
              souhait.size().boundedTo(libre));
  const QSize jeu = libre - place.size();
  const bool coupee = place.width() < souhait.width();
  place.moveLeft(coupee ? ecran.left() : std::min(place.left(), ecran.left() + jeu.width()));
  place.moveTop(std::clamp(place.top(), ecran.top(), ecran.top() + jeu.height()));
  return place;
}

GeometrieCadre::GeometrieCadre(QWidget& cadre) : cadre_(cadre), souhait_(LitGeometrie()) {
  Place(PlaceVisible(souhait_, BordureProbable(cadre_), Ecrans()));
}

void GeometrieCadre::Place(const QRect& place) {
  montree_ = place;
  cadre_.resize(place.size());
  cadre_.move(place.topLeft());
}

void GeometrieCadre::Ajuste() {
  const QWindow* fenetre = cadre_.windowHandle();
  // As long as the window system hasn't told its border, the likely one stands.
  if (fenetre == nullptr || fenetre->frameMargins().isNull()) {
    return;
  }
  const bool reprise = cadre_.size() != montree_.size();  // by the user or the window system
  if (std::exchange(ajustee_, true) || reprise) {
    return;
  }
  const QRect place = PlaceVisible(souhait_, fenetre->frameMargins(), Ecrans());
  if (place != montree_) {
    Place(place);
  }
}

void GeometrieCadre::Retient() const {
  EcritGeometrie({cadre_.pos() == montree_.topLeft() ? souhait_.topLeft() : cadre_.pos(),
                  cadre_.size() == montree_.size() ? souhait_.size() : cadre_.size()});
}

}  // namespace gastrelle
