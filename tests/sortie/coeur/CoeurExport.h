// The library of the export's tests, and what its document is then.
#pragma once

#include <chrono>
#include <functional>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "data/Texte1252.h"
#include "doublures/Bibliotheque.h"
#include "sortie/Export.h"

namespace gastrelle::essai {

inline constexpr auto sansEntreTemps = [] {};

/// Three families (2 to 4), the last one empty. Recipe 3 of the second family stands between two of
/// the first one, recipe 5 is deleted, recipe 6 has a place in the pool and no length, recipe 7
/// comes last and is no longer sorted than the others.
inline void GarnitExport(Bibliotheque& b) {
  const std::int32_t boeufs = b.AjouteFamille("  bœufs à l'échalote "_1252);
  b.AjouteFamille("Vide");
  b.AjouteRecette(boeufs, "Zeste de bœuf à l'œuf"_1252, "1. Hacher.\r\n\r\n   2. Cuire.\r\n");
  b.AjouteRecette(2, "abats");
  b.AjouteRecette(2, "Perdue", "Un texte.");
  b.AjouteRecette(2, " Sans rien ");
  b.AjouteRecette(boeufs, "Daube", "Une nuit.");
}

/// The start on it, `encore` adding what else is to be in it; the fifth of March 2026.
inline void DemarreExport(
    Bibliotheque& b, const std::function<void()>& encore = [] {}) {
  GarnitExport(b);
  encore();
  b.Demarre();
  b.horloge.date = std::chrono::year{2026} / 3 / 5;
  RecRecette recette;
  b.module->bufRecette.Lit(5, recette);
  recette.actif = 0;
  b.module->bufRecette.Ecrit(5, recette);
  b.module->bufRecette.Compte(-1);
  b.module->bufRecette.Lit(6, recette);
  recette.posTexte = 1;
  b.module->bufRecette.Ecrit(6, recette);
  b.module->bufFamille.LitCourant(3);
  b.module->bufRecette.LitCourant(3);
  b.disque.OublieJournal();
}

inline const std::vector<std::int32_t> toutesLesFamilles{2, 3, 4};

/// The document of all families of that library, as it was written by hand.
std::string ModeleExport();

class CoeurExport : public testing::Test {
 protected:
  bool Exporte(const std::vector<std::int32_t>& familles) {
    b.disque.OublieJournal();
    return EcritExport(*b.module, familles, sansEntreTemps);
  }
  [[nodiscard]] std::string Document() const { return b.dossier.Lit(documentExport); }

  Bibliotheque b;
};

/// Its heading, and the empty lines below it.
inline std::string EnteteExport() {
  return "Gastrelle 2005 Export des recettes au 5/3/2026\r\n\r\n\r\n";
}

}  // namespace gastrelle::essai
