// What stands out in a line of a text.

#include <ostream>

#include <QString>
#include <gtest/gtest.h>

#include "controles/TraitsTexte.h"
#include "doublures/Ecran.h"

namespace gastrelle::essai {
namespace {

struct CasTrait {
  const char* nom;
  const char* ligne;
  const char* passage;  ///< what stands out; empty: nothing
  Trait trait = Trait::cle;
};

std::ostream& operator<<(std::ostream& flux, const CasTrait& cas) {
  return flux << cas.nom;
}

class TraitsDUneLigne : public testing::TestWithParam<CasTrait> {};

TEST_P(TraitsDUneLigne, SontTrouves) {
  const QString ligne = Fr(GetParam().ligne);
  const auto passage = TraitDeLigne(ligne);
  const QString attendu = Fr(GetParam().passage);
  ASSERT_EQ(passage.has_value(), !attendu.isEmpty());
  if (passage) {
    EXPECT_EQ(ligne.mid(passage->debut, passage->longueur), attendu);
    EXPECT_EQ(passage->trait, GetParam().trait);
  }
}

INSTANTIATE_TEST_SUITE_P(
    Lignes, TraitsDUneLigne,
    testing::Values(
        CasTrait{"Ingredients", "Ingrédients", "Ingrédients", Trait::titre},
        CasTrait{"Etapes", "Étapes", "Étapes", Trait::titre},
        CasTrait{"Organisation", "Organisation", "Organisation", Trait::titre},
        CasTrait{"TitreEnCapitales", "INGRÉDIENTS :", "INGRÉDIENTS", Trait::titre},
        CasTrait{"TitreEnRetrait", "  Étapes ", "Étapes", Trait::titre},
        CasTrait{"TitreSuiviDeMots", "Ingrédients pour la pâte", ""},
        CasTrait{"Cle", "Cuisson : 20 min", "Cuisson"},
        CasTrait{"CleEtInsecable", "Cuisson\u00A0: 20 min", "Cuisson"},
        CasTrait{"CleDePlusieursMots", "Une heure avant : dresser.", "Une heure avant"},
        CasTrait{"CleAccentuee", "À boire : du café.", "À boire"},
        CasTrait{"CleSansBlanc", "Cuisson: 20 min", ""},
        CasTrait{"CleEnMinuscule", "ensuite : servir.", ""},
        CasTrait{"CleAvecUnChiffre", "Le four à 210 °C : cuire.", ""},
        CasTrait{"PhraseAvecDeuxPoints",
                 "Laisser reposer la pâte au frais une nuit entière : elle sera meilleure.", ""},
        CasTrait{"DeuxPointsAuDebut", " : rien", ""},
        CasTrait{"PourTant", "Pour 4 personnes", "Pour 4 personnes"},
        CasTrait{"PourEtUneCle", "Pour finir : un café.", "Pour finir"},
        CasTrait{"PourEtUnePhrase", "Pour 8 personnes, de 11 h à 14 h : chacun arrive et revient.",
                 ""},
        CasTrait{"Numero", "1. Éplucher.", "1.", Trait::marque},
        CasTrait{"NumeroADeuxChiffres", "12) Servir.", "12)", Trait::marque},
        CasTrait{"NumeroEtCle", "2. Ajouter : le sel.", "2.", Trait::marque},
        CasTrait{"Quantite", "200 g de sucre", ""}, CasTrait{"Decimale", "1.5 l d'eau", ""},
        CasTrait{"Annee", "1998. Un grand millésime.", ""},
        CasTrait{"Tiret", "- 1 oignon", "-", Trait::marque},
        CasTrait{"Puce", "• 1 oignon", "•", Trait::marque}, CasTrait{"TiretSeul", "-", ""},
        CasTrait{"NombreNegatif", "-18 °C au congélateur", ""}, CasTrait{"Vide", "", ""},
        CasTrait{"Blancs", "   ", ""}),
    [](const auto& cas) { return std::string(cas.param.nom); });

TEST(TraitsDUneLigneLongue, NeRegardeQueSonDebut) {
  const QString longue = QString(30000, u'a') + QStringLiteral(" : fin");
  EXPECT_FALSE(TraitDeLigne(longue));
}

}  // namespace
}  // namespace gastrelle::essai
