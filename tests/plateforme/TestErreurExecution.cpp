// The failures: their numbers and what the user reads.

#include <string_view>

#include <gtest/gtest.h>

#include "data/Texte1252.h"
#include "plateforme/ErreurExecution.h"

namespace gastrelle::essai {
namespace {

struct PanneDite {
  Panne panne;
  int numero;
  std::string_view texte;
};

constexpr PanneDite pannes[] = {
    {Panne::appelIncorrect, 5, "Argument ou appel de procédure incorrect"_1252},
    {Panne::depassement, 6, "Dépassement de capacité"_1252},
    {Panne::memoireInsuffisante, 7, "Mémoire insuffisante"_1252},
    {Panne::fichierFerme, 52, "Nom ou numéro de fichier incorrect"_1252},
    {Panne::fichierIntrouvable, 53, "Fichier introuvable"},
    {Panne::entreeSortie, 57, "Erreur d'entrée/sortie"_1252},
    {Panne::disquePlein, 61, "Disque plein"},
    {Panne::numeroEnregistrement, 63, "Numéro d'enregistrement incorrect"_1252},
    {Panne::permissionRefusee, 70, "Permission refusée"_1252},
    {Panne::accesFichier, 75, "Erreur d'accès au fichier"_1252},
    {Panne::cheminIntrouvable, 76, "Chemin d'accès introuvable"_1252},
};

TEST(ErreurExecution, ADeChaquePanneLeNumeroEtLeTexte) {
  for (const PanneDite& dite : pannes) {
    const ErreurExecution erreur(dite.panne);
    EXPECT_EQ(erreur.numero(), dite.numero);
    EXPECT_EQ(erreur.panne(), dite.panne);
    EXPECT_EQ(std::string_view(erreur.what()), dite.texte);
  }
}

TEST(ErreurExecution, SeRapporteAvecSonNumeroPuisSonTexte) {
  EXPECT_EQ(ErreurExecution(Panne::fichierIntrouvable).Rapport(),
            "Erreur d'exécution '53' : Fichier introuvable"_1252);
  EXPECT_EQ(ErreurExecution(Panne::depassement).Rapport(),
            "Erreur d'exécution '6' : Dépassement de capacité"_1252);
}

}  // namespace
}  // namespace gastrelle::essai
