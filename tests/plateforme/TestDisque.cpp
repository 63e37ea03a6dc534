// The disk of the machine, with real files in a real folder.

#include <set>

#include "doublures/Pannes.h"
#include "plateforme/DisqueReel.h"

namespace gastrelle::essai {
namespace {

TEST_F(DisqueReel, LitALaPositionDemandee) {
  dossier.Ecrit("X", "0123456789");
  const auto fichier = disque.Ouvre("X");
  EXPECT_EQ(Lit(*fichier, 3, 4), "3456");
  EXPECT_EQ(Lit(*fichier, 0, 2), "01");
}

TEST_F(DisqueReel, LitMoinsEnFinDeFichierEtRienAuDela) {
  dossier.Ecrit("X", "0123456789");
  const auto fichier = disque.Ouvre("X");
  EXPECT_EQ(Lit(*fichier, 8, 5), "89");
  EXPECT_EQ(Lit(*fichier, 10, 5), "");
  EXPECT_EQ(Lit(*fichier, 1000, 5), "");
}

TEST_F(DisqueReel, EcritALaPositionSansToucherAuReste) {
  dossier.Ecrit("X", "0123456789");
  const auto fichier = disque.Ouvre("X");
  fichier->Ecrit(4, "ab");
  EXPECT_EQ(dossier.Lit("X"), "0123ab6789");
}

TEST_F(DisqueReel, AgranditLeFichierParUneEcritureAuDelaDeLaFin) {
  dossier.Ecrit("X", "01");
  const auto fichier = disque.Ouvre("X");
  fichier->Ecrit(4, "ab");
  EXPECT_EQ(dossier.Lit("X"), std::string("01\0\0ab", 6));
  EXPECT_EQ(fichier->Longueur(), 6);
}

TEST_F(DisqueReel, DemandeLaLongueurAuFichierChaqueFois) {
  const auto fichier = disque.Ouvre("X");
  EXPECT_EQ(fichier->Longueur(), 0);
  disque.Ouvre("X")->Ecrit(0, "ailleurs");
  EXPECT_EQ(fichier->Longueur(), 8);
  EXPECT_EQ(Lit(*fichier, 0, 8), "ailleurs");
}

TEST_F(DisqueReel, CreeVideUnFichierQuiManqueEtGardeCeluiQuiEstLa) {
  dossier.Ecrit("X", "contenu");
  EXPECT_EQ(disque.Ouvre("X")->Longueur(), 7);
  EXPECT_EQ(disque.Ouvre("Y")->Longueur(), 0);
  EXPECT_TRUE(dossier.A("Y"));
}

TEST_F(DisqueReel, OuvrePourLireCeQuiEstLaEtNeCreeRien) {
  dossier.Ecrit("X", "contenu");
  const auto fichier = disque.OuvrePourLire("X");
  EXPECT_EQ(Lit(*fichier, 0, 100), "contenu");
  EXPECT_EQ(PanneDe([&] { fichier->Ecrit(0, "a"); }), Panne::accesFichier);
  EXPECT_EQ(dossier.Lit("X"), "contenu");
  EXPECT_EQ(PanneDe([&] { static_cast<void>(disque.OuvrePourLire("Y")); }),
            Panne::fichierIntrouvable);
  EXPECT_FALSE(dossier.A("Y"));
}

TEST_F(DisqueReel, CreeUnFichierVideQuoiQuIlYAitEu) {
  dossier.Ecrit("X", "contenu");
  for (const char* nom : {"X", "Y"}) {
    const auto fichier = disque.Cree(nom);
    EXPECT_EQ(fichier->Longueur(), 0) << nom;
    fichier->Ecrit(0, "neuf");
    EXPECT_EQ(dossier.Lit(nom), "neuf");
  }
}

TEST_F(DisqueReel, TientUnePositionNegativePourUnAppelIncorrect) {
  const auto fichier = disque.Ouvre("X");
  EXPECT_EQ(PanneDe([&] { fichier->Ecrit(-1, "a"); }), Panne::appelIncorrect);
  EXPECT_EQ(PanneDe([&] { Lit(*fichier, -1, 1); }), Panne::appelIncorrect);
}

TEST_F(DisqueReel, DistingueFichierEtDossier) {
  dossier.Ecrit("X", "");
  disque.CreeDossier("D");
  EXPECT_TRUE(disque.Existe("X"));
  EXPECT_FALSE(disque.Existe("D"));
  EXPECT_FALSE(disque.Existe("Z"));
  EXPECT_TRUE(disque.DossierExiste("D"));
  EXPECT_FALSE(disque.DossierExiste("X"));
  EXPECT_FALSE(disque.DossierExiste("Z"));
}

TEST_F(DisqueReel, TrouveUnFichierAilleursParSonCheminEntier) {
  const DossierEssai autre;
  autre.Ecrit("photo.jpg", "");
  EXPECT_TRUE(disque.ExisteAilleurs((autre.chemin() / "photo.jpg").string()));
  EXPECT_FALSE(disque.ExisteAilleurs((autre.chemin() / "absente.jpg").string()));
  EXPECT_FALSE(disque.ExisteAilleurs(autre.chemin().string()));
}

TEST_F(DisqueReel, NeTrouveRienSousUnFichierSansEchouer) {
  dossier.Ecrit("X", "");
  EXPECT_FALSE(disque.Existe("X/Y"));
  EXPECT_FALSE(disque.DossierExiste("X/Y"));
}

TEST_F(DisqueReel, EchoueQuandLaRechercheElleMemeEchoue) {
  const std::string tropLong(5000, 'n');
  EXPECT_EQ(PanneDe([&] { (void)disque.Existe(tropLong); }), Panne::accesFichier);
  EXPECT_EQ(PanneDe([&] { (void)disque.DossierExiste(tropLong); }), Panne::accesFichier);
}

TEST_F(DisqueReel, NommeLesFichiersDUnDossierDuProgramme) {
  disque.CreeDossier("SAUVE");
  dossier.Ecrit("X", "copié");
  disque.Copie("X", "SAUVE/X");
  EXPECT_EQ(dossier.Lit("SAUVE/X"), "copié");
  EXPECT_TRUE(disque.Existe("SAUVE/X"));
}

TEST_F(DisqueReel, NOuvrePasUnDossierNiSousUnDossierQuiManque) {
  disque.CreeDossier("D");
  EXPECT_EQ(PanneDe([&] { (void)disque.Ouvre("D"); }), Panne::accesFichier);
  EXPECT_EQ(PanneDe([&] { (void)disque.Ouvre("ABSENT/X"); }), Panne::fichierIntrouvable);
  dossier.Ecrit("X", "");
  EXPECT_EQ(PanneDe([&] { (void)disque.Ouvre("X/Y"); }), Panne::cheminIntrouvable);
}

TEST_F(DisqueReel, SupprimeEtEchoueSurUnFichierQuiManque) {
  dossier.Ecrit("X", "");
  disque.Supprime("X");
  EXPECT_FALSE(dossier.A("X"));
  EXPECT_EQ(PanneDe([&] { disque.Supprime("X"); }), Panne::fichierIntrouvable);
}

TEST_F(DisqueReel, RenommeEtEchoueSurUnFichierQuiManque) {
  dossier.Ecrit("X", "contenu");
  disque.Renomme("X", "Y");
  EXPECT_FALSE(dossier.A("X"));
  EXPECT_EQ(dossier.Lit("Y"), "contenu");
  EXPECT_EQ(PanneDe([&] { disque.Renomme("X", "Z"); }), Panne::fichierIntrouvable);
}

TEST_F(DisqueReel, CreeUnDossierUneSeuleFois) {
  disque.CreeDossier("D");
  EXPECT_TRUE(std::filesystem::is_directory(dossier.chemin() / "D"));
  EXPECT_EQ(PanneDe([&] { disque.CreeDossier("D"); }), Panne::accesFichier);
}

TEST_F(DisqueReel, NEnleveQuUnDossierVide) {
  disque.CreeDossier("D");
  dossier.Ecrit("D/X", "");
  EXPECT_EQ(PanneDe([&] { disque.SupprimeDossier("D"); }), Panne::accesFichier);
  dossier.Supprime("D/X");
  disque.SupprimeDossier("D");
  EXPECT_FALSE(dossier.A("D"));
  EXPECT_EQ(PanneDe([&] { disque.SupprimeDossier("D"); }), Panne::fichierIntrouvable);
}

TEST_F(DisqueReel, CopieTousLesOctetsMemeDUnGrandFichier) {
  std::string octets(600'001, '\0');
  for (std::size_t i = 0; i < octets.size(); ++i) {
    octets[i] = static_cast<char>(i % 251);
  }
  dossier.Ecrit("X", octets);
  disque.Copie("X", "Y");
  EXPECT_TRUE(dossier.Lit("Y") == octets);
}

TEST_F(DisqueReel, RemplaceLaCibleDUneCopieJusquALaFin) {
  dossier.Ecrit("X", "court");
  dossier.Ecrit("Y", "un contenu bien plus long");
  disque.Copie("X", "Y");
  EXPECT_EQ(dossier.Lit("Y"), "court");
  EXPECT_EQ(dossier.Lit("X"), "court");
}

TEST_F(DisqueReel, NeLaissePasDeCopieQuandLaSourceManque) {
  EXPECT_EQ(PanneDe([&] { disque.Copie("X", "Y"); }), Panne::fichierIntrouvable);
  EXPECT_FALSE(dossier.A("Y"));
}

TEST_F(DisqueReel, GardeLaCibleQuandLaSourceNeSOuvrePas) {
  dossier.Ecrit("Y", "des années de recettes");
  EXPECT_EQ(PanneDe([&] { disque.Copie("X", "Y"); }), Panne::fichierIntrouvable);
  EXPECT_EQ(dossier.Lit("Y"), "des années de recettes");
}

TEST_F(DisqueReel, NeLaissePasDeCopieQuandLaLectureEchoue) {
  disque.CreeDossier("D");
  EXPECT_EQ(PanneDe([&] { disque.Copie("D", "Y"); }), Panne::accesFichier);
  EXPECT_FALSE(dossier.A("Y"));
}

TEST_F(DisqueReel, NeLaisseQueLaCopie) {
  dossier.Ecrit("X", "contenu");
  disque.Copie("X", "Y");
  EXPECT_EQ(Noms(), (std::set<std::string>{"X", "Y"}));
}

}  // namespace
}  // namespace gastrelle::essai
