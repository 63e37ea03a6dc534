// How the child windows are laid out: cascade, tiles, minimised windows.

#include <algorithm>
#include <vector>

#include <QMdiSubWindow>
#include <gtest/gtest.h>

#include "doublures/Ecran.h"
#include "shell/Disposition.h"

namespace gastrelle::essai {
namespace {

class Dispositions : public testing::Test {
 protected:
  Dispositions() {
    enfants.setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    enfants.setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    enfants.setFrameShape(QFrame::NoFrame);
    enfants.resize(600, 400);
    enfants.show();
  }

  QMdiSubWindow& Ajoute(const QRect& place = {50, 60, 200, 150}) {
    QMdiSubWindow* fenetre = enfants.addSubWindow(new QWidget);
    fenetre->show();
    fenetre->setGeometry(place);
    return *fenetre;
  }
  QMdiSubWindow& AjouteReduite(const QPoint& place) {
    QMdiSubWindow& fenetre = Ajoute();
    fenetre.showMinimized();
    QApplication::processEvents();
    fenetre.move(place);
    return fenetre;
  }
  void Dispose(Disposition disposition) {
    gastrelle::Dispose(enfants, disposition);
    QApplication::processEvents();
  }

  QMdiArea enfants;
};

TEST_F(Dispositions, LaMosaiqueHorizontaleMetDeuxMoitiesLUneSurLAutre) {
  const QMdiSubWindow& a = Ajoute();
  const QMdiSubWindow& z = Ajoute();
  Dispose(Disposition::mosaiqueHorizontale);
  EXPECT_EQ(a.geometry(), QRect(0, 0, 600, 200));
  EXPECT_EQ(z.geometry(), QRect(0, 200, 600, 200));
}

TEST_F(Dispositions, LaMosaiqueVerticaleMetDeuxMoitiesCoteACote) {
  const QMdiSubWindow& a = Ajoute();
  const QMdiSubWindow& z = Ajoute();
  Dispose(Disposition::mosaiqueVerticale);
  EXPECT_EQ(a.geometry(), QRect(0, 0, 300, 400));
  EXPECT_EQ(z.geometry(), QRect(300, 0, 300, 400));
}

TEST_F(Dispositions, UneMosaiqueCouvreToutLeCadreSansTrou) {
  enfants.resize(601, 400);
  const QMdiSubWindow& a = Ajoute();
  const QMdiSubWindow& m = Ajoute();
  const QMdiSubWindow& z = Ajoute();
  Dispose(Disposition::mosaiqueVerticale);
  EXPECT_EQ(a.x(), 0);
  EXPECT_EQ(m.x(), a.geometry().right() + 1);
  EXPECT_EQ(z.x(), m.geometry().right() + 1);
  EXPECT_EQ(z.geometry().right(), 600);
}

TEST_F(Dispositions, UneFenetreSeuleCouvreToutLeCadre) {
  const QMdiSubWindow& a = Ajoute();
  Dispose(Disposition::mosaiqueHorizontale);
  EXPECT_EQ(a.geometry(), QRect(0, 0, 600, 400));
}

TEST_F(Dispositions, UneFenetreMaximiseeEntreDansLaMosaique) {
  const QMdiSubWindow& a = Ajoute();
  QMdiSubWindow& z = Ajoute();
  z.showMaximized();
  Dispose(Disposition::mosaiqueVerticale);
  EXPECT_FALSE(z.isMaximized());
  EXPECT_EQ(a.geometry(), QRect(0, 0, 300, 400));
  EXPECT_EQ(z.geometry(), QRect(300, 0, 300, 400));
}

TEST_F(Dispositions, UneFenetreCacheeNePrendPasDePlace) {
  Ajoute().hide();
  const QMdiSubWindow& z = Ajoute();
  Dispose(Disposition::mosaiqueVerticale);
  EXPECT_EQ(z.geometry(), QRect(0, 0, 600, 400));
}

TEST_F(Dispositions, SansFenetreRienNeSePasse) {
  for (const Disposition disposition : {Disposition::cascade, Disposition::mosaiqueHorizontale,
                                        Disposition::mosaiqueVerticale, Disposition::icones}) {
    Dispose(disposition);
  }
  EXPECT_TRUE(enfants.subWindowList().isEmpty());
}

TEST_F(Dispositions, LaCascadeDecaleChaqueFenetreVersLeBasEtLaDroite) {
  QMdiSubWindow& a = Ajoute({300, 200, 200, 150});
  QMdiSubWindow& m = Ajoute({10, 10, 200, 150});
  QMdiSubWindow& z = Ajoute({200, 100, 200, 150});
  a.showMaximized();
  Dispose(Disposition::cascade);
  EXPECT_FALSE(a.isMaximized());
  std::vector<QMdiSubWindow*> fenetres{&a, &m, &z};
  std::sort(
      fenetres.begin(), fenetres.end(),
      [](const QMdiSubWindow* une, const QMdiSubWindow* autre) { return une->x() < autre->x(); });
  for (std::size_t i = 1; i < fenetres.size(); ++i) {
    EXPECT_GT(fenetres[i]->x(), fenetres[i - 1]->x());
    EXPECT_GT(fenetres[i]->y(), fenetres[i - 1]->y());
  }
}

TEST_F(Dispositions, LaCascadeVaDeLaFenetreDuFondACelleDuDessus) {
  QMdiSubWindow& a = Ajoute();
  QMdiSubWindow& m = Ajoute();
  QMdiSubWindow& z = Ajoute();
  enfants.setActiveSubWindow(&a);
  Dispose(Disposition::cascade);
  EXPECT_EQ(enfants.subWindowList(QMdiArea::StackingOrder), (QList{&m, &z, &a}));
  EXPECT_EQ(enfants.activeSubWindow(), &a);
  EXPECT_EQ(m.pos(), QPoint());
  EXPECT_LT(m.x(), z.x());
  EXPECT_LT(z.x(), a.x());
}

TEST_F(Dispositions, LaCascadeTientDansLeCadreEtLaisseVoirTousLesTitres) {
  constexpr int toutes = 9;
  for (int i = 0; i < toutes; ++i) {
    Ajoute({40 * i, 500, 700, 500});
    Dispose(Disposition::cascade);
    const QList<QMdiSubWindow*> fenetres = enfants.subWindowList(QMdiArea::StackingOrder);
    for (const QMdiSubWindow* fenetre : fenetres) {
      EXPECT_TRUE(QRect(0, 0, 600, 400).contains(fenetre->geometry()));
      EXPECT_EQ(fenetre->size(), fenetres.first()->size());
      EXPECT_GE(fenetre->width(), 300);
    }
    for (int f = 1; f < fenetres.size(); ++f) {
      const int titre = fenetres[f]->widget()->mapTo(fenetres[f], QPoint()).y();
      EXPECT_GE(fenetres[f]->y() - fenetres[f - 1]->y(), titre - 4);
    }
  }
}

TEST_F(Dispositions, LesTuilesCouvrentAussiLaPlaceDesBarresDeDefilement) {
  enfants.setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
  enfants.setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
  const QMdiSubWindow& a = Ajoute({500, 350, 400, 300});
  QApplication::processEvents();
  ASSERT_LT(enfants.viewport()->width(), 600);
  Dispose(Disposition::mosaiqueHorizontale);
  EXPECT_EQ(a.geometry(), QRect(0, 0, 600, 400));
  EXPECT_EQ(enfants.viewport()->size(), QSize(600, 400));
}

TEST_F(Dispositions, UneFenetreReduiteGardeSaPlace) {
  const QMdiSubWindow& a = Ajoute();
  const QMdiSubWindow& reduite = AjouteReduite({120, 70});
  const QRect avant = reduite.geometry();
  for (const Disposition disposition :
       {Disposition::cascade, Disposition::mosaiqueHorizontale, Disposition::mosaiqueVerticale}) {
    Dispose(disposition);
    EXPECT_TRUE(reduite.isMinimized());
    EXPECT_EQ(reduite.geometry(), avant);
  }
  EXPECT_EQ(a.geometry(), QRect(0, 0, 600, 400));
}

TEST_F(Dispositions, ReorganiserAligneLesReduitesEnBasAGauche) {
  const QMdiSubWindow& a = AjouteReduite({120, 70});
  const QMdiSubWindow& z = AjouteReduite({20, 170});
  const QMdiSubWindow& ouverte = Ajoute();
  Dispose(Disposition::icones);
  EXPECT_EQ(a.geometry().bottomLeft(), QPoint(0, 399));
  EXPECT_EQ(z.geometry().bottomLeft(), QPoint(a.width(), 399));
  EXPECT_EQ(ouverte.geometry(), QRect(50, 60, 200, 150));
}

TEST_F(Dispositions, UneRangeeDIconesPleineEnCommenceUneAuDessus) {
  const QMdiSubWindow& a = AjouteReduite({120, 70});
  enfants.resize(a.width() + 10, 400);
  const QMdiSubWindow& z = AjouteReduite({20, 170});
  Dispose(Disposition::icones);
  EXPECT_EQ(a.geometry().bottomLeft(), QPoint(0, 399));
  EXPECT_EQ(z.geometry().bottomLeft(), QPoint(0, 399 - a.height()));
}

}  // namespace
}  // namespace gastrelle::essai
