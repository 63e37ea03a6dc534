#include "vignobles/CarteVignoblesTeintes.h"

#include <algorithm>

#include "controles/Teintes.h"

namespace gastrelle {
namespace {

constexpr QRgb ocre = 0xffd9a441;
constexpr QRgb eau = 0xff3f86b5;

/// Garnet, rose, ripe wheat, vine leaf, amber, plum.
constexpr std::array<QRgb, 6> robes{0xffa3173c, 0xffe0567a, 0xffc9971a,
                                    0xff5f8f2f, 0xffd9701f, 0xff7a3d8c};

/// As much of a tone on a ground as a text in that ink allows, no more than so many hundredths.
QColor FondLisible(const QColor& fond, const QColor& ton, const QColor& encre, int centiemes) {
  while (centiemes > 0 && Contraste(encre, Melange(fond, ton, centiemes)) < contrasteLisible) {
    --centiemes;
  }
  return Melange(fond, ton, centiemes);
}

}  // namespace

TeintesCarte TeintesDeLaCarte(const QPalette& palette) {
  constexpr int partTerre = 14;
  constexpr int partMer = 16;
  constexpr int partCote = 30;
  constexpr int partTrait = 45;
  constexpr int partFleuve = 65;
  constexpr int partAire = 50;
  constexpr int partBord = 88;
  const QColor papier = palette.color(QPalette::Base);
  const QColor encre = palette.color(QPalette::Text);
  const QColor bleu = QColor::fromRgb(eau);
  TeintesCarte teintes{};
  teintes.encre = encre;
  teintes.mer = FondLisible(papier, bleu, encre, partMer);
  teintes.cote = FondLisible(papier, bleu, encre, partCote);
  teintes.terre = FondLisible(papier, QColor::fromRgb(ocre), encre, partTerre);
  teintes.trait = Melange(teintes.terre, encre, partTrait);
  teintes.fleuve = Melange(teintes.terre, bleu, partFleuve);
  const QColor surTerre = TonDiscret(encre, teintes.terre);
  const QColor surMer = TonDiscret(encre, teintes.mer);
  teintes.discrete = Contraste(surTerre, teintes.mer) >= contrasteLisible ? surTerre : surMer;
  for (std::size_t i = 0; i < robes.size(); ++i) {
    const QColor robe = QColor::fromRgb(robes[i]);
    teintes.aires[i] = FondLisible(teintes.terre, robe, encre, partAire);
    // Light on a dark paper, so that it stands out there as well.
    teintes.bords[i] = Melange(encre, robe, partBord);
  }
  return teintes;
}

}  // namespace gastrelle
