// The frame's child windows: the buttons that open them, their sizes beside one another, their
// layout.

#include <QClipboard>
#include <QPlainTextEdit>
#include <QTest>
#include <QToolButton>

#include "controles/Icones.h"
#include "doublures/CadreVrai.h"
#include "doublures/ToutesFenetres.h"

namespace gastrelle::essai {
namespace {

class FenetresDuCadre : public CadreVrai, public testing::WithParamInterface<LigneEssai> {
 protected:
  /// The frame with no child window open.
  void OuvreVide() {
    OuvreGarni();
    Choisit("mnuWindowClose");
    QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    ASSERT_TRUE(enfants().subWindowList().isEmpty());
  }
  void AttendSaFenetre() {
    EXPECT_EQ(b.module->contexteActif, GetParam().premierContexte);
    EXPECT_EQ(enfants().activeSubWindow(), &Sous(GetParam().nom));
    EXPECT_TRUE(Sous(GetParam().nom).isVisible());
    EXPECT_TRUE(Entree(GetParam().entree).isChecked());
    EXPECT_FALSE(b.pointeur.sablier);
  }
  bool Coche() { return static_cast<QToolButton&>(BoutonBarre(GetParam().bouton)).isChecked(); }
};

TEST_P(FenetresDuCadre, SOuvrentParLeurEntree) {
  OuvreVide();
  Choisit(GetParam().entree);
  AttendSaFenetre();
}

TEST_P(FenetresDuCadre, SOuvrentParLeurBouton) {
  OuvreVide();
  Clique(BoutonBarre(GetParam().bouton));
  QApplication::processEvents();
  AttendSaFenetre();
}

TEST_P(FenetresDuCadre, SeulesSOuvrentMaximisees) {
  OuvreVide();
  Choisit(GetParam().entree);
  EXPECT_TRUE(Sous(GetParam().nom).isMaximized());
}

TEST_P(FenetresDuCadre, SeulesSOuvrentEnTailleNormaleSiLaPreferenceLeVeut) {
  OuvreVide();
  b.module->prefs[0].fenetreNormale = -1;
  Choisit(GetParam().entree);
  EXPECT_FALSE(Sous(GetParam().nom).isMaximized());
}

TEST_P(FenetresDuCadre, SOuvrentParLeurTouche) {
  OuvreVide();
  const qsizetype rang = Le<QMenu>("mnuView").actions().indexOf(&Entree(GetParam().entree));
  QTest::keyClick(cadre.get(), static_cast<Qt::Key>(Qt::Key_1 + rang), Qt::ControlModifier);
  QApplication::processEvents();
  AttendSaFenetre();
}

TEST_P(FenetresDuCadre, OntLeurBoutonCochePourLaDureeDeLeurEntree) {
  OuvreVide();
  EXPECT_FALSE(Coche());
  Choisit(GetParam().entree);
  EXPECT_TRUE(Coche());
  Clique(BoutonBarre(GetParam().bouton));
  EXPECT_TRUE(Coche());
  AttendSaFenetre();
  Sous(GetParam().nom).close();
  QApplication::processEvents();
  EXPECT_FALSE(Coche());
}

TEST_P(FenetresDuCadre, PortentLImageDeLeurBoutonJusqueDansLaListe) {
  OuvreVide();
  Choisit(GetParam().entree);
  const auto vue = [](const QIcon& icone) { return icone.pixmap(16).toImage(); };
  const QImage attendue = vue(static_cast<QToolButton&>(BoutonBarre(GetParam().bouton)).icon());
  EXPECT_EQ(vue(Sous(GetParam().nom).windowIcon()), attendue);
  emit Le<QMenu>("mnuWindow").aboutToShow();
  EXPECT_EQ(vue(Le<QMenu>("mnuWindow").actions().last()->icon()), attendue);
  for (const QSize& taille : Sous(GetParam().nom).windowIcon().availableSizes()) {
    EXPECT_LE(taille.width(), plusGrandeIconeFenetre);
  }
}

INSTANTIATE_TEST_SUITE_P(Vues, FenetresDuCadre,
                         testing::ValuesIn(ToutesLesFenetres().begin(), ToutesLesFenetres().end()),
                         testing::PrintToStringParamName());

class PlusieursFenetres : public CadreVrai {
 protected:
  /// The recipes and the menus, at normal size.
  void OuvreDeux() {
    OuvreGarni();
    recettes().showNormal();
    Choisit("mnuViewMenus");
    menus().showNormal();
    QApplication::processEvents();
  }
  QMdiSubWindow& menus() { return Sous("frmMenus"); }
};

TEST_F(PlusieursFenetres, UneSecondeNeChangePasLaTailleDeLaPremiere) {
  OuvreGarni();
  recettes().showNormal();
  recettes().setGeometry(10, 20, 640, 420);
  Choisit("mnuViewMenus");
  EXPECT_FALSE(recettes().isMaximized());
  EXPECT_EQ(recettes().geometry(), QRect(10, 20, 640, 420));
  EXPECT_FALSE(menus().isMaximized());
}

TEST_F(PlusieursFenetres, RevenirALaPremiereLuiGardeSaTaille) {
  OuvreDeux();
  recettes().setGeometry(10, 20, 640, 420);
  Choisit("mnuViewRecettes");
  EXPECT_EQ(enfants().activeSubWindow(), &recettes());
  EXPECT_EQ(recettes().geometry(), QRect(10, 20, 640, 420));
  EXPECT_FALSE(menus().isMaximized());
}

TEST_F(PlusieursFenetres, LaMosaiqueHorizontaleLesMetLUneSurLAutre) {
  OuvreDeux();
  Choisit("mnuWindowTileHorizontal");
  EXPECT_EQ(recettes().x(), menus().x());
  EXPECT_EQ(recettes().geometry().bottom() + 1, menus().y());
}

TEST_F(PlusieursFenetres, LaMosaiqueVerticaleLesMetCoteACote) {
  OuvreDeux();
  Choisit("mnuWindowTileVertical");
  EXPECT_EQ(recettes().y(), menus().y());
  EXPECT_EQ(recettes().geometry().right() + 1, menus().x());
}

TEST_F(PlusieursFenetres, LaCascadeLesDecale) {
  OuvreDeux();
  Choisit("mnuWindowTileHorizontal");
  Choisit("mnuWindowCascade");
  const QPoint decalage = menus().pos() - recettes().pos();
  EXPECT_NE(decalage.x(), 0);
  EXPECT_EQ(decalage.x() > 0, decalage.y() > 0);
}

TEST_F(PlusieursFenetres, ReorganiserRangeLesIconesEnBas) {
  OuvreDeux();
  menus().showMinimized();
  QApplication::processEvents();
  menus().move(100, 100);
  Choisit("mnuWindowArrangeIcons");
  EXPECT_TRUE(menus().isMinimized());
  EXPECT_EQ(menus().x(), 0);
  EXPECT_EQ(menus().geometry().bottom() + 1, enfants().viewport()->height());
}

TEST_F(PlusieursFenetres, LesTouchesVontDUneFenetreALAutreDepuisUneZoneDeTexte) {
  OuvreDeux();
  Choisit("mnuViewBarreOutils");
  ASSERT_FALSE(Le("tbToolBar").isVisible());
  const auto appuie = [&](Qt::Key touche) {
    QTest::keyClick(QApplication::focusWidget(), touche, Qt::ControlModifier);
    QApplication::processEvents();
  };
  CliqueOnglet(Le("frmMenus"), 2);
  QWidget& boite = Le("txtSaisieMenuAjouter");
  boite.setFocus();
  Tape(boite, "Un repas");
  appuie(Qt::Key_1);
  EXPECT_EQ(b.module->contexteActif, 11);
  appuie(Qt::Key_QuoteDbl);  // the key of 3 on a French keyboard
  EXPECT_EQ(b.module->contexteActif, 32);
  EXPECT_TRUE(menus().isAncestorOf(QApplication::focusWidget()));
}

TEST_F(PlusieursFenetres, LaVirguleOuvreLesPreferences) {
  OuvreDeux();
  AvecDialogue(
      [&] { QTest::keyClick(QApplication::focusWidget(), Qt::Key_Comma, Qt::ControlModifier); },
      [](QDialog& dialogue) { EXPECT_EQ(dialogue.objectName(), "frmPreferences"); });
}

// The edit commands with nothing to work on, and on several lines.

class EditionDuCadre : public CadreVrai {
 protected:
  /// The four commands, whatever the tab on display allows.
  void AttendQuatreBips() {
    QApplication::clipboard()->setText("x");
    int attendus = 0;
    for (const char* nom : {"mnuEditCut", "mnuEditCopy", "mnuEditPaste", "mnuEditSelect"}) {
      Entree(nom).setEnabled(true);
      Choisit(nom);
      EXPECT_EQ(b.messages.bips, ++attendus) << nom;
    }
    EXPECT_EQ(QApplication::clipboard()->text(), "x");
  }
};

TEST_F(EditionDuCadre, SansFenetreLesQuatreCommandesBipent) {
  Ouvre();
  Choisit("mnuWindowClose");
  QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  AttendQuatreBips();
}

TEST_F(EditionDuCadre, SansControleEnUsageLesQuatreCommandesBipent) {
  Ouvre();
  ASSERT_NE(Le("frmRecettes").focusWidget(), nullptr);
  Le("frmRecettes").focusWidget()->clearFocus();
  ASSERT_EQ(Le("frmRecettes").focusWidget(), nullptr);
  AttendQuatreBips();
}

TEST_F(EditionDuCadre, PlusieursLignesVontAuPressePapiersEnFinsDeLigneSimples) {
  Ouvre();
  CliqueOnglet(Le("frmRecettes"), 2);
  QWidget& boite = Le("txtSaisieRecetteAjouter");
  boite.setFocus();
  Tape(boite, "a\nb");
  for (const char* nom : {"mnuEditCopy", "mnuEditCut"}) {
    QApplication::clipboard()->clear();
    Entree("mnuEditSelect").setEnabled(true);
    Choisit("mnuEditSelect");
    Choisit(nom);
    EXPECT_EQ(QApplication::clipboard()->text(), "a\nb") << nom;
  }
  EXPECT_EQ(Texte(boite), "");
}

TEST_F(EditionDuCadre, UnCollageDePlusieursLignesSeRangeEnDeuxCaracteres) {
  Ouvre();
  CliqueOnglet(Le("frmRecettes"), 2);
  auto& boite = Le<QPlainTextEdit>("txtSaisieRecetteAjouter");
  boite.setFocus();
  for (const char* texte : {"a\nb", "a\r\nb"}) {
    QApplication::clipboard()->setText(texte);
    boite.clear();
    Choisit("mnuEditPaste");
    EXPECT_EQ(boite.document()->blockCount(), 2);
    EXPECT_EQ(Texte(boite), "a\nb");
  }
}

}  // namespace
}  // namespace gastrelle::essai
