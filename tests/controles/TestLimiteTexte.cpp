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

}  // namespace
}  // namespace gastrelle::essai
