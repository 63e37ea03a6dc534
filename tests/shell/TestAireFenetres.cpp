// The area of the child windows: the emblem of an empty frame, what lies outside of it.

#include <QScrollBar>
#include <QTest>

#include "controles/Icones.h"
#include "doublures/CadreVrai.h"
#include "shell/AireFenetres.h"

namespace gastrelle::essai {
namespace {

class Aire : public CadreVrai {
 protected:
  ~Aire() override { QApplication::setPalette(jour); }

  QImage Fond() { return enfants().viewport()->grab().toImage(); }
  /// True if the middle of the area shows something else than its ground.
  bool MontreLEmbleme() {
    const QImage fond = Fond();
    const QPoint milieu = fond.rect().center();
    int dessines = 0;
    for (int x = milieu.x() - plusGrandeIcone / 2; x < milieu.x() + plusGrandeIcone / 2; ++x) {
      dessines += fond.pixel(x, milieu.y()) == fond.pixel(1, 1) ? 0 : 1;
    }
    return dessines > plusGrandeIcone / 2;
  }

  QPalette jour = QApplication::palette();
};

TEST_F(Aire, LEmblemeSeMontreQuandRienNEstOuvert) {
  Ouvre(RecPreferences{1, 0, 1});
  recettes().setGeometry(0, 0, 20, 20);
  EXPECT_FALSE(MontreLEmbleme());
  Choisit("mnuWindowClose");
  QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  EXPECT_TRUE(MontreLEmbleme());
  Choisit("mnuViewRecettes");
  recettes().setGeometry(0, 0, 20, 20);
  EXPECT_FALSE(MontreLEmbleme());
}

TEST_F(Aire, LeFondSuitLaPalette) {
  Ouvre();
  Choisit("mnuWindowClose");
  EXPECT_GT(QColor(Fond().pixel(1, 1)).lightness(), 128);
  QApplication::setPalette(QPalette(QColor(60, 60, 60), QColor(45, 45, 45)));
  QApplication::processEvents();
  EXPECT_LT(QColor(Fond().pixel(1, 1)).lightness(), 60);
}

TEST_F(Aire, UneFenetreTireeDehorsSeRejointParLesBarresDeDefilement) {
  Ouvre(RecPreferences{1, 0, 1});
  const QSize place = enfants().maximumViewportSize();
  recettes().showNormal();
  recettes().setGeometry(10, 10, 300, 200);
  QApplication::processEvents();
  EXPECT_EQ(enfants().horizontalScrollBar()->maximum(), 0);
  EXPECT_EQ(enfants().verticalScrollBar()->maximum(), 0);
  recettes().move(place.width() - 100, place.height() - 100);
  QApplication::processEvents();
  enfants().horizontalScrollBar()->setValue(enfants().horizontalScrollBar()->maximum());
  enfants().verticalScrollBar()->setValue(enfants().verticalScrollBar()->maximum());
  EXPECT_TRUE(enfants().viewport()->rect().contains(recettes().geometry()));
}

}  // namespace
}  // namespace gastrelle::essai
