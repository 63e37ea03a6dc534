// The library of the core's tests: the favourites of the factory, and one of the user's.
#pragma once

#include <string>

#include <gtest/gtest.h>

#include "favoris/FavorisEssai.h"

namespace gastrelle::essai {

// Category 5 begins at byte 4 * 130 = 520 of its file, favourite 16 at byte 15 * 724 = 10860.
class CoeurFavoris : public testing::Test {
 protected:
  CoeurFavoris() { b.GarnitFavoris(); }

  /// The same with "Affineur" in a library of its own, for what fails at each of its writes.
  static void GarnitAvecAffineur(Bibliotheque& avec) {
    avec.GarnitFavoris();
    AjouteAffineur(avec);
  }

  /// Puts it on display and forgets what was read for it.
  static void LitAffineur(Bibliotheque& avec) {
    static_cast<void>(LitFavori(*avec.module, 16));
    avec.disque.OublieJournal();
  }

  void DemarreSurAffineur() {
    AjouteAffineur(b);
    b.Demarre();
    LitAffineur(b);
  }

  /// Starts with "Affineur", whose record is then changed on file.
  template <class Change>
  void DemarreAvec(Change change) {
    AjouteAffineur(b);
    b.Demarre();
    RecFavori favori = FicheFavori(b, 16);
    change(favori);
    b.module->bufFavori.Ecrit(16, favori);
    b.disque.OublieJournal();
  }

  [[nodiscard]] std::string NomCourant() const {
    return std::string(Rogne(b.module->bufFavori.courant().nomFavori.brut()));
  }
  [[nodiscard]] std::string CategorieCourante() const {
    return std::string(Rogne(b.module->bufCategorie.courant().nomFamille.brut()));
  }

  Bibliotheque b;
};

}  // namespace gastrelle::essai
