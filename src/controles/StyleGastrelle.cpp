#include "controles/StyleGastrelle.h"

#include <algorithm>
#include <array>

#include <QListView>
#include <QStyleOptionComboBox>
#include <QStyleOptionViewItem>

#include "controles/Teintes.h"

namespace gastrelle {

namespace {

constexpr int air = 3;  ///< above and below the text in the row of a list

/// A closed list opens its entries in a list with a scroll bar, at once even with thousands of
/// them; and the wheel, which people turn to scroll, changes neither a tab nor a choice.
constexpr std::array refus{QStyle::SH_ComboBox_Popup, QStyle::SH_ComboBox_AllowWheelScrolling,
                           QStyle::SH_TabBar_AllowWheelScrolling};

/// The style draws the edge of a box in a shade of the window's colour: in the list of a dark
/// palette nobody would see a box that isn't ticked.
QPalette AvecBordsVisibles(const QPalette& palette) {
  constexpr int ombre = 140;  // hundredths, as the style takes it
  constexpr double visible = 2;
  constexpr int versLeFond = 30;
  const QColor fond = palette.color(QPalette::Base);
  if (Contraste(palette.color(QPalette::Window).darker(ombre), fond) >= visible) {
    return palette;
  }
  QPalette contrastee = palette;
  contrastee.setColor(QPalette::Window, Melange(palette.color(QPalette::Text), fond, versLeFond));
  return contrastee;
}

}  // namespace

int PlacePourTitre(const QStyle& style, const QStyleOptionComboBox& combo,
                   const QWidget* controle) {
  constexpr int marges = 4;
  const QRect champ =
      style.subControlRect(QStyle::CC_ComboBox, &combo, QStyle::SC_ComboBoxEditField, controle);
  return champ.width() - marges;
}

int StyleGastrelle::styleHint(StyleHint indice, const QStyleOption* option, const QWidget* controle,
                              QStyleHintReturn* retour) const {
  return std::find(refus.begin(), refus.end(), indice) != refus.end()
             ? 0
             : QProxyStyle::styleHint(indice, option, controle, retour);
}

QSize StyleGastrelle::sizeFromContents(ContentsType genre, const QStyleOption* option,
                                       const QSize& contenu, const QWidget* controle) const {
  const QSize taille = QProxyStyle::sizeFromContents(genre, option, contenu, controle);
  const bool rangee =
      genre == CT_ItemViewItem && qobject_cast<const QListView*>(controle) != nullptr;
  return rangee ? taille + QSize(0, 2 * air) : taille;
}

void StyleGastrelle::drawPrimitive(PrimitiveElement element, const QStyleOption* option,
                                   QPainter* peintre, const QWidget* controle) const {
  const auto* rangee = element == PE_IndicatorItemViewItemCheck
                           ? qstyleoption_cast<const QStyleOptionViewItem*>(option)
                           : nullptr;
  if (rangee == nullptr) {
    QProxyStyle::drawPrimitive(element, option, peintre, controle);
    return;
  }
  QStyleOptionViewItem contrastee = *rangee;
  contrastee.palette = AvecBordsVisibles(rangee->palette);
  QProxyStyle::drawPrimitive(element, &contrastee, peintre, controle);
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
  const int place = PlacePourTitre(*this, *combo, controle);
  abrege.currentText = combo->fontMetrics.elidedText(combo->currentText, Qt::ElideRight, place);
  QProxyStyle::drawControl(element, &abrege, peintre, controle);
}

}  // namespace gastrelle
