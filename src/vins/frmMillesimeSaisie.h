// A page of the vintage chart that takes the grades of one year.
#pragma once

#include "controles/PageOnglet.h"
#include "vins/frmMillesimeClassement.h"

namespace gastrelle {

class frmMillesimeSaisie : public PageOnglet {
 protected:
  /// `etiquette`: name of the label that tells the year.
  frmMillesimeSaisie(const PlaceOnglet& place, const char* etiquette, const NomsClassement& noms);

  /// Tells the year whose grades are taken.
  void MontreAnnee(int annee);
  [[nodiscard]] PanneauClassement& classement() const { return *classement_; }

 private:
  QLabel* millesime_;
  PanneauClassement* classement_;
};

}  // namespace gastrelle
