// The windows of menus and tips inside the real frame: what each tab allows, and the one entry that
// the menus never touch.

#include <tuple>

#include "doublures/CadreVrai.h"

namespace gastrelle::essai {
namespace {

class FichesDansLeCadre : public CadreVrai {
 protected:
  FichesDansLeCadre() { b.Garnit(); }
  bool BoutonPermis(const char* cle) { return BoutonBarre(cle).isEnabled(); }
  void FermeTout() {
    Choisit("mnuWindowClose");
    QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  }
};

TEST_F(FichesDansLeCadre, LesMenusLaissentLEntreeDEnvoiFermeeSousDesBoutonsOuverts) {
  Ouvre();
  Choisit("mnuViewMenus");
  EXPECT_EQ(b.module->contexteActif, 31);
  EXPECT_TRUE(Entree("mnuViewMenus").isChecked());
  EXPECT_TRUE(BoutonPermis("Ttx"));
  EXPECT_TRUE(BoutonPermis("Notepad"));
  EXPECT_FALSE(Permis("mnuEditEnvoyer"));
}

TEST_F(FichesDansLeCadre, LesMenusNeFermentPasNonPlusLEntreeDEnvoi) {
  Ouvre();
  recettes().showMinimized();  // a minimised window leaves the frame as it is
  Choisit("mnuViewMenus");
  EXPECT_TRUE(Permis("mnuEditEnvoyer"));
  CliqueOnglet(Le("frmMenus"), 4);
  EXPECT_TRUE(Permis("mnuEditEnvoyer"));
  Sous("frmMenus").close();
  EXPECT_TRUE(Permis("mnuEditEnvoyer"));
  EXPECT_FALSE(BoutonPermis("Ttx"));
}

TEST_F(FichesDansLeCadre, LesTrucsOuvrentEtFermentLEntreeDEnvoi) {
  Ouvre();
  Clique(BoutonBarre("Tool"));
  QApplication::processEvents();
  EXPECT_EQ(b.module->contexteActif, 61);
  EXPECT_TRUE(Permis("mnuEditEnvoyer"));
  EXPECT_TRUE(BoutonPermis("Ttx"));
  CliqueOnglet(Le("frmTrucs"), 3);
  EXPECT_FALSE(Permis("mnuEditEnvoyer"));
  CliqueOnglet(Le("frmTrucs"), 1);
  Choisit("mnuViewMenus");
  EXPECT_FALSE(Permis("mnuEditEnvoyer"));
}

TEST_F(FichesDansLeCadre, LaSaisiePermetCouperEtCollerEtLaListeSeulementCopier) {
  Ouvre();
  for (const auto& [entree, fenetre] : {std::pair{"mnuViewMenus", "frmMenus"},
                                        std::pair{"mnuViewTermesTrucsAstuces", "frmTrucs"}}) {
    SCOPED_TRACE(fenetre);
    Choisit(entree);
    EXPECT_TRUE(BoutonPermis("Print") && BoutonPermis("Copier") && BoutonPermis("Find"));
    EXPECT_FALSE(BoutonPermis("Couper") || BoutonPermis("Coller"));
    CliqueOnglet(Le(fenetre), 2);
    EXPECT_TRUE(BoutonPermis("Couper") && BoutonPermis("Coller") && Permis("mnuEditSelect"));
    EXPECT_FALSE(BoutonPermis("Print") || BoutonPermis("Find") || Permis("mnuViewImage"));
    CliqueOnglet(Le(fenetre), 4);
    EXPECT_FALSE(BoutonPermis("Copier") || Permis("mnuEditSelect"));
  }
}

TEST_F(FichesDansLeCadre, PasserALAutreFenetreOteLaCoche) {
  Ouvre();
  Choisit("mnuViewMenus");
  Choisit("mnuViewTermesTrucsAstuces");
  EXPECT_FALSE(Entree("mnuViewMenus").isChecked());
  EXPECT_TRUE(Entree("mnuViewTermesTrucsAstuces").isChecked());
}

TEST_F(FichesDansLeCadre, RevenirAUneFenetreVideLaSaisieDeLAjout) {
  Ouvre();
  Choisit("mnuViewMenus");
  CliqueOnglet(Le("frmMenus"), 2);
  Tape(Le("txtSaisieNomMenu"), "Noce");
  Choisit("mnuViewTermesTrucsAstuces");
  Choisit("mnuViewMenus");
  EXPECT_EQ(b.module->contexteActif, 32);
  EXPECT_EQ(Texte(Le("txtSaisieNomMenu")), "");
}

TEST_F(FichesDansLeCadre, LaSeuleFenetreOuverteSuitLaPreferenceDeTaille) {
  Ouvre();
  FermeTout();
  Choisit("mnuViewMenus");
  EXPECT_TRUE(Sous("frmMenus").isMaximized());
  FermeTout();
  b.module->prefs[0].fenetreNormale = 1;
  Choisit("mnuViewTermesTrucsAstuces");
  EXPECT_FALSE(Sous("frmTrucs").isMaximized());
}

TEST_F(FichesDansLeCadre, ReduitesEllesLaissentLeCadreTelQuIlEst) {
  Ouvre();
  for (const auto& [entree, fenetre, code] :
       {std::tuple{"mnuViewMenus", "frmMenus", 31},
        std::tuple{"mnuViewTermesTrucsAstuces", "frmTrucs", 61}}) {
    SCOPED_TRACE(fenetre);
    Choisit(entree);
    const std::string motif = Motif();
    Sous(fenetre).showMinimized();
    QApplication::processEvents();
    EXPECT_EQ(b.module->contexteActif, code);
    EXPECT_TRUE(Entree(entree).isChecked());
    EXPECT_EQ(Motif(), motif);
  }
}

TEST_F(FichesDansLeCadre, QuitterUneFenetreReduiteLuiLaisseSaCoche) {
  Ouvre();
  Choisit("mnuViewMenus");
  Sous("frmMenus").showMinimized();
  Choisit("mnuViewTermesTrucsAstuces");
  EXPECT_EQ(b.module->contexteActif, 61);
  EXPECT_TRUE(Entree("mnuViewMenus").isChecked());
}

TEST_F(FichesDansLeCadre, ActiverUneFenetreReduiteNePoseRien) {
  Ouvre();
  Choisit("mnuViewMenus");
  CliqueOnglet(Le("frmMenus"), 2);
  Tape(Le("txtSaisieNomMenu"), "Noce");
  Sous("frmMenus").showMinimized();
  Choisit("mnuViewTermesTrucsAstuces");
  enfants().setActiveSubWindow(&Sous("frmMenus"));
  QApplication::processEvents();
  ASSERT_TRUE(Sous("frmMenus").isMinimized());
  EXPECT_FALSE(Entree("mnuViewTermesTrucsAstuces").isChecked());
  EXPECT_EQ(b.module->contexteActif, 0);
  EXPECT_EQ(Motif(), "---------");
  EXPECT_EQ(Texte(Le("txtSaisieNomMenu")), "Noce");
}

TEST_F(FichesDansLeCadre, LePointeurEstUneFlecheUneFoisLaFenetreActive) {
  Ouvre();
  for (const char* entree : {"mnuViewMenus", "mnuViewTermesTrucsAstuces", "mnuViewMenus"}) {
    b.pointeur.Sablier();
    Choisit(entree);
    EXPECT_FALSE(b.pointeur.sablier) << entree;
  }
}

}  // namespace
}  // namespace gastrelle::essai
