// What every page of a window with tabs is made of: a logo band at its head, a pair of options if
// it works on one of two things, its controls, the buttons at its foot.
#pragma once

#include <array>

#include <QRadioButton>

#include "controles/CorpsPage.h"
#include "controles/FenetreOnglets.h"
#include "controles/Legende.h"

namespace gastrelle {

class PageOnglet : public Onglet {
 public:
  explicit PageOnglet(const PlaceOnglet& place);

  void PoseAnnonce(std::string_view texte) override;
  void TientDans(const QSize& place) override;

 protected:
  [[nodiscard]] FenetreOnglets& hote() const { return hote_; }
  [[nodiscard]] Module1& module() const { return hote_.module(); }

  /// Where a page puts its controls.
  [[nodiscard]] QGridLayout& contenu() { return *corps_.contenu; }
  /// The row of buttons at the page's foot.
  [[nodiscard]] PiedBoutons& boutons() { return *corps_.boutons; }
  /// A pair of option buttons at the page's head, before its controls: what the page works on. They
  /// are named `nom` with their index; as a group they bear the page's heading.
  std::array<QRadioButton*, 2> Options(const char* nom, const char16_t* premiere,
                                       const char16_t* seconde);

  /// The next row of the page: a caption, and a control beside it up to the page's right edge.
  /// Returns the number of the row.
  int AjouteACote(const QString& legende, QWidget* controle);
  /// The next two rows of the page: a caption, and a control under it over the page's whole width.
  /// Returns the number of the control's row.
  int AjouteDessous(const QString& legende, QWidget* controle);

 private:
  FenetreOnglets& hote_;
  CorpsPage corps_;
};

}  // namespace gastrelle
