// The disk of the machine, with real files in a real folder.
#pragma once

#include <filesystem>
#include <set>
#include <string>

#include <gtest/gtest.h>

#include "doublures/Bibliotheque.h"
#include "plateforme/Disque.h"

namespace gastrelle::essai {

class DisqueReel : public testing::Test {
 protected:
  std::string Lit(Fichier& fichier, std::int64_t decalage, std::size_t combien) {
    std::string octets(combien, '#');
    octets.resize(fichier.Lit(decalage, octets));
    return octets;
  }

  /// What the folder holds.
  [[nodiscard]] std::set<std::string> Noms() const {
    std::set<std::string> noms;
    for (const auto& entree : std::filesystem::directory_iterator(dossier.chemin())) {
      noms.insert(entree.path().filename().string());
    }
    return noms;
  }

  DossierEssai dossier;
  Disque disque{dossier.chemin()};
};

}  // namespace gastrelle::essai
