#include "controles/Boutons.h"

#include "controles/Icones.h"
#include "controles/Touches.h"

namespace gastrelle {

QPushButton* Bouton(const QString& nom, const QString& titre, const QString& icone,
                    const QString& infobulle, QWidget* parent) {
  auto* bouton = new QPushButton(IconeDe(icone), titre, parent);
  bouton->setObjectName(nom);
  bouton->setToolTip(infobulle);
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

QPushButton* PiedBoutons::Ajoute(const char* nom, const char16_t* titre, const char* icone,
                                 const char16_t* infobulle, const Action& action) {
  QPushButton* bouton = Bouton(QLatin1String(nom), QString::fromUtf16(titre), QLatin1String(icone),
                               QString::fromUtf16(infobulle), parentWidget());
  connect(bouton, &QPushButton::clicked, bouton, action);
  addWidget(bouton);
  return bouton;
}

QPushButton* PiedBoutons::Aide(const char* nom) {
  QPushButton* bouton = BoutonAide(QLatin1String(nom), parentWidget());
  addWidget(bouton);
  return bouton;
}

}  // namespace gastrelle
