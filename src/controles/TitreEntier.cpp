#include "controles/TitreEntier.h"

#include <QEvent>

namespace gastrelle {

TitreEntier::TitreEntier(ComboListe& combo, QWidget* parent) : QLabel(parent), combo_(combo) {
  constexpr double agrandissement = 1.25;
  QFont police = font();
  police.setPointSizeF(police.pointSizeF() * agrandissement);
  setFont(police);
  setObjectName(QStringLiteral("lblTitreEntier"));
  setTextFormat(Qt::PlainText);
  setTextInteractionFlags(Qt::TextSelectableByMouse);
  setWordWrap(true);
  connect(&combo, &QComboBox::currentTextChanged, this, [this] { Regle(); });
  combo.installEventFilter(this);
  hide();
}

bool TitreEntier::eventFilter(QObject* objet, QEvent* evenement) {
  if (evenement->type() == QEvent::Resize || evenement->type() == QEvent::FontChange) {
    Regle();
  }
  return QLabel::eventFilter(objet, evenement);
}

void TitreEntier::Regle() {
  const QString titre = combo_.TitreAbrege();
  setText(titre);
  setVisible(!titre.isEmpty());
}

}  // namespace gastrelle
