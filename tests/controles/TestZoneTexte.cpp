// The text boxes: what they accept, what they show, what they give back.

#include <algorithm>
#include <array>

#include <QClipboard>
#include <QInputMethodEvent>
#include <QTest>
#include <gtest/gtest.h>

#include "controles/BoitesTexte.h"
#include "controles/Conversion.h"
#include "doublures/Ecran.h"
#include "doublures/EcranVirtuel.h"
#include "doublures/ServicesEssai.h"
#include "shell/CommandesEdition.h"

namespace gastrelle::essai {
namespace {

/// Both kinds of boxes, driven alike.
template <class Boite>
class Boites : public testing::Test {
 protected:
  void Montre(int limite) {
    boite = std::make_unique<Boite>("txtEssai", limite, nullptr);
    boite->show();
    boite->setFocus();
  }
  void Colle(const QString& texte) {
    QApplication::clipboard()->setText(texte);
    boite->paste();
  }
  bool ColleParLeMenu() { return ChoisitAuMenu("Coller"); }
  /// A right click, then a click on an entry, by how it begins. False if it can't be chosen.
  bool ChoisitAuMenu(const QString& entree) {
    const QPoint ou(5, 5);
    QContextMenuEvent clicDroit(QContextMenuEvent::Mouse, ou, boite->mapToGlobal(ou));
    auto* cible = boite->template findChild<QWidget*>("qt_scrollarea_viewport");
    QApplication::sendEvent(cible == nullptr ? boite.get() : cible, &clicDroit);
    auto& menu = dynamic_cast<QMenu&>(*QApplication::activePopupWidget());
    bool permise = false;
    for (QAction* action : menu.actions()) {
      if (action->text().remove(u'&').startsWith(entree)) {
        permise = action->isEnabled();
        QTest::mouseClick(&menu, Qt::LeftButton, {}, menu.actionGeometry(action).center());
      }
    }
    menu.close();
    return permise;
  }
  void Annule() { QTest::keyClick(boite.get(), Qt::Key_Z, Qt::ControlModifier); }
  void Refait() {
    QTest::keyClick(boite.get(), Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
  }
  void Vide() { VideBoites({{boite.get()}}); }

  std::unique_ptr<Boite> boite;
};

using Genres = testing::Types<ZoneTexte, LigneTexte>;
TYPED_TEST_SUITE(Boites, Genres);

TYPED_TEST(Boites, RendentTousLesOctetsQuUnFichierPeutTenir) {
  this->Montre(sansLimite);
  std::string octets;
  for (int i = 0x20; i < 256; ++i) {
    octets += static_cast<char>(i);
  }
  this->boite->PoseTexte(octets);
  EXPECT_EQ(this->boite->Texte(), octets);
}

TYPED_TEST(Boites, GardentLEspaceInsecable) {
  this->Montre(sansLimite);
  this->boite->PoseTexte("5\xA0g");
  EXPECT_EQ(this->boite->Texte(), "5\xA0g");
}

TYPED_TEST(Boites, MontrentUnPointDInterrogationPourCeQuiNeSeRangePas) {
  this->Montre(sansLimite);
  this->Colle(Fr("a日b🍲c"));
  EXPECT_EQ(Texte(*this->boite), "a?b c");
}

TYPED_TEST(Boites, ComposentUnAccentColle) {
  this->Montre(sansLimite);
  this->Colle(Fr("cre\u0301me\u0300"));
  EXPECT_EQ(this->boite->Texte(), "crémè"_1252);
}

TYPED_TEST(Boites, ComposentUnAccentTapeApresSaLettre) {
  this->Montre(sansLimite);
  Tape(*this->boite, QStringLiteral("e\u0301t"));
  EXPECT_EQ(this->boite->Texte(), "ét"_1252);
}

TYPED_TEST(Boites, NAcceptentQueJusquALeurLimite) {
  this->Montre(5);
  Tape(*this->boite, "abcdefg");
  EXPECT_EQ(this->boite->Texte(), "abcde");
}

TYPED_TEST(Boites, LeurPropreMenuColleCommeLeClavier) {
  this->Montre(5);
  QApplication::clipboard()->setText(Fr("cre\u0300me"));
  EXPECT_TRUE(this->ColleParLeMenu());
  EXPECT_EQ(this->boite->Texte(), "crème"_1252);
}

TYPED_TEST(Boites, LeurPropreMenuColleDeMemeSousUnCadreQuiALaTouche) {
  this->Montre(5);
  QAction coller;
  coller.setShortcut(QKeySequence::Paste);
  this->boite->addAction(&coller);
  this->boite->activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(this->boite.get()));
  QApplication::clipboard()->setText(Fr("cre\u0300me"));
  EXPECT_TRUE(this->ColleParLeMenu());
  EXPECT_EQ(this->boite->Texte(), "crème"_1252);
}

TYPED_TEST(Boites, EnLectureSeuleLeurMenuNeCollePas) {
  this->Montre(5);
  this->boite->RendLectureSeule();
  QApplication::clipboard()->setText("soupe");
  EXPECT_FALSE(this->ColleParLeMenu());
  EXPECT_EQ(this->boite->Texte(), "");
}

TYPED_TEST(Boites, CoupentUnCollageTropLong) {
  this->Montre(5);
  Tape(*this->boite, "ab");
  this->Colle("cdefgh");
  EXPECT_EQ(this->boite->Texte(), "abcde");
}

TYPED_TEST(Boites, MontrentEnEntierUnTextePoseParLeProgramme) {
  this->Montre(5);
  this->boite->PoseTexte("abcdefgh");
  EXPECT_EQ(this->boite->Texte(), "abcdefgh");
}

TYPED_TEST(Boites, DisentLeurLimite) {
  this->Montre(128);
  EXPECT_EQ(this->boite->property("maxLength").toInt(), 128);
}

TYPED_TEST(Boites, RendentParCtrlZCeQuOnALeurAVide) {
  this->Montre(sansLimite);
  Tape(*this->boite, "soupe");
  this->Vide();
  EXPECT_EQ(this->boite->Texte(), "");
  this->Vide();  // an empty box has nothing to forget
  this->Annule();
  EXPECT_EQ(this->boite->Texte(), "soupe");
  this->Refait();
  EXPECT_EQ(this->boite->Texte(), "");
  this->Annule();
  EXPECT_EQ(this->boite->Texte(), "soupe");
}

TYPED_TEST(Boites, SeRemplissentParCtrlZEtSeVidentDeNouveauParCtrlY) {
  this->Montre(sansLimite);
  Tape(*this->boite, "soupe");
  this->Vide();
  this->Annule();
  ASSERT_EQ(this->boite->Texte(), "soupe");
  QTest::keyClick(this->boite.get(), Qt::Key_Y, Qt::ControlModifier);
  EXPECT_EQ(this->boite->Texte(), "");
}

TYPED_TEST(Boites, RendentParLeurMenuCeQuOnALeurAVide) {
  this->Montre(sansLimite);
  Tape(*this->boite, "soupe");
  this->Vide();
  EXPECT_TRUE(this->ChoisitAuMenu("Annuler"));
  EXPECT_EQ(this->boite->Texte(), "soupe");
}

TYPED_TEST(Boites, VideesPuisRenduesGardentLeurLimite) {
  this->Montre(5);
  Tape(*this->boite, "soupe");
  this->Vide();
  Tape(*this->boite, "abcdefg");
  EXPECT_EQ(this->boite->Texte(), "abcde");
  for (int fois = 0; fois < 5 && this->boite->Texte() != "soupe"; ++fois) {
    this->Annule();
    EXPECT_LE(this->boite->Texte().size(), 5U);
  }
  EXPECT_EQ(this->boite->Texte(), "soupe");
  QTest::keyClick(this->boite.get(), Qt::Key_End);
  Tape(*this->boite, "s");
  EXPECT_EQ(this->boite->Texte(), "soupe");
}

TYPED_TEST(Boites, CorrigentEncoreApresUnVidageAnnule) {
  this->Montre(sansLimite);
  Tape(*this->boite, "soupe");
  this->Vide();
  this->Annule();
  this->boite->selectAll();
  this->Colle(Fr("日⅓"));
  EXPECT_EQ(this->boite->Texte(), "?1/3");
}

TYPED_TEST(Boites, NeCorrigentPasCeQueLeProgrammeARemis) {
  const std::string octets = "a\xAD\x01z";
  this->Montre(sansLimite);
  this->boite->PoseTexte("soupe");
  this->boite->RemplaceTexte(octets);
  this->Annule();
  EXPECT_EQ(this->boite->Texte(), "soupe");
  this->Refait();
  EXPECT_EQ(this->boite->Texte(), octets);
  this->Vide();
  this->Annule();
  EXPECT_EQ(this->boite->Texte(), octets);
  QTest::keyClick(this->boite.get(), Qt::Key_End);
  Tape(*this->boite, "x");
  EXPECT_EQ(this->boite->Texte().size(), octets.size() + 1);
}

TYPED_TEST(Boites, GardentUnCollageEtSaSaisiePourDeuxAnnulations) {
  this->Montre(sansLimite);
  Tape(*this->boite, "soupe");
  this->boite->selectAll();
  this->boite->cut();
  this->boite->paste();
  EXPECT_EQ(this->boite->Texte(), "soupe");
  this->Annule();
  EXPECT_EQ(this->boite->Texte(), "");
  this->Annule();
  EXPECT_EQ(this->boite->Texte(), "soupe");
}

TYPED_TEST(Boites, NAnnulentUnCaracterePerduQuAvecSaCorrection) {
  this->Montre(sansLimite);
  Tape(*this->boite, Fr("日"));
  EXPECT_EQ(this->boite->Texte(), "?");
  this->Annule();
  EXPECT_EQ(this->boite->Texte(), "");
}

TYPED_TEST(Boites, LisentUneFractionTapeeAvecLeNombreDAvant) {
  this->Montre(sansLimite);
  Tape(*this->boite, Fr("1⅓ à 2\u2009kg"));
  EXPECT_EQ(this->boite->Texte(), "1 1/3 à 2 kg"_1252);
}

TYPED_TEST(Boites, LisentCeQueRemetUneMethodeDeSaisie) {
  this->Montre(sansLimite);
  Tape(*this->boite, "1");
  QInputMethodEvent compose(QStringLiteral("1/3"), {});
  QApplication::sendEvent(this->boite.get(), &compose);
  QInputMethodEvent remis;
  remis.setCommitString(Fr("⅓"));
  QApplication::sendEvent(this->boite.get(), &remis);
  EXPECT_EQ(this->boite->Texte(), "1 1/3");
}

TYPED_TEST(Boites, ComptentLeurLimiteApresLaTranscription) {
  this->Montre(5);
  this->Colle(Fr("a\u200B\u200B\u200B℃🍋de"));
  EXPECT_EQ(this->boite->Texte(), "a°C d"_1252);
  this->boite->selectAll();
  this->Colle(Fr("①⅓⅔"));
  EXPECT_EQ(this->boite->Texte(), "1 1/3");
}

TYPED_TEST(Boites, ReprennentUnTexteDeLaMemeFicheEnUnPasQuiSAnnule) {
  this->Montre(sansLimite);
  ReprendTexte(*this->boite, "soupe", 7);
  Tape(*this->boite, "x");
  const std::string saisi = this->boite->Texte();
  ReprendTexte(*this->boite, "soupe", 7);
  EXPECT_EQ(this->boite->Texte(), "soupe");
  this->Annule();
  EXPECT_EQ(this->boite->Texte(), saisi);
}

TYPED_TEST(Boites, NeRendentJamaisUneSaisieDUneAutreFiche) {
  for (const auto& [texte, numero] : {std::pair("soupe", 8), std::pair("potage", 7)}) {
    this->Montre(sansLimite);
    ReprendTexte(*this->boite, "soupe", 7);
    Tape(*this->boite, "x");
    ReprendTexte(*this->boite, texte, numero);
    this->Annule();
    EXPECT_EQ(this->boite->Texte(), texte);
  }
}

TYPED_TEST(Boites, SansBlancARognerGardentCeQuiSAnnule) {
  this->Montre(sansLimite);
  for (const char* saisi : {"soupe", "  soupe "}) {
    Tape(*this->boite, saisi);
    RogneTexte(*this->boite);
    EXPECT_EQ(this->boite->Texte(), "soupe");
    while (this->boite->Texte() != "") {
      const std::string avant = this->boite->Texte();
      this->Annule();
      ASSERT_NE(this->boite->Texte(), avant);
    }
  }
}

TYPED_TEST(Boites, RognentLesBlancsEtEuxSeuls) {
  this->Montre(sansLimite);
  this->boite->PoseTexte("  \xA0soupe  ");
  RogneTexte(*this->boite);
  EXPECT_EQ(this->boite->Texte(), "\xA0soupe");
}

TYPED_TEST(Boites, EnLectureSeuleSeSelectionnentSansSeChanger) {
  this->Montre(sansLimite);
  this->boite->PoseTexte("soupe");
  this->boite->RendLectureSeule();
  Tape(*this->boite, "x");
  this->boite->selectAll();
  this->boite->copy();
  EXPECT_EQ(this->boite->Texte(), "soupe");
  EXPECT_EQ(QApplication::clipboard()->text(), "soupe");
}

TYPED_TEST(Boites, DisentQuandEllesSontVides) {
  this->Montre(sansLimite);
  EXPECT_TRUE(EstVide(*this->boite));
  Tape(*this->boite, "x");
  EXPECT_FALSE(EstVide(*this->boite));
}

class Ligne : public Boites<LigneTexte> {
 protected:
  static constexpr std::array deuxLignes{"a\nb", "a\r\nb", "a\tb"};

  void AttendSansSigneDeCommande() {
    const std::string texte = boite->Texte();
    EXPECT_TRUE(texte.starts_with('a') && texte.ends_with('b')) << texte;
    EXPECT_TRUE(std::none_of(texte.begin(), texte.end(), [](char c) { return c > 0 && c < ' '; }))
        << testing::PrintToString(texte);
  }
  void CommandeColler(const QString& texte) {
    QApplication::clipboard()->setText(texte);
    MessagesEssai messages;
    Edite(Edition::coller, boite.get(), messages);
    EXPECT_EQ(messages.bips, 0);
  }

  const QString creme = Fr("cre\u0300me");
};

TEST_F(Ligne, UnCollageNYLaisseNiFinDeLigneNiTabulation) {
  for (const char* texte : deuxLignes) {
    Montre(sansLimite);
    Colle(texte);
    AttendSansSigneDeCommande();
  }
}

TEST_F(Ligne, UnCheminGardeLeNomDuFichier) {
  Montre(sansLimite);
  boite->RendChemin();
  Colle(Fr("/a\u00ADb·1\u202Fc.jpg"));
  EXPECT_EQ(boite->Texte(),
            "/a\xAD"
            "b\xB7"
            "1?c.jpg");
}

TEST_F(Ligne, UneSaisieNeChangeQueCeQuiEstSaisi) {
  Montre(sansLimite);
  boite->PoseTexte("a\xAD\x0Bz");
  boite->end(false);
  Tape(*boite, Fr("e\u0301⅓"));
  EXPECT_EQ(boite->Texte(),
            "a\xAD\x0Bz\xE9"
            "1/3");
}

TEST_F(Ligne, LaCommandeCollerNYLaisseNiFinDeLigneNiTabulation) {
  for (const char* texte : deuxLignes) {
    Montre(sansLimite);
    CommandeColler(texte);
    AttendSansSigneDeCommande();
  }
}

TEST_F(Ligne, UnAccentDecomposeNeCompteQuAvecSaLettre) {
  Montre(5);
  Colle(creme);
  EXPECT_EQ(boite->Texte(), "crème"_1252);
  Montre(5);
  CommandeColler(creme);
  EXPECT_EQ(boite->Texte(), "crème"_1252);
  Montre(5);
  QApplication::clipboard()->setText(creme);
  QTest::keyClick(boite.get(), Qt::Key_V, Qt::ControlModifier);
  EXPECT_EQ(boite->Texte(), "crème"_1252);
}

TEST_F(Ligne, LeBoutonDuMilieuColleCommeLeClavier) {
  QClipboard& pressePapiers = *QApplication::clipboard();
  if (!pressePapiers.supportsSelection()) {
    if (!EcranVirtuel::Possible()) {
      GTEST_SKIP() << "il manque Xvfb";
    }
    EXPECT_EQ(RejoueSurEcranVirtuel("Ligne.LeBoutonDuMilieuColleCommeLeClavier"), 0);
    return;
  }
  Montre(5);
  ASSERT_TRUE(QTest::qWaitForWindowExposed(boite.get()));
  pressePapiers.setText(creme, QClipboard::Selection);
  QTest::mouseClick(boite.get(), Qt::MiddleButton);
  EXPECT_EQ(boite->Texte(), "crème"_1252);
  boite->RendLectureSeule();
  QTest::mouseClick(boite.get(), Qt::MiddleButton);
  EXPECT_EQ(boite->Texte(), "crème"_1252);
}

TEST_F(Ligne, UnAccentDecomposeAuDelaDeLaLimiteSeCoupeAvecSaLettre) {
  Montre(5);
  Colle(Fr("crepe\u0301"));
  EXPECT_EQ(boite->Texte(), "crepé"_1252);
  Montre(4);
  Colle(Fr("crepe\u0301"));
  EXPECT_EQ(boite->Texte(), "crep");
}

TEST_F(Ligne, CtrlVNeChangeRienEnLectureSeule) {
  Montre(sansLimite);
  boite->PoseTexte("soupe");
  boite->RendLectureSeule();
  QApplication::clipboard()->setText("x");
  QTest::keyClick(boite.get(), Qt::Key_V, Qt::ControlModifier);
  EXPECT_EQ(boite->Texte(), "soupe");
}

class Zone : public Boites<ZoneTexte> {
 protected:
  /// Shows a text of the files, the cursor behind its first `ou` characters.
  void Pose(std::string_view texte, int ou) {
    Montre(sansLimite);
    boite->PoseTexte(texte);
    QTextCursor curseur = boite->textCursor();
    curseur.setPosition(ou);
    boite->setTextCursor(curseur);
  }
};

TEST_F(Zone, RendLesFinsDeLigneDUnTexteTellesQuelles) {
  Pose("a\nb\rc\r\nd\n\re\r\r\n", 0);
  EXPECT_EQ(boite->Texte(), "a\nb\rc\r\nd\n\re\r\r\n");
}

TEST_F(Zone, UneSaisieACoteDUneFinDeLigneSeuleNeLaChangePas) {
  for (const std::string fin : {"\n", "\r", "\r\n"}) {
    Pose("a" + fin + "b", 1);
    Tape(*boite, "x");
    EXPECT_EQ(boite->Texte(), "ax" + fin + "b");
    Pose("a" + fin + "b", 2);
    Tape(*boite, "x");
    EXPECT_EQ(boite->Texte(), "a" + fin + "xb");
    Tape(*boite, "\n");
    EXPECT_EQ(boite->Texte(), "a" + fin + "x\r\nb");
  }
}

TEST_F(Zone, UneFinDeLigneSeuleEffaceeRevientTelleQuelle) {
  for (const std::string fin : {"\n", "\r", "\r\n"}) {
    Pose("a" + fin + "b", 2);
    boite->selectAll();
    QTest::keyClick(boite.get(), Qt::Key_Delete);
    EXPECT_EQ(boite->Texte(), "");
    boite->undo();
    EXPECT_EQ(boite->Texte(), "a" + fin + "b");
  }
}

TEST_F(Zone, MajusculeEntreeFaitUneFinDeLigneCommeEntree) {
  Pose("ab", 1);
  QTest::keyClick(boite.get(), Qt::Key_Return, Qt::ShiftModifier);
  EXPECT_EQ(boite->Texte(), "a\r\nb");
}

TEST_F(Zone, RendLesFinsDeLigneEnDeuxCaracteres) {
  Montre(sansLimite);
  Tape(*boite, "a\nb");
  EXPECT_EQ(boite->Texte(), "a\r\nb");
}

TEST_F(Zone, CompteUneFinDeLignePourDeux) {
  Montre(5);
  Tape(*boite, "a\nb\nc");
  EXPECT_EQ(boite->Texte(), "a\r\nbc");  // no room for the second line break, one left for a letter
}

TEST_F(Zone, CoupeUnCollageDeLignesALaLimite) {
  Montre(6);
  Colle("ab\ncd\nef");
  EXPECT_EQ(boite->Texte(), "ab\r\ncd");
}

TEST_F(Zone, UneSaisieAuMilieuDUneBoitePleineNePousseRienDehors) {
  Montre(4);
  Tape(*boite, "abcd");
  boite->moveCursor(QTextCursor::Start);
  Tape(*boite, "x");
  EXPECT_EQ(boite->Texte(), "abcd");
}

TEST_F(Zone, UneSaisieQuiRemplaceUneSelectionTient) {
  Montre(4);
  Tape(*boite, "abcd");
  boite->selectAll();
  Tape(*boite, "x");
  EXPECT_EQ(boite->Texte(), "x");
}

TEST_F(Zone, UneCorrectionSAnnuleAvecSaSaisie) {
  Montre(sansLimite);
  Tape(*boite, "a");
  Colle(Fr("日"));
  EXPECT_EQ(boite->Texte(), "a?");
  boite->undo();
  EXPECT_EQ(boite->Texte(), "a");
}

TEST_F(Zone, ApresUneAnnulationUneSaisieSeCorrigeEncore) {
  Montre(4);
  Tape(*boite, "ab");
  boite->undo();
  EXPECT_EQ(boite->Texte(), "");
  Colle(Fr("日bcdef"));
  EXPECT_EQ(boite->Texte(), "?bcd");
}

TEST_F(Zone, UneFinDeLigneSeuleRevientAussiQuandOnRefait) {
  const std::string octets = "a\nb\rc\r\nd";
  Montre(sansLimite);
  boite->PoseTexte("soupe");
  boite->RemplaceTexte(octets);
  boite->undo();
  EXPECT_EQ(boite->Texte(), "soupe");
  boite->redo();
  EXPECT_EQ(boite->Texte(), octets);
}

TEST_F(Zone, UneSaisieDansUneBoiteTropPleineNeCoupePasCeQuiEtaitLa) {
  Montre(4);
  boite->PoseTexte("abcdef");
  boite->moveCursor(QTextCursor::End);
  Tape(*boite, "gh");
  EXPECT_EQ(boite->Texte(), "abcdef");
}

TEST_F(Zone, TrenteMilleCaracteresVidesReviennent) {
  Montre(30000);
  Colle(QString(30000, u'x'));
  Vide();
  boite->undo();
  EXPECT_EQ(boite->Texte().size(), 30000U);
}

TEST_F(Zone, LaTabulationChangeDeBoite) {
  Montre(sansLimite);
  EXPECT_TRUE(boite->tabChangesFocus());
}

TEST_F(Zone, TrenteMilleCaracteresSeTapentEncore) {
  Montre(30000);
  Colle(QString(29999, u'x'));
  Tape(*boite, "yz");
  EXPECT_EQ(boite->Texte().size(), 30000U);
  EXPECT_EQ(boite->Texte().back(), 'y');
}

}  // namespace
}  // namespace gastrelle::essai
