// The application's style: the system's, but for what the program's lists and boxes need.
#pragma once

#include <QProxyStyle>
#include <QStyleOptionComboBox>

namespace gastrelle {

/// The width, in pixels, that a closed drop-down list leaves to its title.
int PlaceTitre(const QStyleOptionComboBox& combo, const QWidget& controle);

class StyleGastrelle final : public QProxyStyle {
 public:
  using QProxyStyle::QProxyStyle;

  [[nodiscard]] int styleHint(StyleHint indice, const QStyleOption* option, const QWidget* controle,
                              QStyleHintReturn* retour) const override;
  void drawControl(ControlElement element, const QStyleOption* option, QPainter* peintre,
                   const QWidget* controle) const override;
};

}  // namespace gastrelle
