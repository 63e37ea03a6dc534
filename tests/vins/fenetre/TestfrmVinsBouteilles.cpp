// The nine boxes of bottles: what they take, and how they are left or not.

#include <QAbstractButton>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QMenu>

#include "doublures/CadreVrai.h"
#include "vins/fenetre/FenetreCave.h"

namespace gastrelle::essai {
namespace {

using testing::IsEmpty;

/// A way to leave the box of the whites.
struct Sortie {
  const char* nom;
  std::function<void(QWidget& fenetre)> part;
};

void PrintTo(const Sortie& sortie, std::ostream* vers) {
  *vers << sortie.nom;
}

Sortie ParTouche(const char* nom, Qt::Key touche, Qt::KeyboardModifiers avec = Qt::NoModifier) {
  return {nom, [=](QWidget& /*fenetre*/) {
            Frappe(touche, avec);
            QTest::qWait(150);  // a button that a key presses is down for a moment
          }};
}
Sortie ParClic(const char* nom) {
  return {nom, [=](QWidget& fenetre) { Clique(Trouve(fenetre, nom)); }};
}
Sortie ParOnglet(const char* nom, int onglet) {
  return {nom, [=](QWidget& fenetre) { CliqueOnglet(fenetre, onglet); }};
}

const std::array sorties{
    ParTouche("Tab", Qt::Key_Tab),
    ParTouche("MajTab", Qt::Key_Backtab, Qt::ShiftModifier),
    ParTouche("AltU", Qt::Key_U, Qt::AltModifier),
    ParTouche("AltT", Qt::Key_T, Qt::AltModifier),
    ParTouche("AltL", Qt::Key_L, Qt::AltModifier),
    ParTouche("AltV", Qt::Key_V, Qt::AltModifier),
    ParTouche("AltI", Qt::Key_I, Qt::AltModifier),
    ParTouche("CtrlEntree", Qt::Key_Return, Qt::ControlModifier),
    ParTouche("CtrlPageSuivante", Qt::Key_PageDown, Qt::ControlModifier),
    ParTouche("CtrlPagePrecedente", Qt::Key_PageUp, Qt::ControlModifier),
    ParClic("txtSaisieRouge"),
    ParClic("txtVinCave"),
    ParClic("cmdValideCave"),
    ParClic("cmdEffacerCave"),
    ParClic("cmdAideCave"),
    ParOnglet("OngletListe", 1),
    ParOnglet("OngletTrier", 5),
    ParOnglet("OngletMaCave", ongletMaCave),
};

class UneBoiteDeBouteilles : public FenetreCave {
 protected:
  /// Types in the box of the whites and leaves it by the Tab key.
  void SaisitEtQuitte(const QString& texte) {
    blanc().setFocus();
    Remplace(blanc(), texte);
    b.messages.vus.clear();
    Frappe(Qt::Key_Tab);
  }
};

class QuitterUneBoite : public UneBoiteDeBouteilles, public testing::WithParamInterface<Sortie> {};

TEST_P(QuitterUneBoite, EstRefuseTantQueLeNombreNEnEstPasUn) {
  OuvreCave();
  Remplace(blanc(), "abc");
  const EcouteF1 aide;
  GetParam().part(*fenetre);
  AttendRefus("abc");
  AttendChoisie(blanc());
  EXPECT_EQ(blanc().text(), "abc");
  EXPECT_EQ(onglet(), ongletMesVins);
  EXPECT_TRUE(blanc().isVisible());
  EXPECT_EQ(aide.appuis, 0);
  EXPECT_THAT(b.disque.journal(), IsEmpty());
  for (const auto* bouton : fenetre->findChildren<QAbstractButton*>()) {
    EXPECT_FALSE(bouton->isDown()) << bouton->objectName().toStdString();
  }
}

TEST_P(QuitterUneBoite, SeFaitSansUnMotAvecUnNombre) {
  OuvreCave();
  Remplace(blanc(), "7");
  GetParam().part(*fenetre);
  EXPECT_THAT(b.messages.vus, IsEmpty());
}

TEST_P(QuitterUneBoite, ReussitDesQueLeNombreEstCorrige) {
  OuvreCave();
  Remplace(blanc(), "abc");
  GetParam().part(*fenetre);
  b.messages.vus.clear();
  Frappe("7");
  EXPECT_EQ(blanc().text(), "7");
  GetParam().part(*fenetre);
  EXPECT_THAT(b.messages.vus, IsEmpty());
  const bool reste = std::string_view(GetParam().nom).ends_with("I") ||
                     std::string_view(GetParam().nom) == "cmdEffacerCave";
  EXPECT_EQ(QApplication::focusWidget() == &blanc(), reste);
  EXPECT_EQ(blanc().text(), reste ? "6" : "7");
}

INSTANTIATE_TEST_SUITE_P(Sorties, QuitterUneBoite, testing::ValuesIn(sorties),
                         [](const auto& essai) { return std::string(essai.param.nom); });

TEST_F(UneBoiteDeBouteilles, PrendLesNombresDeZeroA32767) {
  OuvreCave();
  for (const char* nombre : {"0", "1", "007", "32767"}) {
    SaisitEtQuitte(nombre);
    EXPECT_THAT(b.messages.vus, IsEmpty()) << nombre;
    EXPECT_EQ(blanc().text(), nombre);
    EXPECT_TRUE(aLeFocus("txtSaisieRouge")) << nombre;
  }
}

TEST_F(UneBoiteDeBouteilles, RefuseUneFoisCeQuiNEnEstPasUn) {
  OuvreCave();
  for (const char* saisi :
       {"32768", "99999", "abc", "-5", "-", "12,5", "12.5", "1 2", "1a", "a1", "+5", "5e2"}) {
    SaisitEtQuitte(saisi);
    AttendRefus(saisi);
    AttendChoisie(blanc());
    EXPECT_EQ(blanc().text(), saisi);
  }
}

TEST_F(UneBoiteDeBouteilles, RefuseDeuxFoisUnNombreTropGrandQuiNEstPasQueDeChiffres) {
  OuvreCave();
  for (const char* saisi : {"4e4", "9e9", "+4e4"}) {
    SaisitEtQuitte(saisi);
    AttendRefus(saisi, 2);
    AttendChoisie(blanc());
  }
}

TEST_F(UneBoiteDeBouteilles, ChaqueBoiteALaMemeRegle) {
  OuvreCave();
  for (const char* nom :
       {"txtSaisieRouge", "txtSaisieRose", "txtSaisieChampagne", "txtSaisieVDN", "txtSaisieJaune",
        "txtSaisiePaille", "txtSaisieMousseux", "txtSaisieGris"}) {
    SCOPED_TRACE(nom);
    auto& boite = Le<QLineEdit>(nom);
    boite.setFocus();
    AttendChoisie(boite);
    Frappe("x");
    Frappe(Qt::Key_Tab);
    AttendRefus("x");
    AttendChoisie(boite);
    b.messages.vus.clear();
    Frappe("3");
    Frappe(Qt::Key_Tab);
    EXPECT_THAT(b.messages.vus, IsEmpty());
    EXPECT_EQ(boite.text(), "3");
  }
}

TEST_F(UneBoiteDeBouteilles, UneBoiteVideeSeMetAZero) {
  OuvreCave();
  for (const char* vide : {"", "   "}) {
    SaisitEtQuitte(vide);
    EXPECT_THAT(b.messages.vus, IsEmpty());
    EXPECT_EQ(blanc().text(), "0");
    EXPECT_TRUE(aLeFocus("txtSaisieRouge"));
  }
}

TEST_F(UneBoiteDeBouteilles, LesBlancsAutourTombentAvantLeRefusCommeAvantLAccord) {
  OuvreCave();
  SaisitEtQuitte(" 12 ");
  EXPECT_THAT(b.messages.vus, IsEmpty());
  EXPECT_EQ(blanc().text(), "12");
  SaisitEtQuitte(" ab ");
  AttendRefus("ab");
  EXPECT_EQ(blanc().text(), "ab");
}

TEST_F(UneBoiteDeBouteilles, PrendCinqCaracteresAuPlusTapesOuColles) {
  OuvreCave();
  Remplace(blanc(), "123456");
  EXPECT_EQ(blanc().text(), "12345");
  QApplication::clipboard()->setText("9876543");
  QTest::keyClick(&blanc(), Qt::Key_A, Qt::ControlModifier);
  QTest::keyClick(&blanc(), Qt::Key_V, Qt::ControlModifier);
  EXPECT_EQ(blanc().text(), "98765");
}

TEST_F(UneBoiteDeBouteilles, UnTexteDeposeParLaSourisNYEntrePas) {
  OuvreCave();
  EXPECT_FALSE(blanc().acceptDrops());
  EXPECT_FALSE(Le("txtSaisieGris").acceptDrops());
}

TEST_F(UneBoiteDeBouteilles, RecevoirLeClavierLaChoisitEnEntier) {
  OuvreCave();
  AttendChoisie(blanc());
  Frappe("12");
  Frappe(Qt::Key_Tab);
  AttendChoisie(rouge());
  Frappe("34");
  Frappe(Qt::Key_Backtab, Qt::ShiftModifier);
  AttendChoisie(blanc());
  Frappe(Qt::Key_U, Qt::AltModifier);
  AttendChoisie(rouge());
  blanc().setFocus();
  AttendChoisie(blanc());
  QTest::mouseClick(&rouge(), Qt::LeftButton, {}, {rouge().width() - 8, rouge().height() / 2});
  AttendChoisie(rouge());
}

TEST_F(UneBoiteDeBouteilles, UnSecondClicPoseLeCurseur) {
  OuvreCave();
  Clique(rouge());
  QTest::qWait(2 * QApplication::doubleClickInterval());
  Clique(rouge());
  EXPECT_FALSE(rouge().hasSelectedText());
}

TEST_F(UneBoiteDeBouteilles, UnMenuOuUnAutreProgrammeRendentLaSelectionTelleQuElleEtait) {
  OuvreCave();
  Remplace(blanc(), "1234");
  blanc().setSelection(1, 2);
  auto* menu = new QMenu(fenetre.get());
  menu->addAction("Copier");
  menu->popup(fenetre->mapToGlobal(QPoint(10, 10)));
  ASSERT_TRUE(menu->isVisible());
  menu->close();
  EXPECT_EQ(QApplication::focusWidget(), &blanc());
  EXPECT_EQ(blanc().selectedText(), "23");
  QWidget autre;
  autre.show();
  autre.activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&autre));
  RendActive();
  EXPECT_EQ(QApplication::focusWidget(), &blanc());
  EXPECT_EQ(blanc().selectedText(), "23");
  EXPECT_THAT(b.messages.vus, IsEmpty());
}

TEST_F(UneBoiteDeBouteilles, UnAutreProgrammeDevantNEstPasUnDepart) {
  OuvreCave();
  Remplace(blanc(), "abc");
  QWidget autre;
  autre.show();
  autre.activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&autre));
  EXPECT_THAT(b.messages.vus, IsEmpty());
  RendActive();
  EXPECT_EQ(blanc().text(), "abc");
  Frappe(Qt::Key_Tab);
  AttendRefus("abc");
}

TEST_F(UneBoiteDeBouteilles, UnClicDroitRefuseNOuvrePasDeMenu) {
  OuvreCave();
  Remplace(blanc(), "abc");
  QTest::mouseClick(&rouge(), Qt::RightButton);
  const QPoint milieu = rouge().rect().center();
  QContextMenuEvent menu(QContextMenuEvent::Mouse, milieu, rouge().mapToGlobal(milieu));
  QApplication::sendEvent(&rouge(), &menu);
  EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
  AttendRefus("abc");
  AttendChoisie(blanc());
}

TEST_F(UneBoiteDeBouteilles, LaToucheDAideMarcheDansUneBoiteRefusee) {
  OuvreCave();
  Remplace(blanc(), "abc");
  Frappe(Qt::Key_Tab);
  b.messages.vus.clear();
  const EcouteF1 aide;
  Frappe(Qt::Key_F1);
  Frappe(Qt::Key_A, Qt::AltModifier);  // the help button, which takes no keyboard then
  EXPECT_TRUE(QTest::qWaitFor([&] { return aide.appuis == 2; }));
  EXPECT_THAT(b.messages.vus, IsEmpty());
  EXPECT_EQ(QApplication::focusWidget(), &blanc());
}

TEST_F(UneBoiteDeBouteilles, UnNombreNegatifDuFichierSeMontreEtRetientLeClavier) {
  b.AjouteVin(VinEnCave("Aaa", {-5, -32768}));
  Ouvre(ongletMesVins);
  RendActive();
  EXPECT_EQ(Nombres().mid(0, 3), (QStringList{"-5", "-32768", "0"}));
  EXPECT_THAT(b.messages.vus, IsEmpty());
  Clique(rouge());
  AttendRefus("-5");
  AttendChoisie(blanc());
  b.messages.vus.clear();
  Frappe("5");
  Frappe(Qt::Key_Tab);
  EXPECT_THAT(b.messages.vus, IsEmpty());
  Frappe(Qt::Key_Tab);
  AttendRefus("-32768");
  AttendChoisie(rouge());
}

TEST_F(UneBoiteDeBouteilles, RevenirALaFenetreNeTournePasEntreDeuxMauvaisesBoites) {
  b.AjouteVin(VinEnCave("Aaa", {-5, -3}));
  Ouvre(ongletMesVins);
  RendActive();
  Frappe("1");
  Frappe(Qt::Key_Tab);
  ASSERT_TRUE(aLeFocus("txtSaisieRouge"));
  fenetre->Desactive();
  fenetre->Active();
  AttendRefus("-3");
  AttendChoisie(rouge());
  EXPECT_EQ(Nombres().mid(0, 2), (QStringList{"-5", "-3"}));
  EXPECT_FALSE(blanc().hasSelectedText());
}

TEST_F(UneBoiteDeBouteilles, LeMessageTrouveLePointeurNormal) {
  OuvreCave();
  ExigePointeurNormalAuxMessages();
  Remplace(blanc(), "abc");
  Valide();
  AttendRefus("abc");
}

class UneBoiteDansLeCadre : public CadreVrai {
 protected:
  void OuvreEtSaisit() {
    OuvreGarni();
    Choisit("mnuViewVins");
    CliqueOnglet(Le("frmVins"), ongletMesVins);
    Clique(blanc());
    Remplace(blanc(), "abc");
  }
  QLineEdit& blanc() { return Trouve<QLineEdit>(Le("frmVins"), "txtSaisieBlanc"); }
};

TEST_F(UneBoiteDansLeCadre, UneAutreFenetreNEstPasUnDepartEtLaSaisieSePerd) {
  OuvreEtSaisit();
  Choisit("mnuViewRecettes");
  EXPECT_THAT(b.messages.vus, IsEmpty());
  Choisit("mnuViewVins");
  EXPECT_THAT(b.messages.vus, IsEmpty());
  EXPECT_EQ(blanc().text(), "6");
  EXPECT_EQ(QApplication::focusWidget(), &blanc());
  EXPECT_EQ(blanc().selectedText(), "6");
}

TEST_F(UneBoiteDansLeCadre, LesMenusDuCadreNeSontPasUnDepart) {
  OuvreEtSaisit();
  QTest::keyClick(&blanc(), Qt::Key_F, Qt::AltModifier);
  ASSERT_NE(QApplication::activePopupWidget(), nullptr);
  QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_Escape);
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
  EXPECT_THAT(b.messages.vus, IsEmpty());
  EXPECT_EQ(QApplication::focusWidget(), &blanc());
  EXPECT_EQ(blanc().text(), "abc");
  EXPECT_EQ(blanc().selectedText(), "abc");
}

TEST_F(UneBoiteDansLeCadre, LaFenetreSeFermeSansUnMot) {
  OuvreEtSaisit();
  Sous("frmVins").close();
  QApplication::processEvents();
  EXPECT_THAT(b.messages.vus, IsEmpty());
}

}  // namespace
}  // namespace gastrelle::essai
