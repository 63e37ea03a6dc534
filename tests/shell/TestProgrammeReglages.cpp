// The running program, whatever lies in the place of the user's settings.

#include <filesystem>
#include <fstream>
#include <iterator>
#include <sys/stat.h>

#include <QElapsedTimer>

#include "doublures/ProgrammeEssai.h"

namespace gastrelle::essai {
namespace {

class ProgrammeEtReglages : public ProgrammeEssai {
 protected:
  [[nodiscard]] std::filesystem::path Fichier(const char* fin = "") const {
    return reglages.chemin() / (std::string("Gastrelle 2005.conf") + fin);
  }

  /// Starts and leaves the program; fails if either waits for anything.
  void OuvreEtQuitte() {
    environnement.insert("ASAN_OPTIONS", "detect_leaks=0:quarantine_size_mb=1");
    Lance(programme);
    const QString fenetre = FenetreDe(programme);
    ASSERT_FALSE(fenetre.isEmpty());
    EXPECT_LT(PlusDeMemoire(programme), 700'000'000);
    EXPECT_EQ(FinitPar("ctrl+q", programme, fenetre), 0);
    EXPECT_TRUE(Messages(programme).empty());
  }
};

TEST_F(ProgrammeEtReglages, IlsSeGardentDansLeurFichier) {
  OuvreEtQuitte();
  EXPECT_TRUE(std::filesystem::is_regular_file(Fichier()));
}

TEST_F(ProgrammeEtReglages, UnTuyauNEstPasAttendu) {
  ASSERT_EQ(::mkfifo(Fichier().c_str(), S_IRUSR | S_IWUSR), 0);
  OuvreEtQuitte();
  EXPECT_TRUE(std::filesystem::is_fifo(Fichier()));
}

TEST_F(ProgrammeEtReglages, UnTuyauALaPlaceDuVerrouNonPlus) {
  ASSERT_EQ(::mkfifo(Fichier(".lock").c_str(), S_IRUSR | S_IWUSR), 0);
  OuvreEtQuitte();
  EXPECT_FALSE(std::filesystem::exists(Fichier()));
}

TEST_F(ProgrammeEtReglages, UnDossierALaPlaceDuVerrouNonPlus) {
  std::filesystem::create_directory(Fichier(".lock"));
  OuvreEtQuitte();
  EXPECT_FALSE(std::filesystem::exists(Fichier()));
}

TEST_F(ProgrammeEtReglages, UnVerrouQuePersonneNeRendNonPlus) {
  std::ofstream(Fichier(".lock")) << "à moi";
  OuvreEtQuitte();
  EXPECT_FALSE(std::filesystem::exists(Fichier()));
  EXPECT_TRUE(std::filesystem::exists(Fichier(".lock")));
}

TEST_F(ProgrammeEtReglages, UnLienVersRienALaPlaceDuVerrouNonPlus) {
  std::filesystem::create_symlink("nulle-part", Fichier(".lock"));
  OuvreEtQuitte();
}

TEST_F(ProgrammeEtReglages, UnAppareilNEstPasLu) {
  std::filesystem::create_symlink("/dev/zero", Fichier());
  OuvreEtQuitte();
}

TEST_F(ProgrammeEtReglages, UnGigaOctetDeZerosNEstPasLu) {
  std::ofstream(Fichier()).put('x');
  std::filesystem::resize_file(Fichier(), std::uintmax_t{1} << 30U);
  OuvreEtQuitte();
  EXPECT_EQ(std::filesystem::file_size(Fichier()), std::uintmax_t{1} << 30U);
}

TEST_F(ProgrammeEtReglages, UnLienVersUnFichierOrdinaireSertCommeLui) {
  std::ofstream(reglages.chemin() / "ailleurs.conf") << "[Settings]\nMainWidth=10500\n";
  std::filesystem::create_symlink("ailleurs.conf", Fichier());
  OuvreEtQuitte();
  std::ifstream ecrit(Fichier());
  const std::string texte{std::istreambuf_iterator<char>(ecrit), {}};
  EXPECT_NE(texte.find("MainWidth=10500"), std::string::npos) << texte;
  EXPECT_NE(texte.find("MainLeft"), std::string::npos) << texte;
}

TEST_F(ProgrammeEtReglages, LeChoixDUneImageNAttendPasCeuxDesDialogues) {
  for (const char* fin : {"", ".lock"}) {
    SCOPED_TRACE(fin);
    const std::filesystem::path tuyau = reglages.chemin() / (std::string("QtProject.conf") + fin);
    ASSERT_EQ(::mkfifo(tuyau.c_str(), S_IRUSR | S_IWUSR), 0);
    QProcess ouvert;
    Lance(ouvert);
    const QString cadre = FenetreDe(ouvert);
    Outil({"windowfocus", "--sync", cadre});
    Outil({"key", "ctrl+Next"});
    Outil({"key", "alt+m"});
    const QString dialogue = FenetreDe(ouvert, cadre);
    Outil({"windowfocus", "--sync", dialogue});
    Outil({"key", "Escape"});
    EXPECT_EQ(FinitPar("ctrl+q", ouvert, cadre), 0);
    EXPECT_TRUE(std::filesystem::exists(Fichier()));
    std::filesystem::remove(tuyau);
    std::filesystem::remove(Fichier());
  }
}

}  // namespace
}  // namespace gastrelle::essai
