// A program folder with the factory copies as the build laid them, and the program started on it.
#pragma once

#include <filesystem>
#include <set>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "doublures/Bibliotheque.h"
#include "usine/Catalogues.h"

namespace gastrelle::usine {

/// A program folder with the factory copies and the pictures of the build, started.
class Fabrique : public testing::Test {
 protected:
  void SetUp() override {
    b.GarnitDeFabrique(DOSSIER_PROGRAMME);
    std::filesystem::copy(std::filesystem::path(DOSSIER_PROGRAMME) / "IMAGE",
                          b.dossier.chemin() / "IMAGE");
    b.Demarre();
    m = b.module.get();
  }

  /// All live records of a catalogue; the header must count exactly these, one behind the other.
  template <class T>
  static std::vector<T> Fiches(FichierEnregistrements<T>& fichier) {
    std::vector<T> fiches;
    fichier.ParcourtVivants(fichier.courant(), [&](std::int32_t numero) {
      EXPECT_EQ(numero, static_cast<std::int32_t>(fiches.size()) + 2);
      fiches.push_back(fichier.courant());
    });
    EXPECT_EQ(fichier.nbActifs(), static_cast<int>(fiches.size()));
    EXPECT_EQ(fichier.Nombre(), static_cast<int>(fiches.size()) + 1);
    return fiches;
  }

  /// The texts behind `posTexte` and `lgTexte` of all records.
  template <class T>
  static std::vector<std::string> Textes(FichierEnregistrements<T>& fichier, Reserve& reserve) {
    std::vector<std::string> textes;
    for (const T& fiche : Fiches(fichier)) {
      textes.push_back(reserve.Lit(fiche.posTexte, fiche.lgTexte));
      EXPECT_THAT(textes.back(), testing::SizeIs(fiche.lgTexte));
    }
    return textes;
  }

  template <class T>
  static std::vector<std::string> Noms(FichierEnregistrements<T>& fichier) {
    std::vector<std::string> noms;
    for (const T& fiche : Fiches(fichier)) {
      noms.emplace_back(Rogne(NomOuSignature(fiche).brut()));
    }
    return noms;
  }

  std::vector<Annee> Annees() {
    std::vector<Annee> annees;
    for (std::int64_t numero = 1; numero <= m->bufMillesime.Nombre(); ++numero) {
      RecMillesime e;
      m->bufMillesime.Lit(numero, e);
      annees.push_back(std::apply([&](const auto&... champ) { return Annee{(e.*champ.membre)...}; },
                                  champs<RecMillesime>));
    }
    return annees;
  }

  static void AttendPleinsEtUniques(const std::vector<std::string>& textes) {
    const std::set<std::string> differents(textes.begin(), textes.end());
    EXPECT_EQ(differents.size(), textes.size());
    EXPECT_FALSE(differents.contains(""));
  }

  essai::Bibliotheque b;
  Module1* m = nullptr;
};

}  // namespace gastrelle::usine
