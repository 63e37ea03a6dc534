// A text box that is full, or that is handed far more than it takes.

#include <QApplication>
#include <QClipboard>
#include <QElapsedTimer>
#include <QTest>
#include <gtest/gtest.h>

#include "controles/ZoneTexte.h"

namespace gastrelle::essai {
namespace {

TEST(GrandCollage, SeCoupeALaLimiteSansAttendre) {
  constexpr int limite = 30000;
  constexpr int assez = 2000;  // milliseconds
  ZoneTexte boite("txtEssai", limite, nullptr);
  boite.show();
  QApplication::clipboard()->setText((QString(58, u'a') + u'\n').repeated(5000));
  QElapsedTimer chrono;
  chrono.start();
  boite.paste();
  EXPECT_LT(chrono.elapsed(), assez);
  EXPECT_EQ(boite.Texte().size(), 30000U);
}

TEST(BoitePleine, RefuseUneLettreSansPasDAnnulation) {
  ZoneTexte boite("txtEssai", 5, nullptr);
  boite.show();
  boite.setFocus();
  for (int i = 0; i < 8; ++i) {
    QTest::keyClick(&boite, Qt::Key_A);
  }
  EXPECT_EQ(boite.Texte(), "aaaaa");
  boite.undo();
  EXPECT_LT(boite.Texte().size(), 5U);
}

/// A box without a limit still takes nothing that couldn't be shown again.
class CollageSansLimite : public testing::Test {
 protected:
  CollageSansLimite() {
    boite.show();
    boite.PoseTexte("du sel");
    boite.moveCursor(QTextCursor::End);
  }
  void Colle(const QString& texte) {
    QApplication::clipboard()->setText(texte);
    boite.paste();
  }

  ZoneTexte boite{"txtEssai", 0, nullptr};
};

TEST_F(CollageSansLimite, DePlusDeDeuxMegaoctetsEstRefuse) {
  Colle((QString(999, u'a') + u'\n').repeated(2200));
  EXPECT_EQ(boite.Texte(), "du sel");
}

TEST_F(CollageSansLimite, DePlusDeLignesQuUneBoiteNEnTientEstRefuse) {
  Colle(QString(200'000, u'\n'));
  EXPECT_EQ(boite.Texte(), "du sel");
}

TEST_F(CollageSansLimite, DUnMegaoctetEstPris) {
  Colle((QString(999, u'a') + u'\n').repeated(1000));
  EXPECT_EQ(boite.Texte().size(), 6U + 1000U * 1001U);
}

}  // namespace
}  // namespace gastrelle::essai
