// What the program's style draws otherwise than the system's.

#include <algorithm>
#include <memory>

#include <QImage>
#include <QPainter>
#include <QStyleFactory>
#include <QStyleOptionViewItem>
#include <gtest/gtest.h>

#include "controles/StyleGastrelle.h"
#include "controles/Teintes.h"

namespace gastrelle::essai {
namespace {

QPalette Palette(const QColor& fenetre, const QColor& fond, const QColor& encre) {
  QPalette palette(fenetre);
  palette.setColor(QPalette::Base, fond);
  palette.setColor(QPalette::Text, encre);
  return palette;
}

/// The best contrast with its ground that the box of a list's row shows, not ticked.
double ContrasteDeLaCase(const QStyle& style, const QPalette& palette) {
  constexpr int cote = 16;
  const QColor fond = palette.color(QPalette::Base);
  QImage image(cote, cote, QImage::Format_RGB32);
  image.fill(fond);
  QStyleOptionViewItem option;
  option.palette = palette;
  option.rect = image.rect();
  option.state = QStyle::State_Enabled | QStyle::State_Off;
  QPainter peintre(&image);
  style.drawPrimitive(QStyle::PE_IndicatorItemViewItemCheck, &option, &peintre);
  peintre.end();
  double meilleur = 1;
  for (int x = 0; x < cote; ++x) {
    meilleur = std::max(meilleur, Contraste(image.pixelColor(x, cote / 2), fond));
  }
  return meilleur;
}

TEST(CaseDUneListe, SeVoitAussiSurUnePaletteSombre) {
  const QPalette sombre = Palette({0x2a, 0x2e, 0x32}, {0x1b, 0x1e, 0x20}, {0xfc, 0xfc, 0xfc});
  const StyleGastrelle style(QStyleFactory::create(QStringLiteral("Fusion")));
  EXPECT_GT(ContrasteDeLaCase(style, sombre), 3.0);
}

TEST(CaseDUneListe, ResteCelleDuSystemeSurUnePaletteClaire) {
  const QPalette claire = Palette({0xef, 0xef, 0xef}, Qt::white, Qt::black);
  const std::unique_ptr<QStyle> systeme(QStyleFactory::create(QStringLiteral("Fusion")));
  const StyleGastrelle style(QStyleFactory::create(QStringLiteral("Fusion")));
  EXPECT_EQ(ContrasteDeLaCase(style, claire), ContrasteDeLaCase(*systeme, claire));
}

}  // namespace
}  // namespace gastrelle::essai
