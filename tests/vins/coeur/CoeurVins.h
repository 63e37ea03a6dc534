// The library of the core's tests: the wines of the factory, and one of the user's.
#pragma once

#include <string>

#include <gtest/gtest.h>

#include "vins/VinsEssai.h"

namespace gastrelle::essai {

// Region 29 begins at byte 28 * 66 = 1848 of its file, wine 565 at byte 564 * 104 = 58656.
class CoeurVins : public testing::Test {
 protected:
  CoeurVins() { b.GarnitVins(); }

  /// "Abymes" (565) of the region "Alpes" (29): six white and two red bottles, a note of ten bytes
  /// at position 9, one of eight on the cellar at 19, which ends the pool.
  static void AjouteAbymes(Bibliotheque& avec) {
    avec.AjouteVin(VinEnCave("Abymes", {6, 2}, avec.AjouteRegion("Alpes")), "Dix octets",
                   "En haut.");
  }

  /// The same in a library of its own, for what fails at each of its writes.
  static void GarnitAvecAbymes(Bibliotheque& avec) {
    avec.GarnitVins();
    AjouteAbymes(avec);
  }

  /// Puts it on display and forgets what was read for it.
  static void LitAbymes(Bibliotheque& avec) {
    LitVin(*avec.module, 565);
    avec.disque.OublieJournal();
  }

  void DemarreSurAbymes() {
    AjouteAbymes(b);
    b.Demarre();
    LitAbymes(b);
  }

  /// The same, the record of "Abymes" being changed on file before it is read.
  template <class Change>
  void DemarreAvec(Change change) {
    AjouteAbymes(b);
    b.Demarre();
    RecVin vin = FicheVin(b, 565);
    change(vin);
    b.module->bufVin.Ecrit(565, vin);
    b.disque.OublieJournal();
  }

  [[nodiscard]] std::string NomCourant() const {
    return std::string(Rogne(b.module->bufVin.courant().nomVin.brut()));
  }
  [[nodiscard]] std::string RegionCourante() const {
    return std::string(Rogne(b.module->bufRegion.courant().nomRegion.brut()));
  }

  /// A message about a file that is away.
  [[nodiscard]] MessageVu Disparu(std::string_view nom) const {
    std::string texte = "Fichier " + b.module->chemins.De(nom) + "\r\n";
    texte += "non trouvé ou erreur disque."_1252;
    return {texte, Icone::critique, "Gastrelle 2005"};
  }

  Bibliotheque b;
};

}  // namespace gastrelle::essai
