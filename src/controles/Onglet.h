// A tab of a window, as its window sees it: what describes it, what makes its page, what the page
// answers.
#pragma once

#include <string_view>

#include <QWidget>

#include "data/Vues.h"

namespace gastrelle {

class FenetreOnglets;
class Onglet;
struct PlaceOnglet;

/// What a tab and the head of its page say, and how the page is made. The texts are the screen's
/// own.
struct DescriptionOnglet {
  const char16_t* titre;
  const char16_t* infobulle;
  const char16_t* entete;         ///< heading of the page
  const char16_t* infobulleLogo;  ///< tooltip of the logo
  const char* sujetAide;          ///< topic that the help key opens on this page
  Onglet& (*cree)(const PlaceOnglet& place);
};

/// Where a page stands: all that its window tells it when it is made.
struct PlaceOnglet {
  FenetreOnglets& hote;
  int numero;  ///< of the tab, from 1
  const DescriptionOnglet& description;
  const char* logo;
  bool ligneDuLogo;  ///< what the logo's tooltip says stands in the band as well
};

/// The page of a tab.
class Onglet : public QWidget {
 public:
  using QWidget::QWidget;

  /// The entry rules of the tab, once the frame has its pattern.
  virtual void Entre() = 0;
  /// Text of the box in the logo band, Windows-1252.
  virtual void PoseAnnonce(std::string_view texte) = 0;
  /// What the tab shows, for those who read it from outside.
  [[nodiscard]] virtual Vue VueCourante() const { return {}; }
};

}  // namespace gastrelle
