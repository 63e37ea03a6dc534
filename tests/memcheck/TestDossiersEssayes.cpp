// Hundreds of folders read by the core: under memcheck nothing may depend on what was never
// written.

#include <algorithm>
#include <string_view>

#include <gtest/gtest.h>

#include "fuzz/Graines.h"
#include "fuzz/Parcours.h"
#include "memcheck/DossiersEssayes.h"

namespace gastrelle::essai {
namespace {

constexpr std::size_t nombreDossiers = 200;

/// Number of zero bytes: to count them each byte has to be looked at.
std::size_t Regarde(std::string_view texte) {
  return static_cast<std::size_t>(std::count(texte.begin(), texte.end(), '\0'));
}

std::size_t Regarde(const std::vector<std::string>& textes) {
  std::size_t zeros = 0;
  for (const std::string& texte : textes) {
    zeros += Regarde(texte);
  }
  return zeros;
}

std::size_t Regarde(const Liste& liste) {
  std::size_t zeros = 0;
  for (const EntreeListe& entree : liste) {
    zeros += Regarde(entree.texte) + (entree.numero == 0 ? 1U : 0U);
  }
  return zeros;
}

std::size_t Regarde(const Bilan& bilan) {
  std::size_t zeros = Regarde(bilan.familles) + Regarde(bilan.recettes) + Regarde(bilan.textes) +
                      Regarde(bilan.images) + Regarde(bilan.regions) + Regarde(bilan.cave);
  for (const Lus* lus : {&bilan.fromages, &bilan.menus, &bilan.trucs, &bilan.vins}) {
    zeros += Regarde(lus->liste) + Regarde(lus->textes);
  }
  return zeros;
}

TEST(DossiersEssayes, CommencentParLesGrainesEtSontToujoursLesMemes) {
  const std::vector<std::string> dossiers = DossiersEssayes(nombreDossiers);
  ASSERT_GE(dossiers.size(), nombreDossiers);
  const std::vector<Graine> graines = Graines();
  for (std::size_t i = 0; i < graines.size(); ++i) {
    EXPECT_EQ(dossiers[i], graines[i].octets) << graines[i].nom;
  }
  EXPECT_EQ(DossiersEssayes(nombreDossiers), dossiers);
}

TEST(DossiersEssayes, SeParcourentTousEtLaPlupartJusquAuCadre) {
  std::size_t jusquAuCadre = 0;
  std::size_t avecTextes = 0;
  std::size_t zeros = 0;
  for (const std::string& dossier : DossiersEssayes(nombreDossiers)) {
    const Bilan bilan = Parcourt(dossier);
    jusquAuCadre += bilan.cadre ? 1U : 0U;
    avecTextes += bilan.textes.empty() && bilan.menus.textes.empty() ? 0U : 1U;
    zeros += Regarde(bilan);
  }
  EXPECT_GE(jusquAuCadre, nombreDossiers / 2);
  EXPECT_GE(avecTextes, nombreDossiers / 4);
  EXPECT_GT(zeros, 0U);
}

}  // namespace
}  // namespace gastrelle::essai
