#include "controles/StyleGastrelle.h"

namespace gastrelle {

int StyleGastrelle::styleHint(StyleHint indice, const QStyleOption* option, const QWidget* controle,
                              QStyleHintReturn* retour) const {
  if (indice == SH_ComboBox_Popup) {
    return 0;  // a list with a scroll bar: opens at once with thousands of entries
  }
  return QProxyStyle::styleHint(indice, option, controle, retour);
}

}  // namespace gastrelle
