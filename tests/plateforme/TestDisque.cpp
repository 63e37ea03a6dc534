// The disk of the machine, with real files in a real folder.

#include <csignal>
#include <set>
#include <sys/resource.h>

#include <gtest/gtest.h>

#include "doublures/Pannes.h"
#include "plateforme/Disque.h"
#include "plateforme/ErreurExecution.h"

namespace gastrelle::essai {
namespace {

class DisqueReel : public testing::Test {
 protected:
  std::string Lit(Fichier& fichier, std::int64_t decalage, std::size_t combien) {
    std::string octets(combien, '#');
    octets.resize(fichier.Lire(decalage, octets));
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

/// No file grows beyond `octets` while the object lives.
class DisqueEtroit {
 public:
  explicit DisqueEtroit(rlim_t octets) : signal_(std::signal(SIGXFSZ, SIG_IGN)) {
    ::getrlimit(RLIMIT_FSIZE, &avant_);
    const rlimit etroite{octets, avant_.rlim_max};
    ::setrlimit(RLIMIT_FSIZE, &etroite);
  }
  DisqueEtroit(const DisqueEtroit&) = delete;
  DisqueEtroit& operator=(const DisqueEtroit&) = delete;
  ~DisqueEtroit() {
    ::setrlimit(RLIMIT_FSIZE, &avant_);
    std::signal(SIGXFSZ, signal_);
  }

 private:
  rlimit avant_{};
  void (*signal_)(int);
};

TEST_F(DisqueReel, LitALaPositionDemandee) {
  dossier.Ecrit("X", "0123456789");
  const auto fichier = disque.Ouvrir("X");
  EXPECT_EQ(Lit(*fichier, 3, 4), "3456");
  EXPECT_EQ(Lit(*fichier, 0, 2), "01");
}

TEST_F(DisqueReel, LitMoinsEnFinDeFichierEtRienAuDela) {
  dossier.Ecrit("X", "0123456789");
  const auto fichier = disque.Ouvrir("X");
  EXPECT_EQ(Lit(*fichier, 8, 5), "89");
  EXPECT_EQ(Lit(*fichier, 10, 5), "");
  EXPECT_EQ(Lit(*fichier, 1000, 5), "");
}

TEST_F(DisqueReel, EcritALaPositionSansToucherAuReste) {
  dossier.Ecrit("X", "0123456789");
  const auto fichier = disque.Ouvrir("X");
  fichier->Ecrire(4, "ab");
  EXPECT_EQ(dossier.Lit("X"), "0123ab6789");
}

TEST_F(DisqueReel, AgranditLeFichierParUneEcritureAuDelaDeLaFin) {
  dossier.Ecrit("X", "01");
  const auto fichier = disque.Ouvrir("X");
  fichier->Ecrire(4, "ab");
  EXPECT_EQ(dossier.Lit("X"), std::string("01\0\0ab", 6));
  EXPECT_EQ(fichier->Longueur(), 6);
}

TEST_F(DisqueReel, DemandeLaLongueurAuFichierChaqueFois) {
  const auto fichier = disque.Ouvrir("X");
  EXPECT_EQ(fichier->Longueur(), 0);
  disque.Ouvrir("X")->Ecrire(0, "ailleurs");
  EXPECT_EQ(fichier->Longueur(), 8);
  EXPECT_EQ(Lit(*fichier, 0, 8), "ailleurs");
}

TEST_F(DisqueReel, CreeVideUnFichierQuiManqueEtGardeCeluiQuiEstLa) {
  dossier.Ecrit("X", "contenu");
  EXPECT_EQ(disque.Ouvrir("X")->Longueur(), 7);
  EXPECT_EQ(disque.Ouvrir("Y")->Longueur(), 0);
  EXPECT_TRUE(dossier.A("Y"));
}

TEST_F(DisqueReel, TientUnePositionNegativePourUnAppelIncorrect) {
  const auto fichier = disque.Ouvrir("X");
  EXPECT_EQ(PanneDe([&] { fichier->Ecrire(-1, "a"); }), Panne::appelIncorrect);
  EXPECT_EQ(PanneDe([&] { Lit(*fichier, -1, 1); }), Panne::appelIncorrect);
}

TEST_F(DisqueReel, DistingueFichierEtDossier) {
  dossier.Ecrit("X", "");
  disque.CreerDossier("D");
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
  EXPECT_EQ(PanneDe([&] { (void)disque.Existe(tropLong); }), Panne::accesChemin);
  EXPECT_EQ(PanneDe([&] { (void)disque.DossierExiste(tropLong); }), Panne::accesChemin);
}

TEST_F(DisqueReel, NommeLesFichiersDUnDossierDuProgramme) {
  disque.CreerDossier("SAUVE");
  dossier.Ecrit("X", "copié");
  disque.Copier("X", "SAUVE/X");
  EXPECT_EQ(dossier.Lit("SAUVE/X"), "copié");
  EXPECT_TRUE(disque.Existe("SAUVE/X"));
}

TEST_F(DisqueReel, NOuvrePasUnDossierNiSousUnDossierQuiManque) {
  disque.CreerDossier("D");
  EXPECT_EQ(PanneDe([&] { (void)disque.Ouvrir("D"); }), Panne::accesChemin);
  EXPECT_EQ(PanneDe([&] { (void)disque.Ouvrir("ABSENT/X"); }), Panne::fichierIntrouvable);
  dossier.Ecrit("X", "");
  EXPECT_EQ(PanneDe([&] { (void)disque.Ouvrir("X/Y"); }), Panne::cheminIntrouvable);
}

TEST_F(DisqueReel, SupprimeEtEchoueSurUnFichierQuiManque) {
  dossier.Ecrit("X", "");
  disque.Supprimer("X");
  EXPECT_FALSE(dossier.A("X"));
  EXPECT_EQ(PanneDe([&] { disque.Supprimer("X"); }), Panne::fichierIntrouvable);
}

TEST_F(DisqueReel, RenommeEtEchoueSurUnFichierQuiManque) {
  dossier.Ecrit("X", "contenu");
  disque.Renommer("X", "Y");
  EXPECT_FALSE(dossier.A("X"));
  EXPECT_EQ(dossier.Lit("Y"), "contenu");
  EXPECT_EQ(PanneDe([&] { disque.Renommer("X", "Z"); }), Panne::fichierIntrouvable);
}

TEST_F(DisqueReel, CreeUnDossierUneSeuleFois) {
  disque.CreerDossier("D");
  EXPECT_TRUE(std::filesystem::is_directory(dossier.chemin() / "D"));
  EXPECT_EQ(PanneDe([&] { disque.CreerDossier("D"); }), Panne::accesChemin);
}

TEST_F(DisqueReel, NEnleveQuUnDossierVide) {
  disque.CreerDossier("D");
  dossier.Ecrit("D/X", "");
  EXPECT_EQ(PanneDe([&] { disque.SupprimerDossier("D"); }), Panne::accesChemin);
  dossier.Supprime("D/X");
  disque.SupprimerDossier("D");
  EXPECT_FALSE(dossier.A("D"));
  EXPECT_EQ(PanneDe([&] { disque.SupprimerDossier("D"); }), Panne::fichierIntrouvable);
}

TEST_F(DisqueReel, CopieTousLesOctetsMemeDUnGrandFichier) {
  std::string octets(600'001, '\0');
  for (std::size_t i = 0; i < octets.size(); ++i) {
    octets[i] = static_cast<char>(i % 251);
  }
  dossier.Ecrit("X", octets);
  disque.Copier("X", "Y");
  EXPECT_TRUE(dossier.Lit("Y") == octets);
}

TEST_F(DisqueReel, RemplaceLaCibleDUneCopieJusquALaFin) {
  dossier.Ecrit("X", "court");
  dossier.Ecrit("Y", "un contenu bien plus long");
  disque.Copier("X", "Y");
  EXPECT_EQ(dossier.Lit("Y"), "court");
  EXPECT_EQ(dossier.Lit("X"), "court");
}

TEST_F(DisqueReel, NeLaissePasDeCopieQuandLaSourceManque) {
  EXPECT_EQ(PanneDe([&] { disque.Copier("X", "Y"); }), Panne::fichierIntrouvable);
  EXPECT_FALSE(dossier.A("Y"));
}

TEST_F(DisqueReel, GardeLaCibleQuandLaSourceNeSOuvrePas) {
  dossier.Ecrit("Y", "des années de recettes");
  EXPECT_EQ(PanneDe([&] { disque.Copier("X", "Y"); }), Panne::fichierIntrouvable);
  EXPECT_EQ(dossier.Lit("Y"), "des années de recettes");
}

TEST_F(DisqueReel, NeLaissePasDeCopieQuandLaLectureEchoue) {
  disque.CreerDossier("D");
  EXPECT_EQ(PanneDe([&] { disque.Copier("D", "Y"); }), Panne::accesChemin);
  EXPECT_FALSE(dossier.A("Y"));
}

TEST_F(DisqueReel, NeLaissePasDeCopiePartielleSurUnDisquePlein) {
  dossier.Ecrit("X", std::string(10'000, 'x'));
  const DisqueEtroit etroit(4096);
  EXPECT_EQ(PanneDe([&] { disque.Copier("X", "Y"); }), Panne::disquePlein);
  EXPECT_FALSE(dossier.A("Y"));
}

TEST_F(DisqueReel, GardeLAncienneCibleQuandLaCopieNAboutitPas) {
  dossier.Ecrit("X", std::string(10'000, 'x'));
  dossier.Ecrit("Y", "des années de recettes");
  const DisqueEtroit etroit(4096);
  EXPECT_EQ(PanneDe([&] { disque.Copier("X", "Y"); }), Panne::disquePlein);
  EXPECT_EQ(dossier.Lit("Y"), "des années de recettes");
  EXPECT_EQ(Noms(), (std::set<std::string>{"X", "Y"}));
}

TEST_F(DisqueReel, NeLaisseQueLaCopie) {
  dossier.Ecrit("X", "contenu");
  disque.Copier("X", "Y");
  EXPECT_EQ(Noms(), (std::set<std::string>{"X", "Y"}));
}

TEST_F(DisqueReel, DitLeDisquePleinQuandUneEcritureNePassePas) {
  const auto fichier = disque.Ouvrir("X");
  const DisqueEtroit etroit(4096);
  EXPECT_EQ(PanneDe([&] { fichier->Ecrire(4096, "x"); }), Panne::disquePlein);
}

}  // namespace
}  // namespace gastrelle::essai
