// Texts that are cut where there is no room for them, groups of options, the counter of a band and
// its tone.

#include <QAccessible>
#include <QHelpEvent>
#include <QLineEdit>
#include <QScrollBar>
#include <QTest>
#include <QToolTip>
#include <gtest/gtest.h>

#include "controles/BoiteAnnonce.h"
#include "controles/GroupeOptions.h"
#include "controles/Legende.h"
#include "controles/Teintes.h"
#include "doublures/Ecran.h"

namespace gastrelle::essai {
namespace {

class Etiquettes : public testing::Test {
 protected:
  Etiquettes() {
    page.resize(600, 100);
    etiquette.resize(etiquette.sizeHint());
    page.show();
  }
  ~Etiquettes() override { QToolTip::hideText(); }

  /// The tooltip that comes when the pointer rests on the label.
  QString Bulle() {
    QHelpEvent repos(QEvent::ToolTip, {2, 2}, etiquette.mapToGlobal(QPoint(2, 2)));
    QApplication::sendEvent(&etiquette, &repos);
    return QToolTip::isVisible() ? QToolTip::text() : QString();
  }
  QImage Image() { return etiquette.grab().toImage(); }

  QWidget page;
  Etiquette etiquette{"Les recettes de la famille", &page};
};

TEST_F(Etiquettes, UnTexteQuiTientSeLitSansBulle) {
  EXPECT_FALSE(etiquette.EstAbregee());
  EXPECT_EQ(Bulle(), "");
}

TEST_F(Etiquettes, UnTexteCoupeFinitParDesPointsEtSeLitEntierDansSaBulle) {
  const int naturelle = etiquette.width();
  etiquette.resize(naturelle / 2, etiquette.height());
  EXPECT_TRUE(etiquette.EstAbregee());
  EXPECT_EQ(etiquette.text(), "Les recettes de la famille");
  EXPECT_EQ(Bulle(), "Les recettes de la famille");
  const QImage coupee = Image();
  QLabel temoin(
      etiquette.fontMetrics().elidedText(etiquette.text(), Qt::ElideRight, etiquette.width()),
      &page);
  temoin.setGeometry(etiquette.geometry());
  temoin.show();
  EXPECT_EQ(coupee, temoin.grab().toImage());
}

TEST_F(Etiquettes, SaPropreBullePasseAvant) {
  etiquette.setToolTip("Cette recette ne peut être supprimée");
  etiquette.resize(etiquette.width() / 2, etiquette.height());
  EXPECT_EQ(Bulle(), "Cette recette ne peut être supprimée");
}

TEST_F(Etiquettes, UneLegendeCoupeeGardeSaCleSansLaDire) {
  QLineEdit boite(&page);
  QLabel* legende = Legende("Le &titre de la recette", &boite);
  legende->resize(legende->sizeHint().width() / 2, legende->sizeHint().height());
  legende->show();
  QHelpEvent repos(QEvent::ToolTip, {2, 2}, legende->mapToGlobal(QPoint(2, 2)));
  QApplication::sendEvent(legende, &repos);
  EXPECT_EQ(QToolTip::text(), "Le titre de la recette");
  EXPECT_EQ(legende->text(), "Le &titre de la recette");
  EXPECT_EQ(boite.accessibleName(), "Le titre de la recette");
}

TEST_F(Etiquettes, UneEsperluetteDUnTitreSeLit) {
  etiquette.setText("Fish & chips");
  etiquette.resize(etiquette.sizeHint());
  EXPECT_FALSE(etiquette.EstAbregee());
  etiquette.resize(etiquette.width() - 1, etiquette.height());
  EXPECT_EQ(Bulle(), "Fish & chips");
}

TEST_F(Etiquettes, QuelquesLettresLuiSuffisent) {
  EXPECT_LT(etiquette.minimumSizeHint().width(), etiquette.sizeHint().width() / 2);
  EXPECT_EQ(etiquette.minimumSizeHint().height(), etiquette.sizeHint().height());
  etiquette.setText("de");
  EXPECT_EQ(etiquette.minimumSizeHint().width(), etiquette.sizeHint().width());
}

TEST(Options, SontUnGroupeQuiSeNommePourLesOutilsDAssistance) {
  QWidget page;
  const GroupeOptions groupe("Option1", {"Une famille", "Une recette"}, "Ajout d'une recette",
                             &page);
  const auto* option = QAccessible::queryAccessibleInterface(groupe.options()[1]);
  const QAccessibleInterface* autour = option->parent();
  ASSERT_NE(autour, nullptr);
  EXPECT_EQ(autour->role(), QAccessible::Grouping);
  EXPECT_EQ(autour->text(QAccessible::Name), "Ajout d'une recette");
  EXPECT_EQ(autour->childCount(), 2);
  EXPECT_EQ(option->text(QAccessible::Name), "Une recette");
  EXPECT_EQ(groupe.options()[1]->objectName(), "Option1(1)");
  EXPECT_EQ(QAccessible::queryAccessibleInterface(&page)->role(), QAccessible::Client);
}

TEST(Teintes, LeContrasteVaDeUnAVingtEtUn) {
  EXPECT_DOUBLE_EQ(Contraste(Qt::black, Qt::white), 21);
  EXPECT_DOUBLE_EQ(Contraste(Qt::white, Qt::black), 21);
  EXPECT_DOUBLE_EQ(Contraste(Qt::red, Qt::red), 1);
  EXPECT_NEAR(Contraste(QColor(0x76, 0x76, 0x76), Qt::white), 4.54, 0.01);
}

TEST(Teintes, LeTonDiscretSApprocheDuFondEtResteLisible) {
  for (int encre = 0; encre <= 255; encre += 15) {
    for (int fond = 0; fond <= 255; fond += 15) {
      const QColor texte(encre, encre, encre);
      const QColor autour(fond, fond, fond);
      const QColor ton = TonDiscret(texte, autour);
      const double franc = Contraste(texte, autour);
      EXPECT_GE(Contraste(ton, autour), std::min(franc, contrasteLisible)) << encre << ' ' << fond;
      EXPECT_LE(Contraste(ton, autour), franc);
    }
  }
  EXPECT_GT(Contraste(TonDiscret(Qt::black, Qt::white), Qt::black), 2);
  EXPECT_GT(Contraste(TonDiscret(Qt::white, Qt::black), Qt::white), 1.5);
}

class Annonces : public testing::Test {
 protected:
  ~Annonces() override { QApplication::setPalette(avant); }

  QPalette avant = QApplication::palette();
  QWidget page;
  BoiteAnnonce boite{"txtAnnonce(0)", &page};
};

TEST_F(Annonces, LaBoiteEstAussiGrandeQueSonTexte) {
  page.show();
  boite.PoseTexte("7\r\nmenus");
  const QSize petite = boite.size();
  EXPECT_EQ(Texte(boite), "7\nmenus");
  EXPECT_GE(petite.width(), boite.fontMetrics().horizontalAdvance("menus"));
  boite.PoseTexte("167\r\ntermes, trucs\r\net astuces");
  EXPECT_GT(boite.width(), petite.width());
  EXPECT_EQ(boite.height() - petite.height(), boite.fontMetrics().lineSpacing());
  EXPECT_EQ(boite.verticalScrollBar()->maximum(), 0);
  EXPECT_EQ(boite.horizontalScrollBar()->maximum(), 0);
  boite.PoseTexte("7\r\nmenus");
  EXPECT_EQ(boite.size(), petite);
}

TEST_F(Annonces, LaTeinteSuitLaPalette) {
  const auto attend = [&] {
    QApplication::processEvents();
    const QPalette palette = boite.palette();
    EXPECT_EQ(palette.color(QPalette::Text),
              TonDiscret(QApplication::palette().color(QPalette::WindowText),
                         QApplication::palette().color(QPalette::Window)));
    EXPECT_NE(palette.color(QPalette::Text), palette.color(QPalette::WindowText));
    EXPECT_EQ(boite.viewport()->backgroundRole(), QPalette::Window);
  };
  page.show();
  attend();
  QApplication::setPalette(QPalette(QColor(60, 60, 60), QColor(45, 45, 45)));
  attend();
  QApplication::setPalette(avant);
  attend();
}

}  // namespace
}  // namespace gastrelle::essai
