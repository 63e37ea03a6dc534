#include "controles/StyleGastrelle.h"

namespace gastrelle {

int PlaceTitre(const QStyleOptionComboBox& combo, const QWidget& controle) {
  constexpr int marges = 4;
  return controle.style()
             ->subControlRect(QStyle::CC_ComboBox, &combo, QStyle::SC_ComboBoxEditField, &controle)
             .width() -
         marges;
}

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
  QStyleOptionComboBox abrege = *combo;
  abrege.currentText = combo->fontMetrics.elidedText(combo->currentText, Qt::ElideRight,
                                                     PlaceTitre(*combo, *controle));
  QProxyStyle::drawControl(element, &abrege, peintre, controle);
}

}  // namespace gastrelle
