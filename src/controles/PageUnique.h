// The only page of a window without tabs: a logo band at its head, its controls, the buttons at its
// foot. It fills its window, and scrolls where that is small.
#pragma once

#include <QWidget>

#include "controles/CorpsPage.h"
#include "controles/FenetreEnfant.h"

namespace gastrelle {

class PageUnique final : public QWidget {
 public:
  /// `infobulle`: the logo's tooltip. `sujet`: the window's help topic.
  PageUnique(FenetreEnfant& fenetre, const char16_t* infobulle, const char* sujet);

  /// Where the window puts its controls.
  [[nodiscard]] QGridLayout& contenu() { return *corps_.contenu; }
  /// A column of the page: a caption, and a control under it that takes all the height.
  void AjouteColonne(int colonne, const QString& legende, QWidget* controle);
  /// The row of buttons at the page's foot.
  [[nodiscard]] PiedBoutons& boutons() { return *corps_.boutons; }

 private:
  CorpsPage corps_;
};

}  // namespace gastrelle
