// The folder in memory behaves as the disk of the machine does.

#include <array>

#include <gtest/gtest.h>

#include "fuzz/DisqueMemoire.h"
#include "plateforme/ErreurExecution.h"

namespace gastrelle::essai {
namespace {

template <class F>
void Echoue(Panne attendue, F&& appel) {
  try {
    appel();
    ADD_FAILURE() << "n'a pas échoué";
  } catch (const ErreurExecution& erreur) {
    EXPECT_EQ(erreur.panne(), attendue);
  }
}

TEST(DisqueMemoire, OuvrirCreeUnFichierVide) {
  DisqueMemoire disque;
  EXPECT_FALSE(disque.Existe("A"));
  EXPECT_EQ(disque.Ouvre("A")->Longueur(), 0);
  EXPECT_TRUE(disque.Existe("A"));
}

TEST(DisqueMemoire, OuvrirPourLireNeCreeRien) {
  DisqueMemoire disque;
  disque.Pose("A", "abc");
  EXPECT_EQ(disque.OuvrePourLire("A")->Longueur(), 3);
  Echoue(Panne::fichierIntrouvable, [&] { static_cast<void>(disque.OuvrePourLire("B")); });
  EXPECT_FALSE(disque.Existe("B"));
}

TEST(DisqueMemoire, CreerVideCeQuiEstLa) {
  DisqueMemoire disque;
  disque.Pose("A", "abc");
  const auto dejaOuvert = disque.Ouvre("A");
  EXPECT_EQ(disque.Cree("A")->Longueur(), 0);
  EXPECT_EQ(dejaOuvert->Longueur(), 0);
  disque.Cree("B")->Ecrit(0, "x");
  EXPECT_EQ(disque.Lit("B"), "x");
}

TEST(DisqueMemoire, LitCeQueLeFichierTientEtRienAuDela) {
  DisqueMemoire disque;
  disque.Pose("A", "abcdef");
  const auto fichier = disque.Ouvre("A");
  std::array<char, 4> tampon{};
  EXPECT_EQ(fichier->Lit(4, tampon), 2U);
  EXPECT_EQ(std::string(tampon.data(), 2), "ef");
  EXPECT_EQ(fichier->Lit(std::int64_t{1} << 40U, tampon), 0U);
}

TEST(DisqueMemoire, EcrireDeborde) {
  DisqueMemoire disque;
  disque.Pose("A", "abc");
  disque.Ouvre("A")->Ecrit(2, "xy");
  EXPECT_EQ(disque.Lit("A"), "abxy");
  disque.Ouvre("A")->Ecrit(6, "z");
  EXPECT_EQ(disque.Lit("A"), std::string("abxy\0\0z", 7));
}

TEST(DisqueMemoire, UnFichierDemesureTrouveLeDisquePlein) {
  DisqueMemoire disque;
  const auto fichier = disque.Ouvre("A");
  fichier->Ecrit(DisqueMemoire::capacite - 1, "x");
  Echoue(Panne::disquePlein, [&] { fichier->Ecrit(DisqueMemoire::capacite, "x"); });
  EXPECT_EQ(fichier->Longueur(), DisqueMemoire::capacite);
}

TEST(DisqueMemoire, UnFichierOuvertSurvitASonNom) {
  DisqueMemoire disque;
  disque.Pose("A", "abc");
  const auto fichier = disque.Ouvre("A");
  disque.Supprime("A");
  EXPECT_FALSE(disque.Existe("A"));
  EXPECT_EQ(fichier->Longueur(), 3);
}

TEST(DisqueMemoire, CopieEtRenomme) {
  DisqueMemoire disque;
  disque.Pose("A", "abc");
  disque.Copie("A", "B");
  disque.Renomme("A", "C");
  disque.Ouvre("C")->Ecrit(0, "z");
  EXPECT_EQ(disque.Lit("B"), "abc");
  EXPECT_EQ(disque.Lit("C"), "zbc");
  EXPECT_FALSE(disque.Existe("A"));
}

TEST(DisqueMemoire, CeQuiNEstPasLaEchoue) {
  DisqueMemoire disque;
  Echoue(Panne::fichierIntrouvable, [&] { disque.Copie("A", "B"); });
  Echoue(Panne::fichierIntrouvable, [&] { disque.Supprime("A"); });
  Echoue(Panne::fichierIntrouvable, [&] { disque.Renomme("A", "B"); });
  Echoue(Panne::cheminIntrouvable, [&] { disque.SupprimeDossier("D"); });
  EXPECT_FALSE(disque.Existe("B"));
}

TEST(DisqueMemoire, UnDossierNEstPasUnFichier) {
  DisqueMemoire disque;
  disque.CreeDossier("IMAGE");
  EXPECT_TRUE(disque.DossierExiste("IMAGE"));
  EXPECT_FALSE(disque.Existe("IMAGE"));
  Echoue(Panne::accesFichier, [&] { disque.CreeDossier("IMAGE"); });
  disque.SupprimeDossier("IMAGE");
  EXPECT_FALSE(disque.DossierExiste("IMAGE"));
}

TEST(DisqueMemoire, EchoueUneFoisALAppelVoulu) {
  DisqueMemoire disque;
  disque.EchoueALAppel(2);
  EXPECT_FALSE(disque.Existe("A"));
  Echoue(Panne::entreeSortie, [&] { static_cast<void>(disque.Existe("A")); });
  EXPECT_FALSE(disque.Existe("A"));
}

}  // namespace
}  // namespace gastrelle::essai
