// Recipe files that lose room, about to be cleaned.
#pragma once

#include <array>
#include <filesystem>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "maintenance/MaintenanceEssai.h"
#include "maintenance/Nettoyage.h"

namespace gastrelle::essai {

class ObstaclesAuNettoyage : public testing::Test {
 protected:
  void SetUp() override {
    GarnitDePertes(b);
    b.Demarre();
    avant = LesQuatre(b.dossier);
    recettes = RecettesVivantes(b.dossier);
  }
  [[nodiscard]] std::filesystem::path Place(const char* nom) const {
    return b.dossier.chemin() / nom;
  }

  void AttendNettoye() {
    EXPECT_EQ(NettoieRecettes(*b.module), 3);
    EXPECT_EQ(RecettesVivantes(b.dossier), recettes);
    EXPECT_FALSE(std::filesystem::exists(std::filesystem::symlink_status(Place("TEMP"))));
  }
  /// It fails, the four files are what they were.
  void AttendIntact() {
    EXPECT_THROW(NettoieRecettes(*b.module), ErreurExecution);
    EXPECT_EQ(LesQuatre(b.dossier), avant);
  }
  /// It fails before anything is changed.
  void AttendRienTouche() {
    const auto contenu = Contenu(b.dossier.chemin());
    AttendIntact();
    EXPECT_EQ(Contenu(b.dossier.chemin()), contenu);
  }

  Bibliotheque b;
  DossierEssai ailleurs;
  std::array<std::string, 4> avant;
  std::vector<RecetteEntiere> recettes;
};

/// The parameter is the name of a file that the cleaning makes.
class ProvisoireImpossible : public ObstaclesAuNettoyage,
                             public testing::WithParamInterface<const char*> {};

}  // namespace gastrelle::essai
