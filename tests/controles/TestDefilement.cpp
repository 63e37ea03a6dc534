// A page in a place too small for it: it scrolls, the focus comes into sight, the wheel goes to
// what lies under the pointer.

#include <QScrollBar>
#include <QTest>
#include <QWheelEvent>
#include <gtest/gtest.h>

#include "controles/BandeauLogo.h"
#include "controles/Defilement.h"
#include "doublures/Ecran.h"

namespace gastrelle::essai {
namespace {

class Defilements : public testing::Test {
 protected:
  Defilements() {
    auto* fond = new QVBoxLayout(&fenetre);
    fond->addWidget(haut);
    fond->addWidget(place);
    auto* colonne = new QVBoxLayout(page);
    for (QWidget* controle : std::initializer_list<QWidget*>{premier, texte, dernier}) {
      colonne->addWidget(controle);
    }
    texte->setFixedHeight(100);
    fenetre.resize(200, 120);
    fenetre.show();
    fenetre.activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&fenetre));
    EXPECT_GT(place->verticalScrollBar()->maximum(), 0);
  }

  /// A notch of the wheel towards the user, over the middle of a control.
  static void TourneLaMolette(QWidget& controle) {
    constexpr int cran = 120;
    const QPointF ou = controle.rect().center();
    QWheelEvent tour(ou, controle.mapToGlobal(ou), {}, {0, -cran}, Qt::NoButton, Qt::NoModifier,
                     Qt::NoScrollPhase, false);
    QSpontaneKeyEvent::setSpontaneous(&tour);  // only those go on to what lies behind
    qApp->notify(&controle, &tour);
  }
  bool Visible(const QWidget& controle) const {
    return place->viewport()->rect().contains(
        QRect(controle.mapTo(place->viewport(), QPoint()), controle.size()));
  }
  [[nodiscard]] int Defile() const { return place->verticalScrollBar()->value(); }

  QWidget fenetre;
  QPushButton* haut = new QPushButton("Avant");
  QWidget* page = new QWidget;
  QPushButton* premier = new QPushButton("Premier");
  QPlainTextEdit* texte = new QPlainTextEdit;
  QPushButton* dernier = new QPushButton("Dernier");
  Defilement* place = new Defilement(page, &fenetre);
};

TEST_F(Defilements, RienNEstEcraseSousLeMinimumEtToutSEtireAuDessus) {
  EXPECT_EQ(page->height(), page->minimumSizeHint().height());
  EXPECT_GT(place->verticalScrollBar()->maximum(), 0);
  fenetre.resize(200, 500);
  QApplication::processEvents();
  EXPECT_EQ(page->size(), place->viewport()->size());
  EXPECT_EQ(place->verticalScrollBar()->maximum(), 0);
  EXPECT_EQ(place->size(), place->viewport()->size());
}

TEST_F(Defilements, LeControleQuiPrendLeFocusSeVoit) {
  haut->setFocus();
  EXPECT_FALSE(Visible(*dernier));
  QTest::keyClick(haut, Qt::Key_Backtab);
  EXPECT_EQ(fenetre.focusWidget(), dernier);
  EXPECT_TRUE(Visible(*dernier));
  QTest::keyClick(dernier, Qt::Key_Tab);
  QTest::keyClick(haut, Qt::Key_Tab);
  EXPECT_EQ(fenetre.focusWidget(), premier);
  EXPECT_TRUE(Visible(*premier));
}

TEST_F(Defilements, LaMoletteSurLaPageLaDefile) {
  TourneLaMolette(*premier);
  EXPECT_GT(Defile(), 0);
}

TEST_F(Defilements, LaMoletteSurUnTexteLongNeDefileQueLui) {
  texte->setPlainText(QString("ligne\n").repeated(40));
  for (int tour = 0; tour < 60; ++tour) {
    TourneLaMolette(*texte->viewport());
  }
  EXPECT_EQ(texte->verticalScrollBar()->value(), texte->verticalScrollBar()->maximum());
  EXPECT_EQ(Defile(), 0);
}

TEST_F(Defilements, LaMoletteSurUnTexteCourtDefileLaPage) {
  texte->setPlainText("une ligne");
  TourneLaMolette(*texte->viewport());
  EXPECT_GT(Defile(), 0);
}

TEST_F(Defilements, LeClavierNeSArretePasSurLaPlaceElleMeme) {
  EXPECT_EQ(place->focusPolicy(), Qt::NoFocus);
  premier->setFocus();
  QTest::keyClick(premier, Qt::Key_PageDown);
  EXPECT_GT(Defile(), 0);
}

TEST_F(Defilements, UneToucheAvecUneCleEtCelleDUnePageEntiereVontPlusLoin) {
  premier->setFocus();
  QKeyEvent avecAlt(QEvent::KeyPress, Qt::Key_Down, Qt::AltModifier);
  QApplication::sendEvent(place, &avecAlt);
  EXPECT_FALSE(avecAlt.isAccepted());
  fenetre.resize(200, 500);
  QApplication::processEvents();
  QKeyEvent seule(QEvent::KeyPress, Qt::Key_Down, Qt::NoModifier);
  QApplication::sendEvent(place, &seule);
  EXPECT_FALSE(seule.isAccepted());
}

TEST(BandeauLogos, CedentLaPlaceQuandElleManqueEtReviennent) {
  QWidget page;
  auto* colonne = new QVBoxLayout(&page);
  auto* bandeau = new BandeauLogo("logo-menus", "Un entête", "", &page);
  auto* texte = new QPlainTextEdit(&page);
  colonne->addWidget(bandeau);
  colonne->addWidget(texte);
  page.show();
  const int ligne = bandeau->fontMetrics().lineSpacing();
  const int juste = colonne->totalMinimumSize().height() + 4 * ligne;
  for (const int hauteur : {juste, juste - 1, 10, juste - 1, juste, 2000}) {
    bandeau->TientDans({2000, hauteur});
    EXPECT_EQ(bandeau->isVisible(), hauteur >= juste) << hauteur;
  }
  bandeau->TientDans({100, 2000});
  EXPECT_FALSE(bandeau->isVisible());
  bandeau->TientDans({300, 2000});
  EXPECT_TRUE(bandeau->isVisible());
}

}  // namespace
}  // namespace gastrelle::essai
