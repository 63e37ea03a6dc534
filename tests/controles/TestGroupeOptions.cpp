// Two option buttons as the keyboard comes to them: at the one that is set.

#include <QTest>
#include <gtest/gtest.h>

#include "controles/GroupeOptions.h"

namespace gastrelle::essai {
namespace {

class EntreeDesOptions : public testing::Test {
 protected:
  EntreeDesOptions() {
    page.show();
    page.activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&page));
  }
  QRadioButton* option(std::size_t i) { return groupe->options().at(i); }
  /// Where the Tab key arrives from the line above.
  QWidget* ArriveeDuClavier() {
    avant->setFocus();
    QTest::keyClick(avant, Qt::Key_Tab);
    return page.focusWidget();
  }

  QWidget page;
  QLineEdit* avant = new QLineEdit(&page);
  GroupeOptions* groupe = new GroupeOptions("Option3", {"Une catégorie", "Le favori"}, "", &page);
  QLineEdit* apres = new QLineEdit(&page);
};

TEST_F(EntreeDesOptions, EstLaPremiereTantQuAucuneNEstPrise) {
  EXPECT_EQ(ArriveeDuClavier(), option(0));
}

TEST_F(EntreeDesOptions, EstCelleQuiEstPriseEtUnBlancNYChangeRien) {
  option(1)->setChecked(true);
  EXPECT_EQ(ArriveeDuClavier(), option(1));
  QTest::keyClick(option(1), Qt::Key_Space);
  EXPECT_TRUE(option(1)->isChecked());
}

TEST_F(EntreeDesOptions, SuitLeChoixEtLaisseLesFlechesChoisir) {
  option(1)->setChecked(true);
  ArriveeDuClavier();
  QTest::keyClick(option(1), Qt::Key_Left);
  EXPECT_TRUE(option(0)->isChecked());
  EXPECT_EQ(page.focusWidget(), option(0));
  EXPECT_EQ(ArriveeDuClavier(), option(0));
}

TEST_F(EntreeDesOptions, EstUneHalteDUneSeuleTouche) {
  option(1)->setChecked(true);
  ArriveeDuClavier();
  QTest::keyClick(option(1), Qt::Key_Tab);
  EXPECT_EQ(page.focusWidget(), apres);
}

}  // namespace
}  // namespace gastrelle::essai
