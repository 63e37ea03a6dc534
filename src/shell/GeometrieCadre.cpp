#include "shell/GeometrieCadre.h"

#include <QGuiApplication>
#include <QScreen>
#include <QSettings>

#include "controles/Conversion.h"
#include "data/Messages.h"

namespace gastrelle {
namespace {

constexpr int twipsParPixel = 15;

int Pixels(const QSettings& reglages, const char* cle, int twipsParDefaut) {
  bool bon = false;
  const double twips =
      reglages.value(QStringLiteral("Settings/") + QLatin1String(cle)).toString().toDouble(&bon);
  constexpr double raisonnable = 1'000'000;
  return qRound((bon && qAbs(twips) < raisonnable ? twips : twipsParDefaut) / twipsParPixel);
}

}  // namespace

QRect LitGeometrie() {
  constexpr int largeurTwips = 12000;
  constexpr int hauteurTwips = 9000;
  const QSettings reglages(QSettings::UserScope, VersQt(titreApplication));
  return {Pixels(reglages, "MainLeft", 0), Pixels(reglages, "MainTop", 0),
          Pixels(reglages, "MainWidth", largeurTwips),
          Pixels(reglages, "MainHeight", hauteurTwips)};
}

void EcritGeometrie(const QRect& geometrie) {
  QSettings reglages(QSettings::UserScope, VersQt(titreApplication));
  reglages.beginGroup(QStringLiteral("Settings"));
  const auto ecrit = [&](const char* cle, int pixels) {
    reglages.setValue(QLatin1String(cle), QString::number(pixels * twipsParPixel));
  };
  ecrit("MainLeft", geometrie.left());
  ecrit("MainTop", geometrie.top());
  ecrit("MainWidth", geometrie.width());
  ecrit("MainHeight", geometrie.height());
}

void Place(QWidget& fenetre, const QRect& geometrie) {
  QRect place = geometrie;
  const bool visible = QGuiApplication::screenAt(place.center()) != nullptr ||
                       QGuiApplication::screenAt(place.topLeft()) != nullptr;
  if (!visible) {
    place.moveTopLeft(QGuiApplication::primaryScreen()->availableGeometry().topLeft());
  }
  fenetre.resize(place.size());
  fenetre.move(place.topLeft());
}

}  // namespace gastrelle
