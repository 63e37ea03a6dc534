// The text boxes of either kind: what they accept, what they show, what they give back.

#include <QClipboard>
#include <QInputMethodEvent>
#include <QTest>
#include <gtest/gtest.h>

#include "controles/BoitesEssai.h"

namespace gastrelle::essai {
namespace {

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

}  // namespace
}  // namespace gastrelle::essai
