#include "controles/Touches.h"

#include <array>
#include <utility>

#include <QApplication>
#include <QKeyEvent>
#include <QShortcut>
#include <QWidget>

namespace gastrelle {

void EnvoieF1() {
  QWidget* vers = QApplication::focusWidget();
  if (vers == nullptr) {
    vers = QApplication::activeWindow();
  }
  if (vers != nullptr) {
    QKeyEvent appui(QEvent::KeyPress, Qt::Key_F1, Qt::NoModifier);
    QApplication::sendEvent(vers, &appui);
    QKeyEvent relache(QEvent::KeyRelease, Qt::Key_F1, Qt::NoModifier);
    QApplication::sendEvent(vers, &relache);
  }
}

bool EstTouchePlaine(const QKeyEvent& touche) {
  return (touche.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier)) == 0;
}

bool EstEntree(const QKeyEvent& touche) {
  return (touche.key() == Qt::Key_Return || touche.key() == Qt::Key_Enter) &&
         (touche.modifiers() & ~Qt::KeypadModifier) == 0;
}

bool EstAltFleche(const QKeyEvent& touche) {
  return (touche.key() == Qt::Key_Up || touche.key() == Qt::Key_Down) &&
         (touche.modifiers() & ~Qt::KeypadModifier) == Qt::AltModifier;
}

void PoseRaccourci(QWidget& zone, const QList<QKeySequence>& touches, bool repete,
                   const std::function<void()>& action) {
  auto* raccourci = new QShortcut(&zone);
  raccourci->setKeys(touches);
  raccourci->setContext(Qt::WidgetWithChildrenShortcut);
  raccourci->setAutoRepeat(repete);
  QObject::connect(raccourci, &QShortcut::activated, &zone, action);
}

void PoseTouchesTaille(QWidget& zone, const std::function<void(int pas)>& action) {
  // The plus shares its key with "=" on many keyboards, the 0 with "à" on French ones.
  static const std::array<std::pair<int, QList<QKeySequence>>, 3> touches{
      {{1, {QStringLiteral("Ctrl++"), QStringLiteral("Ctrl+=")}},
       {-1, {QStringLiteral("Ctrl+-")}},
       {0, {QStringLiteral("Ctrl+0"), QStringLiteral("Ctrl+À")}}}};
  for (const auto& [pas, siennes] : touches) {
    PoseRaccourci(zone, siennes, true, [action, pas = pas] { action(pas); });
  }
}

}  // namespace gastrelle
