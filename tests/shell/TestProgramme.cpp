// The program as its user starts and leaves it.

#include <QFileInfo>
#include <gmock/gmock.h>

#include "doublures/ProgrammeEssai.h"

namespace gastrelle::essai {
namespace {

using testing::ElementsAre;

using Programme = ProgrammeEssai;

TEST_F(Programme, SaFenetrePorteLeTitreUneFoisEtSeQuitteSansErreur) {
  Lance(programme);
  const QString fenetre = FenetreDe(programme);
  EXPECT_EQ(Outil({"getwindowname", fenetre}), "Gastrelle 2005");
  EXPECT_TRUE(b.dossier.A("GLR1.DAT"));
  EXPECT_TRUE(b.dossier.A("IMAGE"));
  EXPECT_EQ(FinitPar("ctrl+q", programme, fenetre), 0);
  EXPECT_THAT(Messages(programme), ElementsAre());
}

TEST_F(Programme, UnFichierALaPlaceDuDossierDesImagesLArrete) {
  b.dossier.Ecrit("IMAGE", "x");
  Lance(programme);
  const QString message = FenetreDe(programme);
  EXPECT_EQ(Outil({"getwindowname", message}), "Gastrelle 2005");
  EXPECT_EQ(programme.state(), QProcess::Running);
  EXPECT_EQ(FinitPar("Return", programme, message), 1);
  EXPECT_THAT(Messages(programme),
              ElementsAre("Erreur d'exécution '75' : Erreur d'accès au fichier"));
  EXPECT_EQ(b.dossier.Lit("IMAGE"), "x");
}

TEST_F(Programme, CeQuIlLanceCommenceDansSonDossier) {
  Lance(programme);
  const QString fenetre = FenetreDe(programme);
  EXPECT_EQ(QFileInfo(QStringLiteral("/proc/%1/cwd").arg(programme.processId())).symLinkTarget(),
            QFileInfo(QString::fromStdString(b.dossier.chemin().string())).canonicalFilePath());
  EXPECT_EQ(FinitPar("ctrl+q", programme, fenetre), 0);
}

TEST_F(Programme, UnSecondNeSOuvrePasACoteDuPremier) {
  Lance(programme);
  FenetreDe(programme);
  QProcess second;
  Lance(second);
  FinitPar("Return", second, FenetreDe(second));
  EXPECT_THAT(Messages(second), ElementsAre("Cette application est déjà en cours"));
  EXPECT_EQ(programme.state(), QProcess::Running);
}

TEST_F(Programme, CeQuOnTapeEnRevenantALaListeVaDansSonTexte) {
  Lance(programme);
  const QString fenetre = FenetreDe(programme);
  Outil({"windowfocus", "--sync", fenetre});
  Outil({"key", "--delay", "60", "ctrl+9", "Return"});
  Outil({"type", "--delay", "40", "porc"});
  Outil({"key", "--delay", "60", "ctrl+1", "ctrl+9"});
  Outil({"type", "--delay", "40", " olives"});
  EXPECT_EQ(FinitPar("ctrl+q", programme, fenetre), 0);
  EXPECT_EQ(b.dossier.Lit("GLMCN.DAT"), "GLMCN.DATporc olives");
  EXPECT_THAT(Messages(programme), ElementsAre());
}

TEST_F(Programme, UnSimpleUsagerLOuvreAussi) {
  EnSimpleUsager();
  Droits("", 0777);
  Droits("GLPREF.DAT", 0666);
  Lance(programme);
  EXPECT_EQ(FinitPar("ctrl+q", programme, FenetreDe(programme)), 0);
  EXPECT_THAT(Messages(programme), ElementsAre());
}

}  // namespace
}  // namespace gastrelle::essai
