#include "controles/StyleGastrelle.h"

#include <QStyleOptionComboBox>

namespace gastrelle {

int StyleGastrelle::styleHint(StyleHint indice, const QStyleOption* option, const QWidget* controle,
                              QStyleHintReturn* retour) const {
  if (indice == SH_ComboBox_Popup) {
    return 0;  // a list with a scroll bar: opens at once with thousands of entries
  }
  return QProxyStyle::styleHint(indice, option, controle, retour);
}

void StyleGastrelle::drawControl(ControlElement element, const QStyleOption* option,
                                 QPainter* peintre, const QWidget* controle) const {
  const auto* combo = element == CE_ComboBoxLabel
                          ? qstyleoption_cast<const QStyleOptionComboBox*>(option)
                          : nullptr;
  if (combo == nullptr) {
    QProxyStyle::drawControl(element, option, peintre, controle);
    return;
  }
  // A title that is too long for its list ends in "…", not in half a letter.
  constexpr int marges = 4;
  QStyleOptionComboBox abrege = *combo;
  const int place =
      subControlRect(CC_ComboBox, combo, SC_ComboBoxEditField, controle).width() - marges;
  abrege.currentText = combo->fontMetrics.elidedText(combo->currentText, Qt::ElideRight, place);
  QProxyStyle::drawControl(element, &abrege, peintre, controle);
}

}  // namespace gastrelle
