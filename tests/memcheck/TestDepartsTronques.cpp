// Starts on a folder one of whose files is cut short anywhere, down to nothing.

#include <array>

#include <gtest/gtest.h>

#include "doublures/Depart.h"

namespace gastrelle::essai {
namespace {

/// Lengths in bytes: nothing, within a first number, a name, a row of a directory, a header's name.
constexpr std::array<std::size_t, 9> longueurs{0, 1, 2, 3, 5, 8, 9, 12, 60};

/// The least length at which the start accepts the file.
std::size_t Suffisante(Donnees fichier) {
  switch (Ligne(fichier).controle) {
    case Controle::entete:
      return longueurs.back() + 1;
    case Controle::signature:
      return Signature(fichier).size();
    case Controle::aucun:
      return 0;
  }
  return 0;
}

class DepartsTronques : public testing::TestWithParam<std::size_t> {
 protected:
  /// The preferences have no factory copy: what stands there is nothing.
  [[nodiscard]] std::string Fabrique() const { return NomFabrique(fichier); }

  const Donnees fichier = static_cast<Donnees>(GetParam());
};

INSTANTIATE_TEST_SUITE_P(Tous, DepartsTronques, testing::Range<std::size_t>(0, nombreFichiers),
                         [](const auto& cas) {
                           const std::string nom = Nom(static_cast<Donnees>(cas.param));
                           return nom.substr(0, nom.find('.'));
                         });

TEST_P(DepartsTronques, VontAuCadreOuDisentLeFichier) {
  for (const std::size_t longueur : longueurs) {
    SCOPED_TRACE(longueur);
    Bibliotheque b;
    b.dossier.Ecrit(Nom(fichier), b.dossier.Lit(Fabrique()).substr(0, longueur));
    const Depart depart = Essaie(b);
    EXPECT_FALSE(depart.erreur);
    if (longueur >= Suffisante(fichier)) {
      EXPECT_TRUE(depart.cadre);
    } else {
      EXPECT_EQ(depart.fin, 1);
      EXPECT_EQ(b.messages.vus.back(), TroisLignes(b, Nom(fichier)));
    }
  }
}

TEST(PreferencesTronquees, CeQuiManqueVautZero) {
  for (std::size_t longueur = 0; longueur < longueurEnregistrement<RecPreferences>; ++longueur) {
    SCOPED_TRACE(longueur);
    Bibliotheque b;
    b.dossier.Ecrit("GLPREF.DAT", std::string(longueur, '\xFF'));
    b.Demarre();
    const std::string attendus =
        std::string(longueur, '\xFF') +
        std::string(longueurEnregistrement<RecPreferences> - longueur, '\0');
    EXPECT_EQ(Octets(b.module->prefs[0]), attendus);
  }
}

}  // namespace
}  // namespace gastrelle::essai
