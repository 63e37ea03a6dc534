#include "controles/Boutons.h"

#include <utility>

#include "controles/Icones.h"
#include "controles/Touches.h"

namespace gastrelle {

QPushButton* Bouton(const QString& nom, const QString& titre, const QString& icone,
                    const QString& infobulle, QWidget* parent) {
  auto* bouton = new QPushButton(IconeDe(icone), titre, parent);
  bouton->setObjectName(nom);
  bouton->setToolTip(infobulle);
  bouton->setAutoDefault(true);
  if (titre.isEmpty()) {
    bouton->setAccessibleName(infobulle);
  }
  return bouton;
}

QPushButton* BoutonAide(const QString& nom, QWidget* parent) {
  QPushButton* bouton =
      Bouton(nom, QStringLiteral("&Aide"), QStringLiteral("aide"), QStringLiteral("Aide"), parent);
  QObject::connect(bouton, &QPushButton::clicked, bouton, [] { EnvoieF1(); });
  return bouton;
}

PiedBoutons::PiedBoutons() {
  addStretch(1);
}

QPushButton* PiedBoutons::Pose(QPushButton* bouton) {
  // Also where there is nothing to conclude: Return would otherwise press the button in focus.
  if (!std::exchange(aSaTouche_, true)) {
    PoseRaccourci(*parentWidget(),
                  {QKeySequence(Qt::CTRL | Qt::Key_Return), QKeySequence(Qt::CTRL | Qt::Key_Enter)},
                  false, [this] {
                    if (conclusion_ != nullptr && conclusion_->isVisible()) {
                      conclusion_->click();
                    }
                  });
  }
  addWidget(bouton);
  return bouton;
}

QPushButton* PiedBoutons::Ajoute(const char* nom, const char16_t* titre, const char* icone,
                                 const char16_t* infobulle, const Action& action) {
  QPushButton* bouton = Bouton(QLatin1String(nom), QString::fromUtf16(titre), QLatin1String(icone),
                               QString::fromUtf16(infobulle), parentWidget());
  connect(bouton, &QPushButton::clicked, bouton, action);
  return Pose(bouton);
}

QPushButton* PiedBoutons::AjouteConclusion(const char* nom, const char16_t* titre,
                                           const char* icone, const char16_t* infobulle,
                                           const Action& action) {
  conclusion_ = Ajoute(nom, titre, icone, infobulle, action);
  return conclusion_;
}

QPushButton* PiedBoutons::Aide(const char* nom) {
  return Pose(BoutonAide(QLatin1String(nom), parentWidget()));
}

}  // namespace gastrelle
