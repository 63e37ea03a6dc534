// Notes and shopping list as their user meets them: typed in the running program, closed with it,
// there again at the next start.

#include <QTest>
#include <gmock/gmock.h>

#include "doublures/ProgrammeEssai.h"

namespace gastrelle::essai {
namespace {

using testing::ElementsAre;

class ProgrammeEtListes : public ProgrammeEssai {
 protected:
  void Ouvre(QProcess& processus) {
    Lance(processus);
    fenetre = FenetreDe(processus);
    Outil({"windowfocus", "--sync", fenetre});
  }
  /// Keys, one after the other, as xdotool names them.
  void Presse(const QStringList& touches) { Outil(QStringList{"key", "--delay", "60"} + touches); }
  /// Answers the message box that is on its way by a key.
  void Repond(const char* touche) {
    EXPECT_TRUE(QTest::qWaitFor([&] { return !Messages(programme).empty(); }, patience));
    const QString boite = FenetreDe(programme, fenetre);
    Outil({"windowfocus", "--sync", boite});
    Presse({touche});
    EXPECT_TRUE(QTest::qWaitFor(
        [&] {
          return !Outil({"search", "--onlyvisible", "--pid", QString::number(programme.processId()),
                         "--name", "."})
                      .contains(boite);
        },
        patience));
    Outil({"windowfocus", "--sync", fenetre});
  }
  void Tape(const char* texte) { Outil({"type", "--delay", "40", texte}); }
  [[nodiscard]] std::string Notes() const { return b.dossier.Lit("MesNotes.txt"); }
  [[nodiscard]] std::string Rayons() const { return b.dossier.Lit("GLMCN.DAT"); }

  QString fenetre;
};

TEST_F(ProgrammeEtListes, CeQuiEstTapeRevientAuDepartSuivant) {
  Ouvre(programme);
  Presse({"ctrl+8"});
  Tape("Un");
  Presse({"Return"});
  Tape("Deux");
  Presse({"ctrl+9"});
  Tape("pat");
  Presse({"Return"});
  Tape("2 tartes ");
  Presse({"alt+Down"});
  Tape("cidre");
  EXPECT_FALSE(b.dossier.A("MesNotes.txt"));
  EXPECT_EQ(Rayons(), "GLMCN.DAT");
  EXPECT_EQ(FinitPar("ctrl+q", programme, fenetre), 0);
  EXPECT_EQ(Notes(), "Un\r\nDeux\r\n");
  EXPECT_EQ(Rayons(), "GLMCN.DAT2 tartescidre");

  QProcess second;
  Ouvre(second);
  Presse({"ctrl+8", "ctrl+End", "Return"});
  Tape("Trois");
  Presse({"ctrl+w", "ctrl+9"});
  Tape("pat");
  Presse({"Return"});
  Tape(" et un flan");
  Presse({"ctrl+w"});
  EXPECT_EQ(FinitPar("ctrl+q", second, fenetre), 0);
  EXPECT_EQ(Notes(), "Un\r\nDeux\r\nTrois\r\n");
  EXPECT_EQ(Rayons(), "GLMCN.DAT2 tartes et un flancidre");
  EXPECT_THAT(Messages(second), ElementsAre());
}

TEST_F(ProgrammeEtListes, ToutEffacerSeDemandeEtNonEstLeBoutonParDefaut) {
  b.AjouteCourses(0, "porc");
  Ouvre(programme);
  Presse({"ctrl+9", "alt+c"});
  Repond("Return");
  EXPECT_THAT(Messages(programme),
              ElementsAre("Voulez-vous vraiment effacer toutes vos courses ?"));
  EXPECT_EQ(FinitPar("ctrl+q", programme, fenetre), 0);
  EXPECT_EQ(Rayons(), "GLMCN.DATporc");
}

TEST_F(ProgrammeEtListes, ToutEffacerParOuiVideLaListe) {
  b.AjouteCourses(0, "porc");
  Ouvre(programme);
  Presse({"ctrl+9", "alt+c"});
  Repond("alt+o");
  EXPECT_EQ(FinitPar("ctrl+q", programme, fenetre), 0);
  EXPECT_EQ(Rayons(), "GLMCN.DAT");
  EXPECT_EQ(b.dossier.Lit("GLMC.DAT"), std::string(120, '\0'));
}

TEST_F(ProgrammeEtListes, UnTuyauSousLeNomDesNotesNEstPasAttendu) {
  Remplace("MesNotes.txt", EntreesSpeciales().front());
  Ouvre(programme);
  Presse({"ctrl+8"});
  Repond("Return");
  EXPECT_THAT(Messages(programme), ElementsAre("Erreur d'accès au fichier"));
  Tape("Neuf");
  EXPECT_EQ(FinitPar("ctrl+q", programme, fenetre), 0);
  EXPECT_EQ(Notes(), "Neuf\r\n");
}

TEST_F(ProgrammeEtListes, UnDossierQueLUsagerNePeutEcrireNEmpecheRienEtGardeLeFichier) {
  b.dossier.Ecrit("MesNotes.txt", "Vieux\r\n");
  EnSimpleUsager();
  Droits("", 0777);
  Droits("GLPREF.DAT", 0666);
  Droits("MesNotes.txt", 0444);
  Ouvre(programme);
  Presse({"ctrl+8"});
  Tape("Neuf");
  Droits("", 0555);
  EXPECT_EQ(FinitPar("ctrl+q", programme, fenetre), 0);
  EXPECT_THAT(Messages(programme), ElementsAre());
  EXPECT_EQ(Notes(), "Vieux\r\n");
}

}  // namespace
}  // namespace gastrelle::essai
