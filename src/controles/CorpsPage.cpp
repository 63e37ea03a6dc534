#include "controles/CorpsPage.h"

#include <QVBoxLayout>

namespace gastrelle {

CorpsPage::CorpsPage(QWidget& page, BandeauLogo* leBandeau)
    : bandeau(leBandeau), contenu(new QGridLayout), boutons(new PiedBoutons) {
  constexpr int marge = 10;
  constexpr int margeHaute = 8;
  constexpr int margeBasse = 4;
  auto* colonne = new QVBoxLayout(&page);
  colonne->setContentsMargins(marge, margeHaute, marge, margeBasse);
  colonne->addWidget(bandeau);
  colonne->addLayout(contenu, 1);
  colonne->addLayout(boutons);
}

}  // namespace gastrelle
