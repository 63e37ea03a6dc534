#include "controles/TailleLecture.h"

#include <algorithm>
#include <cmath>

#include <QApplication>
#include <QFontInfo>

#include "controles/Reglages.h"

namespace gastrelle {
namespace {

constexpr double auDessusDuSysteme = 2;
constexpr double auMoins = 7;
constexpr double auPlus = 40;

QString CleTaille() {
  return QStringLiteral("Settings/TailleLecture");
}

double TailleOrdinaire() {
  return QFontInfo(QApplication::font()).pointSizeF() + auDessusDuSysteme;
}

void Previent() {
  for (QWidget* controle : QApplication::allWidgets()) {
    QEvent changee(TailleChangee());
    QApplication::sendEvent(controle, &changee);
  }
}

}  // namespace

double TailleLecture() {
  bool nombre = false;
  const double choisie = Reglages().Texte(CleTaille()).toDouble(&nombre);
  return nombre && std::isfinite(choisie) ? std::clamp(choisie, auMoins, auPlus)
                                          : TailleOrdinaire();
}

void AgranditLecture(int points) {
  if (points == 0) {
    Reglages().Oublie(CleTaille());
  } else {
    const double voulue = std::clamp(TailleLecture() + points, auMoins, auPlus);
    Reglages().Ecrit(CleTaille(), QString::number(voulue));
  }
  Previent();
}

QEvent::Type TailleChangee() {
  static const int type = QEvent::registerEventType();
  return static_cast<QEvent::Type>(type);
}

}  // namespace gastrelle
