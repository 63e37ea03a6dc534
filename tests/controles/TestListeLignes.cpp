// The list box of lines that are made when they are looked at.

#include <set>

#include <QHelpEvent>
#include <QTest>
#include <QToolTip>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "controles/ListeLignes.h"
#include "doublures/ApplicationEssai.h"
#include "doublures/Ecran.h"

namespace gastrelle::essai {
namespace {

using testing::IsEmpty;
using testing::Lt;
using testing::SizeIs;

class UneListeDeLignes : public testing::Test {
 protected:
  void Montre(int nombre) {
    liste.Remplace({nombre, [this](int ligne) {
                      demandees.insert(ligne);
                      return "Ligne " + std::to_string(ligne);
                    }});
    liste.resize(300, 200);
    liste.show();
    liste.setFocus();
    QApplication::setActiveWindow(&liste);
    QApplication::processEvents();
  }
  int choisie() { return liste.currentIndex().row(); }

  std::set<int> demandees;
  ListeLignes liste{QStringLiteral("List1"), nullptr};
};

TEST_F(UneListeDeLignes, NEcritQueLesLignesQuOnVoit) {
  Montre(1000000);
  EXPECT_EQ(liste.model()->rowCount(), 1000000);
  EXPECT_THAT(demandees, SizeIs(Lt(100U)));
  EXPECT_EQ(liste.model()->index(999999, 0).data().toString(), "Ligne 999999");
}

TEST_F(UneListeDeLignes, LesTouchesVontDUnBoutALAutre) {
  Montre(500);
  liste.Choisit(0);
  QTest::keyClick(&liste, Qt::Key_Down);
  EXPECT_EQ(choisie(), 1);
  QTest::keyClick(&liste, Qt::Key_End);
  EXPECT_EQ(choisie(), 499);
  EXPECT_TRUE(liste.viewport()->rect().contains(liste.visualRect(liste.currentIndex())));
  QTest::keyClick(&liste, Qt::Key_Home);
  EXPECT_EQ(choisie(), 0);
  QTest::keyClick(&liste, Qt::Key_PageDown);
  EXPECT_GT(choisie(), 1);
}

TEST_F(UneListeDeLignes, TabulationLaQuitte) {
  Montre(5);
  liste.Choisit(0);
  QTest::keyClick(&liste, Qt::Key_Tab);
  EXPECT_EQ(choisie(), 0);
}

TEST_F(UneListeDeLignes, UnIndiceHorsDeLaListeNeChoisitRien) {
  Montre(5);
  liste.Choisit(2);
  liste.Choisit(5);
  EXPECT_EQ(choisie(), 2);
  liste.Choisit(-1);
  EXPECT_EQ(choisie(), 2);
}

TEST_F(UneListeDeLignes, DAutresLignesNeGardentPasLeChoix) {
  Montre(5);
  liste.Choisit(3);
  liste.Remplace({2, [](int) { return std::string("x"); }});
  EXPECT_EQ(choisie(), -1);
  EXPECT_EQ(liste.model()->rowCount(), 2);
  liste.Remplace({});
  EXPECT_EQ(liste.model()->rowCount(), 0);
}

TEST_F(UneListeDeLignes, UneLigneCoupeeSeLitEnInfobulle) {
  const std::string longue(200, 'm');
  Montre(1);
  liste.Remplace({2, [&](int ligne) { return ligne == 0 ? longue : std::string("m"); }});
  QApplication::processEvents();
  const auto demande = [&](int ligne) {
    const QPoint ou = liste.visualRect(liste.model()->index(ligne, 0)).center();
    QHelpEvent aide(QEvent::ToolTip, ou, liste.viewport()->mapToGlobal(ou));
    QApplication::sendEvent(liste.viewport(), &aide);
    return QToolTip::text().toStdString();
  };
  EXPECT_THAT(demande(1), IsEmpty());
  EXPECT_EQ(demande(0), longue);
}

TEST_F(UneListeDeLignes, LesRangeesSuiventLaPolice) {
  Montre(5);
  const int avant = liste.rowHeight(0);
  QFont grande = liste.font();
  grande.setPointSize(3 * grande.pointSize());
  liste.setFont(grande);
  EXPECT_GT(liste.rowHeight(0), 2 * avant);
}

}  // namespace
}  // namespace gastrelle::essai
