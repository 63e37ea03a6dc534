// Where the program works: beside itself, or in its user's folder.

#include <algorithm>
#include <array>
#include <cstdlib>
#include <pwd.h>
#include <sys/wait.h>
#include <unistd.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "data/Emplacement.h"
#include "doublures/FabriqueInstallee.h"
#include "plateforme/DonneesUtilisateur.h"

namespace gastrelle::essai {
namespace {

namespace fs = std::filesystem;

/// A tree of the system as a package fills it, and the folders of a user beside it.
class LieuDeTravail : public testing::Test {
 protected:
  LieuDeTravail() {
    fs::create_directories(programme);
    PoseFabrique(DossierModeles(programme), "1.0.0");
  }

  Emplacement Occupe() { return OccupeEmplacement(programme, prive / ".local" / "share"); }

  DossierEssai racine;
  const fs::path programme = racine.chemin() / "usr" / "lib" / "gastrelle";
  const fs::path prive = racine.chemin() / "home" / "moi";
  const fs::path sien = prive / ".local" / "share" / "gastrelle";
};

TEST_F(LieuDeTravail, DUnProgrammeInstalleEstPoseChezLUsager) {
  fs::create_directories(prive);
  const Emplacement lieu = Occupe();
  EXPECT_EQ(lieu.dossier, sien);
  EXPECT_NE(lieu.instance, nullptr);
  EXPECT_FALSE(lieu.dejaEnCours);
  EXPECT_EQ(ContenuDe(sien), ContenuDe(DossierModeles(programme)));
}

TEST_F(LieuDeTravail, EstFermeAuxAutresLaOuIlManquaitDesDossiers) {
  fs::create_directories(prive / ".local");
  fs::permissions(prive / ".local", static_cast<fs::perms>(0755));
  static_cast<void>(Occupe());
  EXPECT_EQ(fs::status(prive / ".local").permissions(), static_cast<fs::perms>(0755));
  EXPECT_EQ(fs::status(prive / ".local/share").permissions(), static_cast<fs::perms>(0700));
}

TEST_F(LieuDeTravail, EstCeluiDuProgrammeLaOuSontDesDonnees) {
  for (const char* nom : {"GLF2.stp", "GLPREF.DAT", "GLV3.DAT"}) {
    SCOPED_TRACE(nom);
    std::ofstream(programme / nom) << "x";
    const Emplacement lieu = Occupe();
    EXPECT_EQ(lieu.dossier, programme);
    EXPECT_NE(lieu.instance, nullptr);
    fs::remove(programme / nom);
  }
  EXPECT_FALSE(fs::exists(sien));
}

TEST_F(LieuDeTravail, EstCeluiDuProgrammeSansModelesNiDossierDUsager) {
  EXPECT_EQ(OccupeEmplacement(programme, {}).dossier, programme);
  fs::remove_all(DossierModeles(programme));
  EXPECT_EQ(Occupe().dossier, programme);
  EXPECT_FALSE(fs::exists(prive));
}

TEST_F(LieuDeTravail, NEstAQuUnSeulProgramme) {
  for (const bool portable : {false, true}) {
    if (portable) {
      std::ofstream(programme / "GLR1.stp") << "x";
    }
    const Emplacement premier = Occupe();
    const Emplacement second = Occupe();
    EXPECT_FALSE(premier.dejaEnCours);
    EXPECT_EQ(second.instance, nullptr);
    EXPECT_TRUE(second.dejaEnCours);
  }
}

TEST_F(LieuDeTravail, QueDesDepartsSimultanesPosentEstEntierEtAUnSeul) {
  constexpr int departs = 6;
  std::array<int, 2> dit{};
  std::array<int, 2> attend{};
  ASSERT_EQ(::pipe(dit.data()) + ::pipe(attend.data()), 0);
  std::vector<pid_t> enfants;
  for (int i = 0; i < departs; ++i) {
    enfants.push_back(::fork());
    if (enfants.back() == 0) {
      ::close(attend[1]);
      const Emplacement lieu = Occupe();
      const char vu = lieu.instance != nullptr ? 'a' : lieu.dejaEnCours ? 'd' : '?';
      char rien = 0;
      const bool bien = ::write(dit[1], &vu, 1) == 1 && ::read(attend[0], &rien, 1) == 0;
      ::_exit(bien ? 0 : 1);
    }
  }
  std::string vus(departs, ' ');
  for (char& vu : vus) {
    ASSERT_EQ(::read(dit[0], &vu, 1), 1);
  }
  for (const int numero : {dit[0], dit[1], attend[0], attend[1]}) {
    ::close(numero);  // and so they end
  }
  for (const pid_t enfant : enfants) {
    int statut = -1;
    ::waitpid(enfant, &statut, 0);
    EXPECT_EQ(statut, 0);
  }
  std::sort(vus.begin(), vus.end());
  EXPECT_EQ(vus, "a" + std::string(departs - 1, 'd'));
  EXPECT_EQ(ContenuDe(sien.parent_path()).size(), 1 + ContenuDe(DossierModeles(programme)).size());
  EXPECT_EQ(ContenuDe(sien), ContenuDe(DossierModeles(programme)));
}

TEST_F(LieuDeTravail, NEstPasRenouveleTantQuUnAutreYTourne) {
  const Emplacement premier = Occupe();
  PoseFabrique(DossierModeles(programme), "1.1.0");
  const Contenu avant = ContenuDe(sien);
  EXPECT_TRUE(Occupe().dejaEnCours);
  EXPECT_EQ(ContenuDe(sien), avant);
}

TEST_F(LieuDeTravail, EstRenouveleAuDepartQuiSuit) {
  static_cast<void>(Occupe());
  std::ofstream(sien / "GLR1.DAT") << "mes recettes";
  PoseFabrique(DossierModeles(programme), "1.1.0");
  const Emplacement lieu = Occupe();
  EXPECT_NE(lieu.instance, nullptr);
  Contenu attendu = ContenuDe(DossierModeles(programme));
  attendu["GLR1.DAT"] = "mes recettes";
  attendu["IMAGE/agneau.jpg"] = "IMAGE/agneau.jpg 1.0.0\n";
  attendu["IMAGE/porc.jpg"] = "IMAGE/porc.jpg 1.0.0\n";
  EXPECT_EQ(ContenuDe(sien), attendu);
}

TEST_F(LieuDeTravail, QuiNePeutEtrePoseNAPasDAutreProgramme) {
  fs::create_directories(prive);
  std::ofstream(prive / ".local") << "un fichier";
  const Emplacement lieu = Occupe();
  EXPECT_EQ(lieu.dossier, sien);
  EXPECT_EQ(lieu.instance, nullptr);
  EXPECT_FALSE(lieu.dejaEnCours);
}

TEST_F(LieuDeTravail, QuiNePeutEtreRenouveleSertTelQuel) {
  static_cast<void>(Occupe());
  PoseFabrique(DossierModeles(programme), "1.1.0");
  fs::remove(DossierModeles(programme) / "GLT2.stp");
  const Contenu avant = ContenuDe(sien);
  EXPECT_NE(Occupe().instance, nullptr);
  EXPECT_EQ(ContenuDe(sien), avant);
}

/// Variables of the environment as they were, once the test is over.
class DonneesDeLUsager : public testing::Test {
 protected:
  void SetUp() override {
    for (const char* nom : {"XDG_DATA_HOME", "HOME"}) {
      const char* valeur = std::getenv(nom);
      avant_[nom] = valeur == nullptr ? std::optional<std::string>() : valeur;
    }
  }
  void TearDown() override {
    for (const auto& [nom, valeur] : avant_) {
      Dit(nom.c_str(), valeur ? valeur->c_str() : nullptr);
    }
  }

  /// Null: the variable isn't set.
  static void Dit(const char* nom, const char* valeur) {
    valeur == nullptr ? ::unsetenv(nom) : ::setenv(nom, valeur, 1);
  }

 private:
  std::map<std::string, std::optional<std::string>> avant_;
};

TEST_F(DonneesDeLUsager, SontLaOuLEnvironnementLeDit) {
  Dit("XDG_DATA_HOME", "/ailleurs/à lui");
  Dit("HOME", "/home/moi");
  EXPECT_EQ(DonneesUtilisateur(), "/ailleurs/à lui");
}

TEST_F(DonneesDeLUsager, SontChezLuiSansCheminEntierQuiLeDise) {
  Dit("HOME", "/home/moi");
  for (const char* rien : {static_cast<const char*>(nullptr), "", "relatif/là", "."}) {
    Dit("XDG_DATA_HOME", rien);
    EXPECT_EQ(DonneesUtilisateur(), "/home/moi/.local/share");
  }
}

TEST_F(DonneesDeLUsager, SontLaOuLeCompteLeDitSansVariable) {
  const passwd* compte = ::getpwuid(::geteuid());
  ASSERT_NE(compte, nullptr);
  const fs::path prive = compte->pw_dir;
  Dit("XDG_DATA_HOME", nullptr);
  for (const char* rien : {static_cast<const char*>(nullptr), "", "ici"}) {
    Dit("HOME", rien);
    EXPECT_EQ(DonneesUtilisateur(), prive / ".local" / "share");
  }
}

}  // namespace
}  // namespace gastrelle::essai
