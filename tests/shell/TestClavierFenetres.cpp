// Where the keyboard is when one comes back to a child window of the frame, whatever the way out of
// it and the way back: where the tab's entry rule puts it, or else where it was.

#include <array>
#include <functional>

#include <QTest>

#include "doublures/CadreVrai.h"
#include "doublures/ToutesFenetres.h"

namespace gastrelle::essai {
namespace {

class ClavierDesFenetres : public CadreVrai {
 protected:
  static void Attend() {
    QApplication::processEvents();
    QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QApplication::processEvents();
  }
  /// Goes to a window by its key, wherever the keyboard is.
  void VaA(const char* entree) {
    const qsizetype rang = Le<QMenu>("mnuView").actions().indexOf(&Entree(entree));
    QWidget* focus = QApplication::focusWidget();
    QTest::keyClick(focus != nullptr ? focus : cadre.get(), static_cast<Qt::Key>(Qt::Key_1 + rang),
                    Qt::ControlModifier);
    Attend();
  }
  static std::string AuClavier() {
    const QWidget* focus = QApplication::focusWidget();
    return focus == nullptr ? "personne" : focus->objectName().toStdString();
  }
  /// What the frame is while a window is active.
  void AttendActive(const char* nom, const char* entree, int contexte) {
    EXPECT_TRUE(Sous(nom).isVisible());
    EXPECT_FALSE(Sous(nom).isMinimized());
    EXPECT_EQ(enfants().activeSubWindow(), &Sous(nom));
    EXPECT_EQ(b.module->contexteActif, contexte);
    EXPECT_TRUE(Entree(entree).isChecked());
    EXPECT_FALSE(b.pointeur.sablier);
  }
};

/// A way out of a window and back to it.
struct Detour {
  const char* nom;
  bool reduite;      ///< it is minimised first
  bool parUneAutre;  ///< another window is active meanwhile
};

constexpr std::array<Detour, 3> detours{{{"par une autre", false, true},
                                         {"réduite", true, false},
                                         {"réduite, par une autre", true, true}}};

class RetourAuClavier : public ClavierDesFenetres, public testing::WithParamInterface<LigneEssai> {
 protected:
  void OuvreLaSienne() {
    b.AjouteCourses(0, "porc");
    OuvreGarni();
    VaA(autre);
    VaA(ligne.entree);
    ASSERT_EQ(enfants().activeSubWindow(), &Sous(ligne.nom));
  }
  void Dimensionne(bool maximisee) {
    for (QMdiSubWindow* fenetre : enfants().subWindowList()) {
      if (fenetre->isMaximized() != maximisee) {
        maximisee ? fenetre->showMaximized() : fenetre->showNormal();
      }
    }
    enfants().setActiveSubWindow(&Sous(ligne.nom));
    Attend();
    ASSERT_EQ(Sous(ligne.nom).isMaximized(), maximisee);
  }
  void Suit(const Detour& detour) {
    if (detour.reduite) {
      Sous(ligne.nom).showMinimized();
      Attend();
    }
    if (detour.parUneAutre) {
      VaA(autre);
      ASSERT_NE(enfants().activeSubWindow(), &Sous(ligne.nom));
      VaA(ligne.entree);
    } else {
      Sous(ligne.nom).showNormal();
      Attend();
    }
  }
  void VaAOnglet(int onglet) {
    if (auto* bande = Le(ligne.nom).findChild<QTabBar*>()) {
      bande->setCurrentIndex(0);  // from the list every tab can be reached
      bande->setCurrentIndex(onglet - 1);
      ASSERT_EQ(bande->currentIndex(), onglet - 1);
    }
  }
  /// Where the keyboard is after the window's own rules, told that it is active.
  std::string ApresLaRegle() {
    dynamic_cast<FenetreEnfant&>(Le(ligne.nom)).Active();
    return AuClavier();
  }
  /// Every control that the Tab key visits on a tab, the strip of tabs included.
  std::vector<QWidget*> Controles(int onglet) {
    std::vector<QWidget*> controles;
    for (const QByteArray& nom :
         QByteArray(ligne.clavier[static_cast<std::size_t>(onglet) - 1]).split(' ')) {
      controles.push_back(&Trouve(Le(ligne.nom), nom.constData()));
    }
    if (auto* bande = Le(ligne.nom).findChild<QTabBar*>()) {
      controles.push_back(bande);
    }
    return controles;
  }

  const LigneEssai& ligne = GetParam();
  const char* autre =
      ligne.nom == std::string_view("frmRecettes") ? "mnuViewMenus" : "mnuViewRecettes";
};

INSTANTIATE_TEST_SUITE_P(Toutes, RetourAuClavier,
                         testing::ValuesIn(ToutesLesFenetres().begin(), ToutesLesFenetres().end()),
                         testing::PrintToStringParamName());

TEST_P(RetourAuClavier, OnRevientOuLOnEtait) {
  OuvreLaSienne();
  for (const Detour& detour : detours) {
    for (const bool maximisee : {true, false}) {
      for (int onglet = 1; onglet <= ligne.onglets(); ++onglet) {
        Dimensionne(maximisee);
        VaAOnglet(onglet);
        for (QWidget* controle : Controles(onglet)) {
          SCOPED_TRACE(std::string(detour.nom) + (maximisee ? ", maximisée, " : ", normale, ") +
                       std::to_string(onglet) + ' ' + controle->objectName().toStdString());
          Dimensionne(maximisee);
          controle->setFocus();
          const std::string attendu = ApresLaRegle();
          controle->setFocus();
          Suit(detour);
          EXPECT_EQ(AuClavier(), attendu);
        }
      }
    }
  }
}

class ClavierDesListes : public ClavierDesFenetres {};

TEST_F(ClavierDesListes, CeQuOnTapeAuRetourVaDansLeTexteOuLOnEtait) {
  OuvreGarni();
  VaA("mnuViewMesCourses");
  ASSERT_TRUE(Sous("frmCourses").isMaximized());
  Frappe(Qt::Key_Return);
  Frappe("porc");
  VaA("mnuViewRecettes");
  VaA("mnuViewMesCourses");
  Frappe(" olives");
  EXPECT_EQ(Texte(Le("txtDetail")), "porc olives");
  EXPECT_EQ(b.messages.vus.size(), 0);
  EXPECT_TRUE(Le("cmdNouveau").isVisible());
}

TEST_F(ClavierDesListes, LesNotesFermeesParLeurCroixReprennentLeClavier) {
  OuvreGarni();
  VaA("mnuViewMesNotes");
  for (const bool maximisee : {true, false}) {
    SCOPED_TRACE(maximisee);
    maximisee ? Sous("frmMesNotes").showMaximized() : Sous("frmMesNotes").showNormal();
    Attend();
    Le("txtSaisie").setFocus();
    Sous("frmMesNotes").close();
    EXPECT_TRUE(recettes().isAncestorOf(QApplication::focusWidget())) << AuClavier();
    Attend();
    EXPECT_TRUE(recettes().isAncestorOf(QApplication::focusWidget())) << AuClavier();
    VaA("mnuViewMesNotes");
    EXPECT_EQ(AuClavier(), "txtSaisie");
    EXPECT_EQ(Sous("frmMesNotes").isMaximized(), maximisee);
  }
}

TEST_F(ClavierDesListes, DerriereLaDerniereFenetreFermeeRienNePrendCeQuOnTape) {
  OuvreGarni();
  Choisit("mnuWindowClose");
  Attend();
  VaA("mnuViewMesNotes");
  Frappe("Un");
  Sous("frmMesNotes").close();
  Attend();
  EXPECT_FALSE(Sous("frmMesNotes").isAncestorOf(QApplication::focusWidget())) << AuClavier();
  if (QWidget* focus = QApplication::focusWidget()) {
    QTest::keyClick(focus, Qt::Key_X);
  }
  VaA("mnuViewMesNotes");
  EXPECT_EQ(AuClavier(), "txtSaisie");
  EXPECT_EQ(Texte(Le("txtSaisie")), "UnDes notes.");
}

// Closed and asked for before the program has looked at what is left.

TEST_F(ClavierDesListes, LesNotesFermeesEtRedemandeesAussitotSontActives) {
  for (const bool seules : {false, true}) {
    SCOPED_TRACE(seules);
    OuvreGarni();
    if (seules) {
      Choisit("mnuWindowClose");
      Attend();
    }
    VaA("mnuViewMesNotes");
    Sous("frmMesNotes").close();
    Entree("mnuViewMesNotes").trigger();
    AttendActive("frmMesNotes", "mnuViewMesNotes", 90);
    Attend();
    AttendActive("frmMesNotes", "mnuViewMesNotes", 90);
    EXPECT_EQ(Motif(), "+++++----");
    EXPECT_EQ(AuClavier(), "txtSaisie");
  }
}

TEST_F(ClavierDesListes, UneAutreDemandeeAussitotApresLaFermetureEstActive) {
  OuvreGarni();
  for (const char* fermee : {"MesNotes", "Courses"}) {
    SCOPED_TRACE(fermee);
    VaA(fermee == std::string_view("Courses") ? "mnuViewMesCourses" : "mnuViewMesNotes");
    Sous((std::string("frm") + fermee).c_str()).close();
    Entree("mnuViewRecettes").trigger();
    Attend();
    AttendActive("frmRecettes", "mnuViewRecettes", 11);
    EXPECT_EQ(AuClavier(), "txtRecette");
  }
}

TEST_P(RetourAuClavier, FermeeEtRedemandeeAussitotElleEstLa) {
  OuvreLaSienne();
  Sous(ligne.nom).close();
  Entree(ligne.entree).trigger();
  Attend();
  AttendActive(ligne.nom, ligne.entree, ligne.premierContexte);
  EXPECT_EQ(cadre->findChildren<QWidget*>(ligne.nom).size(), 1);
  EXPECT_TRUE(Sous(ligne.nom).isAncestorOf(QApplication::focusWidget())) << AuClavier();
}

}  // namespace
}  // namespace gastrelle::essai
