#include "controles/Touches.h"

#include <QApplication>
#include <QKeyEvent>

#include "controles/Icones.h"

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

QPushButton* Bouton(const QString& nom, const QString& titre, const QString& icone,
                    const QString& infobulle, QWidget* parent) {
  auto* bouton = new QPushButton(IconeDe(icone), titre, parent);
  bouton->setObjectName(nom);
  bouton->setToolTip(infobulle);
  QString lisible = titre;
  bouton->setAccessibleName(infobulle.isEmpty() ? lisible.remove(u'&') : infobulle);
  return bouton;
}

QPushButton* BoutonAide(const QString& nom, QWidget* parent) {
  QPushButton* bouton =
      Bouton(nom, QStringLiteral("&Aide"), QStringLiteral("aide"), QStringLiteral("Aide"), parent);
  QObject::connect(bouton, &QPushButton::clicked, bouton, [] { EnvoieF1(); });
  return bouton;
}

}  // namespace gastrelle
