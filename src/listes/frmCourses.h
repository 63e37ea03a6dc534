// The window of the shopping list: the aisles, and what is to be bought in the one that is chosen.
#pragma once

#include <string>

#include <QPushButton>

#include "controles/FenetreEnfant.h"
#include "controles/FeuilleTexte.h"
#include "controles/ListeChoix.h"

namespace gastrelle {

class frmCourses final : public FenetreEnfant {
 public:
  /// Opens on the first aisle.
  frmCourses(Module1& module, Cadre& cadre);

  [[nodiscard]] Vue VueCourante() const override;
  /// The text of the aisle on display goes to the shared texts, without the blanks at both ends.
  void RangeSaisie() override { RangeTexte(); }
  /// The same, the box staying as it is.
  void EnregistreSaisie() override;

 private:
  [[nodiscard]] std::string& TexteCourant() const;
  [[nodiscard]] bool SontVides() const;
  void RangeTexte();
  void ChoisitRayon();
  void AfficheRayon();
  void EffaceTout();

  ListeChoix* lstRayons_;
  FeuilleTexte* txtDetail_;
  QPushButton* cmdNouveau_;
  bool ignoreClic_ = false;  ///< the next choice of an aisle is the window's own
};

}  // namespace gastrelle
