// What every page consists of, from top to bottom: a logo band at its head, the place of its
// controls, the buttons at its foot.
#pragma once

#include <QGridLayout>
#include <QWidget>

#include "controles/BandeauLogo.h"
#include "controles/Boutons.h"

namespace gastrelle {

struct CorpsPage {
  /// Lays the three out on a page; the band is made for it.
  CorpsPage(QWidget& page, BandeauLogo* leBandeau);

  BandeauLogo* bandeau;
  QGridLayout* contenu;
  PiedBoutons* boutons;
};

}  // namespace gastrelle
