// The disk of the machine when something else than a file lies under a name.

#include <set>
#include <sys/stat.h>

#include <gtest/gtest.h>

#include "doublures/Bibliotheque.h"
#include "doublures/Entrees.h"
#include "doublures/Pannes.h"
#include "plateforme/Disque.h"

namespace gastrelle::essai {
namespace {

namespace fs = std::filesystem;

class DisqueHostile : public testing::Test {
 protected:
  [[nodiscard]] fs::path Chemin(const char* nom) const { return dossier.chemin() / nom; }

  [[nodiscard]] std::set<std::string> Noms() const {
    std::set<std::string> noms;
    for (const auto& entree : fs::directory_iterator(dossier.chemin())) {
      noms.insert(entree.path().filename().string());
    }
    return noms;
  }

  [[nodiscard]] unsigned Droits(const char* nom) const {
    return static_cast<unsigned>(fs::status(Chemin(nom)).permissions());
  }

  void PoseDroits(const char* nom, unsigned droits) const {
    fs::permissions(Chemin(nom), static_cast<fs::perms>(droits));
  }

  DossierEssai dossier;
  DossierEssai ailleurs;
  Disque disque{dossier.chemin()};
};

TEST_F(DisqueHostile, NOuvreQuUnFichierSansAttendrePersonne) {
  for (const Entree& entree : EntreesSpeciales()) {
    entree.pose(Chemin(entree.nom));
    EXPECT_EQ(PanneDe([&] { (void)disque.Ouvre(entree.nom); }), Panne::accesFichier) << entree.nom;
  }
}

TEST_F(DisqueHostile, NeLitNiNeCreeQuUnFichierSansAttendrePersonne) {
  for (const Entree& entree : EntreesSpeciales()) {
    entree.pose(Chemin(entree.nom));
    EXPECT_EQ(PanneDe([&] { static_cast<void>(disque.OuvrePourLire(entree.nom)); }),
              Panne::accesFichier)
        << entree.nom;
    EXPECT_EQ(PanneDe([&] { static_cast<void>(disque.Cree(entree.nom)); }), Panne::accesFichier)
        << entree.nom;
  }
  disque.CreeDossier("D");
  EXPECT_EQ(PanneDe([&] { static_cast<void>(disque.OuvrePourLire("D")); }), Panne::accesFichier);
  EXPECT_EQ(PanneDe([&] { static_cast<void>(disque.Cree("D")); }), Panne::accesFichier);
  EXPECT_TRUE(disque.DossierExiste("D"));
}

TEST_F(DisqueHostile, LitEtVideAuBoutDUnLienVersUnFichier) {
  ailleurs.Ecrit("X", "contenu");
  fs::create_symlink(ailleurs.chemin() / "X", Chemin("lien"));
  EXPECT_EQ(disque.OuvrePourLire("lien")->Longueur(), 7);
  EXPECT_EQ(disque.Cree("lien")->Longueur(), 0);
  EXPECT_EQ(ailleurs.Lit("X"), "");
  EXPECT_TRUE(fs::is_symlink(Chemin("lien")));
}

TEST_F(DisqueHostile, NeLitNiNeCreeAuBoutDUnLienQuiNeMeneNullePart) {
  fs::create_symlink(ailleurs.chemin() / "neuf", Chemin("X"));
  EXPECT_EQ(PanneDe([&] { static_cast<void>(disque.OuvrePourLire("X")); }),
            Panne::fichierIntrouvable);
  EXPECT_EQ(PanneDe([&] { static_cast<void>(disque.Cree("X")); }), Panne::accesFichier);
  EXPECT_FALSE(ailleurs.A("neuf"));
  EXPECT_TRUE(fs::is_symlink(Chemin("X")));
}

TEST_F(DisqueHostile, NeCopieQuUnFichierSansAttendrePersonne) {
  dossier.Ecrit("Y", "des années de recettes");
  for (const Entree& entree : EntreesSpeciales()) {
    entree.pose(Chemin(entree.nom));
    EXPECT_EQ(PanneDe([&] { disque.Copie(entree.nom, "Y"); }), Panne::accesFichier) << entree.nom;
    EXPECT_EQ(dossier.Lit("Y"), "des années de recettes") << entree.nom;
    EXPECT_FALSE(dossier.A("Y~")) << entree.nom;
  }
}

TEST_F(DisqueHostile, LesTrouvePourtantSousLeurNom) {
  for (const Entree& entree : EntreesSpeciales()) {
    entree.pose(Chemin(entree.nom));
    EXPECT_TRUE(disque.Existe(entree.nom)) << entree.nom;
  }
}

TEST_F(DisqueHostile, SuitUnLienVersUnFichier) {
  ailleurs.Ecrit("X", "contenu");
  fs::create_symlink(ailleurs.chemin() / "X", Chemin("lien"));
  EXPECT_EQ(disque.Ouvre("lien")->Longueur(), 7);
  disque.Copie("lien", "Y");
  EXPECT_EQ(dossier.Lit("Y"), "contenu");
}

TEST_F(DisqueHostile, NeCreeRienAuBoutDUnLienQuiNeMeneNullePart) {
  fs::create_symlink(ailleurs.chemin() / "neuf", Chemin("X"));
  EXPECT_EQ(PanneDe([&] { (void)disque.Ouvre("X"); }), Panne::accesFichier);
  EXPECT_FALSE(ailleurs.A("neuf"));
  EXPECT_TRUE(fs::is_symlink(Chemin("X")));
}

TEST_F(DisqueHostile, NEcritJamaisAuBoutDUnLienQuiAttendSousLeNomProvisoire) {
  dossier.Ecrit("X", "recettes");
  ailleurs.Ecrit("precieux", "à moi");
  fs::create_symlink(ailleurs.chemin() / "precieux", Chemin("Y~"));
  fs::create_symlink(ailleurs.chemin() / "a-naitre", Chemin("Y~2"));
  disque.Copie("X", "Y");
  EXPECT_EQ(dossier.Lit("Y"), "recettes");
  EXPECT_EQ(ailleurs.Lit("precieux"), "à moi");
  EXPECT_FALSE(ailleurs.A("a-naitre"));
  EXPECT_EQ(Noms(), (std::set<std::string>{"X", "Y", "Y~", "Y~2"}));
  EXPECT_TRUE(fs::is_symlink(Chemin("Y~")));
}

TEST_F(DisqueHostile, CopieMalgreCeQuiOccupeLeNomProvisoire) {
  dossier.Ecrit("X", "recettes");
  for (const Entree& entree : EntreesSpeciales()) {
    entree.pose(Chemin("Y~"));
    disque.Copie("X", "Y");
    EXPECT_EQ(dossier.Lit("Y"), "recettes") << entree.nom;
    EXPECT_EQ(Noms(), (std::set<std::string>{"X", "Y", "Y~"})) << entree.nom;
    fs::remove(Chemin("Y~"));
    dossier.Supprime("Y");
  }
  disque.CreeDossier("Y~");
  disque.Copie("X", "Y");
  EXPECT_EQ(Noms(), (std::set<std::string>{"X", "Y", "Y~"}));
}

TEST_F(DisqueHostile, GardeUnFichierDUnAutreSousLeNomProvisoire) {
  dossier.Ecrit("X", "recettes");
  dossier.Ecrit("Y~", "à moi");
  disque.Copie("X", "Y");
  EXPECT_EQ(dossier.Lit("Y~"), "à moi");
  EXPECT_EQ(dossier.Lit("Y"), "recettes");
}

TEST_F(DisqueHostile, EchoueQuandTousLesNomsProvisoiresSontPris) {
  dossier.Ecrit("X", "recettes");
  dossier.Ecrit("Y", "anciennes");
  dossier.Ecrit("Y~", "");
  for (int n = 2; n <= 100; ++n) {
    dossier.Ecrit("Y~" + std::to_string(n), "");
  }
  EXPECT_EQ(PanneDe([&] { disque.Copie("X", "Y"); }), Panne::accesFichier);
  EXPECT_EQ(dossier.Lit("Y"), "anciennes");
}

TEST_F(DisqueHostile, RemplaceUnLienSansToucherACeQuIlMontre) {
  dossier.Ecrit("X", "recettes");
  ailleurs.Ecrit("precieux", "à moi");
  fs::create_symlink(ailleurs.chemin() / "precieux", Chemin("Y"));
  disque.Copie("X", "Y");
  EXPECT_EQ(dossier.Lit("Y"), "recettes");
  EXPECT_FALSE(fs::is_symlink(Chemin("Y")));
  EXPECT_EQ(ailleurs.Lit("precieux"), "à moi");
}

TEST_F(DisqueHostile, LaisseEnPlaceUnDossierQuiPorteLeNomDeLaCible) {
  dossier.Ecrit("X", "recettes");
  disque.CreeDossier("Y");
  EXPECT_EQ(PanneDe([&] { disque.Copie("X", "Y"); }), Panne::accesFichier);
  EXPECT_EQ(Noms(), (std::set<std::string>{"X", "Y"}));
}

TEST_F(DisqueHostile, DonneALaCopieLesDroitsDuFichierRemplace) {
  dossier.Ecrit("X", "recettes");
  const mode_t masque = ::umask(0022);
  for (const unsigned droits : {0600U, 0666U, 0444U, 0640U}) {
    dossier.Ecrit("Y", "anciennes");
    PoseDroits("Y", droits);
    disque.Copie("X", "Y");
    EXPECT_EQ(Droits("Y"), droits);
    EXPECT_EQ(dossier.Lit("Y"), "recettes");
    dossier.Supprime("Y");
  }
  ::umask(masque);
}

TEST_F(DisqueHostile, DonneAUneCopieNeuveLesDroitsQueLUsagerDonne) {
  dossier.Ecrit("X", "recettes");
  PoseDroits("X", 0444);
  const mode_t masque = ::umask(0027);
  disque.Copie("X", "Y");
  ::umask(masque);
  EXPECT_EQ(Droits("Y"), 0640U);
}

}  // namespace
}  // namespace gastrelle::essai
