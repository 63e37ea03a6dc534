// The program in a folder where something else than its files lies under their names.

#include <gmock/gmock.h>

#include "doublures/ProgrammeEssai.h"

namespace gastrelle::essai {
namespace {

namespace fs = std::filesystem;
using testing::ElementsAre;

class ProgrammeHostile : public ProgrammeEssai {
 protected:
  /// Starts the program, which refuses to; the user closes its one message.
  std::vector<std::string> Refus() {
    QProcess refuse;
    Lance(refuse);
    EXPECT_EQ(FinitPar("Return", refuse, FenetreDe(refuse)), 1);
    return Messages(refuse);
  }

  /// Starts the program and leaves it; its end brings no window, and no message was seen.
  void OuvreEtQuitte() {
    QProcess ouvert;
    Lance(ouvert);
    EXPECT_EQ(FinitPar("ctrl+q", ouvert, FenetreDe(ouvert)), 0);
    EXPECT_THAT(Messages(ouvert), ElementsAre());
  }

  /// The same, with the backup at the end, which succeeds.
  void OuvreEtSauvegarde() {
    QProcess ouvert;
    Lance(ouvert);
    const QString cadre = FenetreDe(ouvert);
    Outil({"windowfocus", "--sync", cadre});
    Outil({"key", "ctrl+q"});
    EXPECT_EQ(FinitPar("Return", ouvert, FenetreDe(ouvert, cadre)), 0);
    EXPECT_THAT(Messages(ouvert), ElementsAre());
  }

  /// A library whose files were restored, and a backup that was made.
  void AvecSauvegarde() {
    b.Demarre();
    b.dossier.Ecrit("GLPREF.DAT", Octets(RecPreferences{0, 0, 0}));
    fs::create_directory(b.dossier.chemin() / "SAUVE");
    for (const char* nom : {"GLR1.DAT", "GLR2.DAT", "GLR3.DAT", "GLR4.DAT"}) {
      b.dossier.Ecrit(std::string("SAUVE/") + nom, "ancienne");
    }
  }
};

TEST_F(ProgrammeHostile, UneCopieDeFabriqueQuiNEnEstPasUneLArrete) {
  for (const Entree& entree : EntreesSpeciales()) {
    SCOPED_TRACE(entree.nom);
    Remplace("GLF2.stp", entree);
    EXPECT_THAT(Refus(), ElementsAre(TroisLignes("GLF2.DAT")));
    EXPECT_FALSE(b.dossier.A("GLF2.DAT"));
    EXPECT_FALSE(b.dossier.A("GLF2.DAT~"));
  }
}

TEST_F(ProgrammeHostile, UnFichierDeDonneesQuiNEnEstPasUnLArrete) {
  b.Demarre();
  for (const Entree& entree : EntreesSpeciales()) {
    SCOPED_TRACE(entree.nom);
    Remplace("GLMV.DAT", entree);
    EXPECT_THAT(Refus(), ElementsAre(TroisLignes("GLMV.DAT")));
  }
}

TEST_F(ProgrammeHostile, DesPreferencesQuiNEnSontPasNeLArretentPas) {
  AvecSauvegarde();
  for (const Entree& entree : EntreesSpeciales()) {
    SCOPED_TRACE(entree.nom);
    Remplace("GLPREF.DAT", entree);
    OuvreEtSauvegarde();  // the defaults apply
  }
  EXPECT_EQ(b.dossier.Lit("SAUVE/GLR2.DAT"), b.dossier.Lit("GLR2.DAT"));
}

TEST_F(ProgrammeHostile, CeQuiAttendSousUnNomProvisoireNeGeneNiLeDepartNiLaSauvegarde) {
  const DossierEssai ailleurs;
  ailleurs.Ecrit("precieux", "à moi");
  const Entree lien{"lien", [&](const fs::path& chemin) {
                      fs::create_symlink(ailleurs.chemin() / "precieux", chemin);
                    }};
  std::vector<Entree> entrees(EntreesSpeciales().begin(), EntreesSpeciales().end());
  entrees.push_back(lien);
  for (const Entree& entree : entrees) {
    SCOPED_TRACE(entree.nom);
    AvecSauvegarde();
    b.dossier.Supprime("GLR1.DAT");
    Remplace("GLR1.DAT~", entree);
    Remplace("SAUVE/GLR1.DAT~", entree);
    OuvreEtSauvegarde();
    EXPECT_EQ(b.dossier.Lit("GLR1.DAT"), b.dossier.Lit("GLR1.stp"));
    EXPECT_EQ(b.dossier.Lit("SAUVE/GLR1.DAT"), b.dossier.Lit("GLR1.DAT"));
    EXPECT_FALSE(b.dossier.A("GLR1.DAT~2"));
    EXPECT_FALSE(b.dossier.A("SAUVE/GLR1.DAT~2"));
  }
  EXPECT_EQ(ailleurs.Lit("precieux"), "à moi");
}

TEST_F(ProgrammeHostile, UneSauvegardeQuiNePeutSeFaireFinitSansUnMot) {
  for (const Entree& entree : EntreesSpeciales()) {
    SCOPED_TRACE(entree.nom);
    AvecSauvegarde();
    fs::remove_all(b.dossier.chemin() / "SAUVE");
    entree.pose(b.dossier.chemin() / "SAUVE");
    OuvreEtQuitte();
    fs::remove(b.dossier.chemin() / "SAUVE");
  }
}

TEST_F(ProgrammeHostile, SesBibliothequesNeViennentPasDuDossierCourant) {
  const DossierEssai piege;
  for (const char* nom :
       {"libX11.so.6", "libglib-2.0.so.0", "libQt6Widgets.so.6", "libQt6Gui.so.6",
        "libQt6Core.so.6", "libstdc++.so.6", "libm.so.6", "libgcc_s.so.1", "libc.so.6"}) {
    fs::copy_file(BIBLIOTHEQUE_PIEGE, piege.chemin() / nom);
  }
  dossierCourant = piege.chemin();
  Lance(programme);
  EXPECT_EQ(FinitPar("ctrl+q", programme, FenetreDe(programme)), 0);
  EXPECT_FALSE(piege.A("sautee"));
}

TEST_F(ProgrammeHostile, SesGreffonsNeViennentPasDeSonDossier) {
  b.dossier.Ecrit("IMAGE", "x");  // a message, which the plug-in would tell
  fs::copy(DOSSIER_GREFFONS, b.dossier.chemin(), fs::copy_options::recursive);
  environnement.remove("QT_PLUGIN_PATH");
  Lance(programme);
  EXPECT_EQ(FinitPar("Return", programme, FenetreDe(programme)), 1);
  EXPECT_THAT(Messages(programme), ElementsAre());
}

TEST_F(ProgrammeHostile, UnReglageDeLaBoiteAOutilsDansSonDossierNeLArretePas) {
  b.dossier.Ecrit("qt.conf", "[Paths]\nPlugins=/nulle/part\n");
  OuvreEtQuitte();
  for (const Entree& entree : EntreesSpeciales()) {
    SCOPED_TRACE(entree.nom);
    Remplace("qt.conf", entree);
    OuvreEtQuitte();
  }
}

TEST_F(ProgrammeHostile, UnDossierOuLOnEntreSansLeListerNeSOuvreQuUneFois) {
  b.Demarre();
  EnSimpleUsager();
  for (const auto& entree : fs::directory_iterator(b.dossier.chemin())) {
    fs::permissions(entree, fs::perms::all);
  }
  Droits("", 0333);
  Lance(programme);
  FenetreDe(programme);
  EXPECT_THAT(Refus(), ElementsAre("Cette application est déjà en cours"));
  EXPECT_EQ(programme.state(), QProcess::Running);
  Droits("", 0777);
}

}  // namespace
}  // namespace gastrelle::essai
