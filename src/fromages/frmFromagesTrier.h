// The tab "Trier" of the cheeses window: the cheeses of a milk, and the way from there to a cheese.
#pragma once

#include <array>

#include "controles/ComboListe.h"
#include "controles/ListeChoix.h"
#include "controles/PageOnglet.h"

namespace gastrelle {

class frmFromagesListe;

class frmFromagesTrier final : public PageOnglet {
 public:
  frmFromagesTrier(const PlaceOnglet& place, frmFromagesListe& liste);

  [[nodiscard]] Vue VueCourante() const override;
  /// The entry rule of the tab: no milk is chosen yet.
  void Entre() override;

 private:
  void Dispose();
  void ChoisitLait();
  /// The list with the picture of its milk, or the picture of the page alone (milk 0).
  void MontreListe(int lait);
  void AfficheSelection();

  frmFromagesListe& liste_;
  ComboListe* ComboLaitTrier_;
  ListeChoix* List1_;
  QLabel* PictureSouris_;
  std::array<QLabel*, 3> PictureAnimal_;  ///< in the order of the milks
  QPushButton* cmdActiver_;
};

}  // namespace gastrelle
