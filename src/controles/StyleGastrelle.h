// The application's style: the system's, but for what the program's lists and boxes need.
#pragma once

#include <QProxyStyle>

class QStyleOptionComboBox;

namespace gastrelle {

/// Width of what a closed list can show of its title, in pixels: a longer one ends in "…".
[[nodiscard]] int PlacePourTitre(const QStyle& style, const QStyleOptionComboBox& combo,
                                 const QWidget* controle);

class StyleGastrelle final : public QProxyStyle {
 public:
  using QProxyStyle::QProxyStyle;

  [[nodiscard]] int styleHint(StyleHint indice, const QStyleOption* option, const QWidget* controle,
                              QStyleHintReturn* retour) const override;
  [[nodiscard]] QSize sizeFromContents(ContentsType genre, const QStyleOption* option,
                                       const QSize& contenu,
                                       const QWidget* controle) const override;
  void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* peintre,
                     const QWidget* controle) const override;
  void drawControl(ControlElement element, const QStyleOption* option, QPainter* peintre,
                   const QWidget* controle) const override;
};

}  // namespace gastrelle
