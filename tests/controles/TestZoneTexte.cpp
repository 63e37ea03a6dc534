// The text box of several lines.

#include <QElapsedTimer>
#include <QTest>
#include <gtest/gtest.h>

#include "controles/BoitesEssai.h"
#include "doublures/Pannes.h"

namespace gastrelle::essai {
namespace {

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

TEST_F(Zone, UnTexteDePlusieursMegaoctetsSeMontreEnEntier) {
  std::string texte;
  while (texte.size() < 4'000'000) {
    texte += "Couper la viande en cubes et laisser reposer au frais.\r\n";
  }
  Pose(texte, 0);
  EXPECT_EQ(boite->Texte(), texte);
}

/// Broken between words it would take hours: every line would look for the end of the word anew.
TEST_F(Zone, UnMotDeDeuxMegaoctetsSeMontreSansAttendre) {
  const std::string mot(2'000'000, 'x');
  QElapsedTimer duree;
  duree.start();
  Pose(mot, 0);
  static_cast<void>(boite->grab());
  EXPECT_LT(duree.elapsed(), 20'000);
  EXPECT_EQ(boite->Texte(), mot);
  Pose("deux mots", 0);
  EXPECT_EQ(boite->wordWrapMode(), QTextOption::WrapAtWordBoundaryOrAnywhere);
}

TEST_F(Zone, UnTexteQuiRempliraitLaMemoireEstRefuseEtLAutreReste) {
  Pose("avant", 0);
  std::string lignes;
  while (lignes.size() < 500'000) {
    lignes += "\r\n";
  }
  EXPECT_EQ(PanneDe([&] { boite->PoseTexte(lignes); }), Panne::memoireInsuffisante);
  EXPECT_EQ(PanneDe([&] { boite->PoseTexte(std::string(8'000'000, 'x')); }),
            Panne::memoireInsuffisante);
  EXPECT_EQ(boite->Texte(), "avant");
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
