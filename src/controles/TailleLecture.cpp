#include "controles/TailleLecture.h"

#include <algorithm>
#include <array>
#include <functional>

#include <QApplication>
#include <QFontInfo>
#include <QSettings>
#include <QShortcut>

#include "controles/Conversion.h"
#include "data/Messages.h"

namespace gastrelle {
namespace {

constexpr double auDessusDuSysteme = 2;
constexpr double auMoins = 7;
constexpr double auPlus = 40;

QString Reglage() {
  return QStringLiteral("Settings/TailleLecture");
}

QSettings Reglages() {
  return {QSettings::UserScope, VersQt(titreApplication)};
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

struct ToucheLecture {
  const char* touche;
  void (*action)();
};

// "+" stands on "=" on many keyboards, the digits above "à" on French ones.
constexpr std::array<ToucheLecture, 5> touches{{{"Ctrl++", [] { AgranditLecture(1); }},
                                                {"Ctrl+=", [] { AgranditLecture(1); }},
                                                {"Ctrl+-", [] { AgranditLecture(-1); }},
                                                {"Ctrl+0", [] { RetablitLecture(); }},
                                                {"Ctrl+À", [] { RetablitLecture(); }}}};

}  // namespace

double TailleLecture() {
  bool nombre = false;
  const double choisie = Reglages().value(Reglage()).toString().toDouble(&nombre);
  return nombre ? std::clamp(choisie, auMoins, auPlus) : TailleOrdinaire();
}

void AgranditLecture(int points) {
  const double voulue = std::clamp(TailleLecture() + points, auMoins, auPlus);
  Reglages().setValue(Reglage(), QString::number(voulue));
  Previent();
}

void RetablitLecture() {
  Reglages().remove(Reglage());
  Previent();
}

QEvent::Type TailleChangee() {
  static const int type = QEvent::registerEventType();
  return static_cast<QEvent::Type>(type);
}

void BrancheTouchesLecture(QWidget& fenetre) {
  for (const ToucheLecture& ligne : touches) {
    auto* raccourci = new QShortcut(QKeySequence(QString::fromUtf8(ligne.touche)), &fenetre);
    raccourci->setContext(Qt::WidgetWithChildrenShortcut);
    QObject::connect(raccourci, &QShortcut::activated, &fenetre, ligne.action);
  }
}

}  // namespace gastrelle
