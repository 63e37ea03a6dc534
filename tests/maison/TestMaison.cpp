// The checks themselves, on small trees made for them: each finds what it is there for, and nothing
// else.

#include <string_view>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "doublures/Bibliotheque.h"
#include "maison/Maison.h"

namespace gastrelle::essai {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class Maison : public testing::Test {
 protected:
  void Ecrit(const std::string& nom, std::string_view texte) const {
    std::filesystem::create_directories((dossier.chemin() / nom).parent_path());
    dossier.Ecrit(nom, texte);
  }

  [[nodiscard]] const std::filesystem::path& racine() const { return dossier.chemin(); }

  DossierEssai dossier;
};

TEST_F(Maison, ChaquePieceASonEtage) {
  EXPECT_EQ(Etage("plateforme/Disque.h"), 1);
  EXPECT_EQ(Etage("data/Main.cpp"), 2);
  for (const char* piece : {"recettes", "vins", "fromages", "fiches", "favoris", "listes"}) {
    EXPECT_EQ(Etage(std::filesystem::path(piece) / "Lecture.h"), 3) << piece;
    EXPECT_EQ(Etage(std::filesystem::path(piece) / "frmListe.cpp"), 6) << piece;
  }
  for (const char* piece : {"sortie", "recherche", "maintenance"}) {
    EXPECT_EQ(Etage(std::filesystem::path(piece) / "Document.h"), 4) << piece;
    EXPECT_EQ(Etage(std::filesystem::path(piece) / "frmDocument.h"), 6) << piece;
  }
  EXPECT_EQ(Etage("fiches/FenetreFiches.h"), 6);
  EXPECT_EQ(Etage("controles/FenetreOnglets.h"), 5);
  EXPECT_EQ(Etage("shell/frmMain.h"), 7);
  EXPECT_EQ(Etage("main.cpp"), 8);
  EXPECT_EQ(Etage("grenier/Malle.h"), 0);
}

TEST_F(Maison, UnEtageInclutLeSienEtCeuxDuDessous) {
  Ecrit("src/plateforme/Disque.h", "");
  Ecrit("src/data/Main.h", "#include \"plateforme/Disque.h\"\n");
  Ecrit("src/data/Main.cpp", "#include \"data/Main.h\"\n#include <string>\n");
  Ecrit("src/shell/frmMain.cpp", "#include \"data/Main.h\"\n");
  EXPECT_THAT(IncluantPlusHaut(racine()), IsEmpty());
}

TEST_F(Maison, UnEtageNInclutPasCeuxDuDessus) {
  Ecrit("src/shell/frmMain.h", "");
  Ecrit("src/recettes/frmRecettes.h", "");
  Ecrit("src/controles/Cadre.h", "  #  include \"recettes/frmRecettes.h\"\n");
  Ecrit("src/recettes/frmListe.cpp", "#include \"shell/frmMain.h\"\n");
  EXPECT_THAT(IncluantPlusHaut(racine()),
              ElementsAre("src/controles/Cadre.h : étage 5, inclut recettes/frmRecettes.h, étage 6",
                          "src/recettes/frmListe.cpp : étage 6, inclut shell/frmMain.h, étage 7"));
}

TEST_F(Maison, UnVoisinDeDossierInclusSansSonDossierCompteAussi) {
  Ecrit("src/recettes/frmRecettes.h", "");
  Ecrit("src/recettes/Lecture.h", "#include \"frmRecettes.h\"\n");
  EXPECT_THAT(IncluantPlusHaut(racine()),
              ElementsAre("src/recettes/Lecture.h : étage 3, inclut frmRecettes.h, étage 6"));
}

TEST_F(Maison, LesSourcesNIncluentRienQuiSoitAilleurs) {
  Ecrit("tests/doublures/Disque.h", "");
  Ecrit("src/data/Main.h", "#include \"doublures/Disque.h\"\n");
  Ecrit("src/grenier/Malle.h", "");
  EXPECT_THAT(IncluantPlusHaut(racine()),
              ElementsAre("src/data/Main.h : doublures/Disque.h n'est pas dans src",
                          "src/grenier/Malle.h : dans un dossier sans étage"));
}

TEST_F(Maison, DeuxPiecesVoisinesNeSIncluentPasLUneLAutre) {
  Ecrit("src/recettes/A.h", "#include \"vins/B.h\"\n");
  Ecrit("src/recettes/C.h", "");
  Ecrit("src/vins/B.h", "");
  EXPECT_THAT(PiecesQuiSIncluent(racine()), IsEmpty());
  Ecrit("src/vins/D.h", "#include \"recettes/C.h\"\n");
  EXPECT_THAT(PiecesQuiSIncluent(racine()), ElementsAre("recettes et vins s'incluent"));
}

TEST_F(Maison, LesControlesNeConnaissentAucunCatalogue) {
  Ecrit("src/recettes/Lecture.h", "");
  Ecrit("src/maintenance/frmPreferences.h", "");
  Ecrit("src/data/Vues.h", "");
  Ecrit("src/controles/FenetreOnglets.h", "#include \"data/Vues.h\"\n");
  Ecrit("src/recettes/frmListe.h", "#include \"recettes/Lecture.h\"\n");
  EXPECT_THAT(ControlesAvecCatalogue(racine()), IsEmpty());
  Ecrit("src/controles/FenetreOnglets.cpp", "#include \"recettes/Lecture.h\"\n");
  Ecrit("src/controles/Boites.h", "#include \"maintenance/frmPreferences.h\"\n");
  EXPECT_THAT(ControlesAvecCatalogue(racine()),
              ElementsAre("src/controles/Boites.h : inclut maintenance/frmPreferences.h",
                          "src/controles/FenetreOnglets.cpp : inclut recettes/Lecture.h"));
}

TEST_F(Maison, LesFenetresNeNommentAucunFichierDeDonnees) {
  Ecrit("src/recettes/Lecture.cpp", "ExigeFichier(module, Donnees::GLR2);\n");
  Ecrit("src/recettes/frmListe.cpp", "Donnees donnees; // GLISSE ANGLE\n");
  EXPECT_THAT(FenetresNommantUnFichier(racine()), IsEmpty());
  Ecrit("src/recettes/frmListe.cpp", "ExigeFichier(module, Donnees::GLR2);\n");
  Ecrit("src/vins/frmVins.h", "/// Reads GLV2.DAT.\n");
  Ecrit("src/fiches/FenetreFiches.cpp", "using enum Donnees; auto f = GLPREF;\n");
  EXPECT_THAT(FenetresNommantUnFichier(racine()),
              ElementsAre("src/fiches/FenetreFiches.cpp : nomme GLPREF",
                          "src/recettes/frmListe.cpp : nomme Donnees::",
                          "src/vins/frmVins.h : nomme GLV2.DAT"));
}

TEST_F(Maison, QtNEstPasSousLesFenetres) {
  Ecrit("src/controles/Cadre.h", "#include <QWidget>\n");
  Ecrit("src/recettes/frmListe.h", "#include <QWidget>\n");
  Ecrit("src/recettes/Lecture.h", "#include <string>\n// QString\n");
  EXPECT_THAT(QtSousLesFenetres(racine()), IsEmpty());
  Ecrit("src/recettes/Lecture.h", "#include <QString>\n");
  Ecrit("src/data/Main.cpp", "#include <QtCore/qstring.h>\n");
  EXPECT_THAT(QtSousLesFenetres(racine()),
              ElementsAre("src/data/Main.cpp : inclut QtCore/qstring.h",
                          "src/recettes/Lecture.h : inclut QString"));
}

TEST_F(Maison, AucuneSalleNeRevientAElleMeme) {
  Ecrit("src/data/A.h", "#include \"data/B.h\"\n#include \"data/C.h\"\n");
  Ecrit("src/data/B.h", "#include \"data/C.h\"\n");
  Ecrit("src/data/B.cpp", "#include \"data/B.h\"\n");
  Ecrit("src/data/C.h", "");
  EXPECT_THAT(Cycles(racine()), IsEmpty());
  Ecrit("src/data/C.h", "#include \"data/A.h\"\n");
  EXPECT_THAT(Cycles(racine()), ElementsAre("src/data/A > src/data/B > src/data/C > src/data/A"));
}

TEST_F(Maison, UnEnTeteEtSaSourceSontUneSalle) {
  Ecrit("src/recettes/frmA.h", "class frmB;\n");
  Ecrit("src/recettes/frmA.cpp", "#include \"recettes/frmA.h\"\n");
  Ecrit("src/recettes/frmB.h", "#include \"recettes/frmA.h\"\n");
  EXPECT_THAT(Cycles(racine()), IsEmpty());
  Ecrit("src/recettes/frmA.cpp", "#include \"recettes/frmA.h\"\n#include \"recettes/frmB.h\"\n");
  EXPECT_THAT(Cycles(racine()),
              ElementsAre("src/recettes/frmA > src/recettes/frmB > src/recettes/frmA"));
}

TEST_F(Maison, LesCyclesSeVoientDansLesQuatreDossiers) {
  Ecrit("usine/A.h", "#include \"usine/A.h\"\n");
  Ecrit("tests/doublures/B.h", "#include \"doublures/C.h\"\n");
  Ecrit("tests/doublures/C.h", "#include \"B.h\"\n");
  Ecrit("bancs/D.h", "#include \"D.h\"\n");
  EXPECT_THAT(Cycles(racine()), testing::SizeIs(3));
}

TEST_F(Maison, UnFichierDeCodeTientEnSixCentsLignes) {
  std::string lignes;
  for (std::size_t i = 0; i < lignesAuPlus; ++i) {
    lignes += "x\n";
  }
  Ecrit("src/data/A.cpp", lignes);
  Ecrit("usine/catalogue.toml", lignes + lignes);
  EXPECT_THAT(TropLongs(racine()), IsEmpty());
  for (const char* nom : {"src/data/A.cpp", "usine/A.h", "tests/CMakeLists.txt", "bancs/a.py"}) {
    Ecrit(nom, lignes + "x\n");
  }
  EXPECT_THAT(TropLongs(racine()),
              ElementsAre("src/data/A.cpp : 601 lignes", "usine/A.h : 601 lignes",
                          "tests/CMakeLists.txt : 601 lignes", "bancs/a.py : 601 lignes"));
}

TEST_F(Maison, RienNEstLaisseInacheve) {
  const std::string marque = std::string("TO") + "DO";
  const std::string autre = std::string("FIX") + "ME";
  Ecrit("src/data/A.h", "// mé" + marque + "S\n");
  Ecrit("tests/fuzz/corpus", marque);
  EXPECT_THAT(Inacheves(racine()), IsEmpty());
  Ecrit("src/data/A.h", "// " + marque + ": later\n");
  Ecrit("bancs/mesure", "#!/bin/sh\n# " + autre + "\n");
  EXPECT_THAT(Inacheves(racine()),
              ElementsAre("src/data/A.h : // " + marque + ": later", "bancs/mesure : # " + autre));
}

TEST_F(Maison, ChaqueSourceEstCompilee) {
  Ecrit("src/main.cpp", "");
  Ecrit("src/data/A.cpp", "");
  Ecrit("src/data/A.h", "");
  Ecrit("src/CMakeLists.txt", "add_library(a data/A.cpp)\nadd_executable(b main.cpp)\n");
  EXPECT_THAT(NonCompiles(racine()), IsEmpty());
  Ecrit("src/CMakeLists.txt",
        "add_library(a # data/A.cpp\n  data/AA.cpp)\nadd_executable(b main.cpp)\n");
  EXPECT_THAT(NonCompiles(racine()),
              ElementsAre("src/data/A.cpp : n'est pas dans src/CMakeLists.txt"));
}

}  // namespace
}  // namespace gastrelle::essai
