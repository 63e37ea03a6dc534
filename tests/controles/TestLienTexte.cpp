// A box whose text can be opened: when it is armed, and which gestures open it.

#include <QTest>
#include <gtest/gtest.h>

#include "controles/LienTexte.h"
#include "doublures/Ecran.h"

namespace gastrelle::essai {
namespace {

class Lien : public testing::Test {
 protected:
  Lien() {
    boite.resize(300, boite.sizeHint().height());
    lien.surOuverture = [this] { ++ouvertures; };
    boite.show();
    boite.setFocus();
  }
  void Presse(const QPoint& ou, Qt::MouseButton bouton = Qt::LeftButton) {
    QTest::mousePress(&boite, bouton, {}, ou);
  }
  void Relache(const QPoint& ou, Qt::MouseButton bouton = Qt::LeftButton) {
    QTest::mouseRelease(&boite, bouton, {}, ou);
  }

  LigneTexte boite{"txtEssai", sansLimite};
  LienTexte lien{boite, "Cliquez"};
  int ouvertures = 0;
  const QPoint debut{10, 10};
  const QPoint fin{60, 10};
};

TEST_F(Lien, SansTexteLaBoiteEstOrdinaire) {
  LigneTexte ordinaire("txtAutre", sansLimite);
  ordinaire.RendLectureSeule();
  EXPECT_EQ(boite.cursor().shape(), ordinaire.cursor().shape());
  EXPECT_EQ(boite.toolTip(), "");
  EXPECT_FALSE(boite.font().underline());
  EXPECT_TRUE(boite.isReadOnly());
}

TEST_F(Lien, UnTexteLArme) {
  boite.PoseTexte("a@b.fr");
  EXPECT_EQ(boite.cursor().shape(), Qt::PointingHandCursor);
  EXPECT_EQ(boite.toolTip(), "Cliquez");
  EXPECT_TRUE(boite.font().underline());
}

TEST_F(Lien, UnTexteVideLaDesarme) {
  const Qt::CursorShape ordinaire = boite.cursor().shape();
  boite.PoseTexte("a@b.fr");
  boite.PoseTexte("");
  EXPECT_EQ(boite.cursor().shape(), ordinaire);
  EXPECT_EQ(boite.toolTip(), "");
  EXPECT_FALSE(boite.font().underline());
}

TEST_F(Lien, UnClicGaucheOuvreUneFois) {
  boite.PoseTexte("a@b.fr");
  QTest::mouseClick(&boite, Qt::LeftButton);
  EXPECT_EQ(ouvertures, 1);
}

TEST_F(Lien, RienNeSOuvreAvantQueLeBoutonRemonte) {
  boite.PoseTexte("a@b.fr");
  Presse(debut);
  EXPECT_EQ(ouvertures, 0);
  Relache(debut);
  EXPECT_EQ(ouvertures, 1);
}

TEST_F(Lien, LesAutresBoutonsNOuvrentRien) {
  boite.PoseTexte("a@b.fr");
  QTest::mouseClick(&boite, Qt::RightButton);
  QTest::mouseClick(&boite, Qt::MiddleButton);
  EXPECT_EQ(ouvertures, 0);
}

TEST_F(Lien, UnBoutonRelacheSansAvoirEtePresseIciNOuvreRien) {
  boite.PoseTexte("a@b.fr");
  Relache(debut);
  Presse(debut, Qt::RightButton);
  Relache(debut);
  EXPECT_EQ(ouvertures, 0);
}

TEST_F(Lien, UnBoutonRelacheHorsDeLaBoiteNOuvreRien) {
  boite.PoseTexte("a@b.fr");
  Presse(debut);
  Relache({10, 200});
  EXPECT_EQ(ouvertures, 0);
}

TEST_F(Lien, SelectionnerALaSourisNOuvreRien) {
  boite.PoseTexte("une-adresse@exemple.fr");
  Presse(debut);
  QTest::mouseMove(&boite, fin);
  Relache(fin);
  EXPECT_NE(boite.selectedText(), "");
  EXPECT_EQ(ouvertures, 0);
}

TEST_F(Lien, UnClicSurUnTexteSelectionneOuvre) {
  boite.PoseTexte("a@b.fr");
  boite.selectAll();
  QTest::mouseClick(&boite, Qt::LeftButton);
  EXPECT_EQ(ouvertures, 1);
}

TEST_F(Lien, UnDoubleClicOuvreUneFois) {
  boite.PoseTexte("a@b.fr");
  QTest::mouseClick(&boite, Qt::LeftButton, {}, debut);
  QTest::mouseDClick(&boite, Qt::LeftButton, {}, debut);
  EXPECT_EQ(ouvertures, 1);
}

TEST_F(Lien, EntreeOuvreMemeSurLePave) {
  boite.PoseTexte("a@b.fr");
  QTest::keyClick(&boite, Qt::Key_Return);
  QTest::keyClick(&boite, Qt::Key_Enter, Qt::KeypadModifier);
  EXPECT_EQ(ouvertures, 2);
}

TEST_F(Lien, EntreeTenueNOuvreQuUneFois) {
  boite.PoseTexte("a@b.fr");
  for (const bool repetee : {false, true, true}) {
    QKeyEvent appui(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, "\r", repetee);
    QApplication::sendEvent(&boite, &appui);
  }
  EXPECT_EQ(ouvertures, 1);
}

TEST_F(Lien, AvecUnModificateurEntreeNOuvreRien) {
  boite.PoseTexte("a@b.fr");
  for (const auto avec : {Qt::ControlModifier, Qt::AltModifier, Qt::ShiftModifier}) {
    QTest::keyClick(&boite, Qt::Key_Return, avec);
  }
  QTest::keyClick(&boite, Qt::Key_Space);
  EXPECT_EQ(ouvertures, 0);
}

TEST_F(Lien, LaToucheTabYMeneEtSonTexteSeCopie) {
  boite.PoseTexte("a@b.fr");
  EXPECT_EQ(boite.focusPolicy() & Qt::TabFocus, Qt::TabFocus);
  QTest::keyClick(&boite, Qt::Key_A, Qt::ControlModifier);
  EXPECT_EQ(boite.selectedText(), "a@b.fr");
  EXPECT_EQ(ouvertures, 0);
}

TEST_F(Lien, UneBoiteVideNOuvreRien) {
  QTest::mouseClick(&boite, Qt::LeftButton);
  QTest::keyClick(&boite, Qt::Key_Return);
  EXPECT_EQ(ouvertures, 0);
}

TEST_F(Lien, SansActionUnClicNeFaitRien) {
  boite.PoseTexte("a@b.fr");
  lien.surOuverture = nullptr;
  QTest::mouseClick(&boite, Qt::LeftButton);
  EXPECT_EQ(ouvertures, 0);
}

}  // namespace
}  // namespace gastrelle::essai
