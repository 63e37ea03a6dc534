// A folder "D" of the disk, and another one elsewhere.
#pragma once

#include <filesystem>

#include <gtest/gtest.h>

#include "doublures/Bibliotheque.h"
#include "plateforme/Disque.h"

namespace gastrelle::essai {

class FichiersDUnDossier : public testing::Test {
 protected:
  FichiersDUnDossier() { std::filesystem::create_directory(dossier.chemin() / "D"); }

  [[nodiscard]] std::filesystem::path Place(const char* nom) const {
    return dossier.chemin() / nom;
  }

  DossierEssai dossier;
  DossierEssai ailleurs;
  Disque disque{dossier.chemin()};
};

}  // namespace gastrelle::essai
