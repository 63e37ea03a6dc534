// The program itself under memcheck, on its display, with the services of the system: what the
// walk in one process with its tests leaves out.

#include <algorithm>
#include <filesystem>
#include <string_view>

#include <QStandardPaths>
#include <gmock/gmock.h>

#include "doublures/ProgrammeEssai.h"
#include "memcheck/Abimes.h"

namespace gastrelle::essai {
namespace {

constexpr int fois = 10;  // as slow, also on a machine that has other things to do

class ProgrammeSousMemcheck : public ProgrammeEssai {
 protected:
  void SetUp() override {
    if (QStandardPaths::findExecutable("valgrind").isEmpty()) {
      GTEST_SKIP() << "il manque valgrind";
    }
    attente = fois * patience;
    ProgrammeEssai::SetUp();
  }

  void LanceSousMemcheck() {
    programme.setProcessEnvironment(environnement);
    programme.start(SOUS_MEMCHECK, {"--log-file=" + Chemin("fautes"), Chemin("gastrelle")});
    ASSERT_TRUE(programme.waitForStarted(patience));
  }
  [[nodiscard]] QString Chemin(const char* nom) const {
    return QString::fromStdString((b.dossier.chemin() / nom).string());
  }
  void Frappe(const QString& fenetre, const QStringList& touches) {
    Outil({"windowfocus", "--sync", fenetre});
    for (const QString& touche : touches) {
      Outil({"key", touche});
    }
  }
  void AttendFin(const char* touche, const QString& fenetre, int statut) {
    EXPECT_EQ(FinitPar(touche, programme, fenetre), statut) << b.dossier.Lit("fautes");
    EXPECT_EQ(b.dossier.Lit("fautes"), "");
  }
};

TEST_F(ProgrammeSousMemcheck, ParcourtLesMenusDUnDossierAbime) {
  b.GarnitDeFabrique(DOSSIER_PROGRAMME);
  std::filesystem::copy(FICHIER_AIDE, b.dossier.chemin());
  std::filesystem::copy(DOSSIER_PROGRAMME "/IMAGE", b.dossier.chemin() / "IMAGE");
  std::find_if(TousLesAbimes().begin(), TousLesAbimes().end(), [](const Abime& abime) {
    return abime.nom == std::string_view("HorsDuFichier");
  })->abime(b.dossier);
  LanceSousMemcheck();
  const QString fenetre = FenetreDe(programme);
  Frappe(fenetre, {"ctrl+3", "alt+Down", "alt+Down", "alt+Down", "ctrl+Next", "F1"});
  AttendFin("ctrl+q", fenetre, 0);
}

TEST_F(ProgrammeSousMemcheck, DemarreSurDesFichiersCoupes) {
  b.dossier.Ecrit("GLMV.DAT", "x");
  b.dossier.Ecrit("GLMC.DAT", std::string(3, '\0'));
  b.dossier.Ecrit("GLPREF.DAT", std::string(5, '\1'));  // no backup at the end
  LanceSousMemcheck();
  AttendFin("ctrl+q", FenetreDe(programme), 0);
}

TEST_F(ProgrammeSousMemcheck, RefuseUnEnTeteDUnOctet) {
  b.dossier.Ecrit("GLR1.DAT", "\1");
  LanceSousMemcheck();
  AttendFin("Return", FenetreDe(programme), 1);
  EXPECT_THAT(Messages(programme), testing::ElementsAre(TroisLignes("GLR1.DAT")));
}

}  // namespace
}  // namespace gastrelle::essai
