// The failures: their numbers, what the user reads, what stands for an error of the system.

#include <cerrno>
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

TEST(ErreurExecution, TraduitLesErreursDuSysteme) {
  EXPECT_EQ(PanneDuSysteme(ENOENT), Panne::fichierIntrouvable);
  EXPECT_EQ(PanneDuSysteme(EIO), Panne::entreeSortie);
  EXPECT_EQ(PanneDuSysteme(ENOMEM), Panne::memoireInsuffisante);
  EXPECT_EQ(PanneDuSysteme(ENOTDIR), Panne::cheminIntrouvable);
  EXPECT_EQ(PanneDuSysteme(EINVAL), Panne::appelIncorrect);
  for (const int plein : {ENOSPC, EDQUOT, EFBIG}) {
    EXPECT_EQ(PanneDuSysteme(plein), Panne::disquePlein) << plein;
  }
  for (const int refus : {EACCES, EPERM, EROFS}) {
    EXPECT_EQ(PanneDuSysteme(refus), Panne::permissionRefusee) << refus;
  }
}

TEST(ErreurExecution, PrendTouteAutreErreurDuSystemePourUnAccesManque) {
  for (const int autre : {EISDIR, EEXIST, ENOTEMPTY, EMFILE, ENAMETOOLONG, 0, -1}) {
    EXPECT_EQ(PanneDuSysteme(autre), Panne::accesFichier) << autre;
  }
}

}  // namespace
}  // namespace gastrelle::essai
