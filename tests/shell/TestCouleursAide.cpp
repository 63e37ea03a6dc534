// The help on light and dark paper, also when the desktop changes it while the help is open.

#include <QAbstractTextDocumentLayout>
#include <QApplication>
#include <QScrollBar>
#include <QTest>
#include <QTextBlock>
#include <QTextBrowser>
#include <gtest/gtest.h>

#include "controles/Conversion.h"
#include "controles/Teintes.h"
#include "doublures/AideVue.h"
#include "doublures/Bibliotheque.h"
#include "shell/Aide.h"
#include "shell/FichierAide.h"

namespace gastrelle::essai {
namespace {

/// The colours of a desktop at dusk. Its links are the toolkit's, made for light paper.
QPalette Sombre() {
  QPalette palette(QColor(0x31, 0x31, 0x31));
  palette.setColor(QPalette::Base, QColor(0x3d, 0x3d, 0x3d));
  palette.setColor(QPalette::Text, Qt::white);
  return palette;
}

class CouleursDeLAide : public testing::Test {
 protected:
  CouleursDeLAide() {
    b.module->fichierAide = DepuisUtf8(FICHIER_AIDE);
    aide.emplace(*b.module);
  }
  ~CouleursDeLAide() override { PosePalette(QPalette()); }

  static void PosePalette(const QPalette& palette) {
    QApplication::setPalette(palette);
    QApplication::processEvents();
  }
  static QTextBrowser& Page() { return Trouve<QTextBrowser>(*FenetreAide(), "txtPage"); }

  static QStringList Sujets() {
    QStringList sujets;
    const auto fichier = FichierAide::Ouvre(QStringLiteral(FICHIER_AIDE));
    for (const ChapitreAide& chapitre : fichier->sommaire()) {
      for (const PageAide& page : chapitre.pages) {
        sujets << page.sujet;
      }
    }
    return sujets;
  }

  static void AttendLisible(const QTextFormat& texte, const QTextFormat& papier,
                            const QString& quoi) {
    const QPalette palette = Page().palette();
    const auto couleur = [&](const QTextFormat& format, int propriete, QPalette::ColorRole role) {
      const QBrush brosse = format.brushProperty(propriete);
      return brosse.style() == Qt::NoBrush ? palette.color(role) : brosse.color();
    };
    EXPECT_GE(Contraste(couleur(texte, QTextFormat::ForegroundBrush, QPalette::Text),
                        couleur(papier, QTextFormat::BackgroundBrush, QPalette::Base)),
              contrasteLisible)
        << Page().source().toString().toStdString() << ": " << quoi.toStdString();
  }
  /// Every piece of text of the page on display, also under the marks that stand on it.
  static void AttendLisible() {
    for (QTextBlock bloc = Page().document()->begin(); bloc.isValid(); bloc = bloc.next()) {
      for (auto i = bloc.begin(); !i.atEnd(); ++i) {
        const QTextCharFormat format = i.fragment().charFormat();
        AttendLisible(format, format, i.fragment().text());
        for (const QTextEdit::ExtraSelection& marque : Page().extraSelections()) {
          QTextCharFormat dessus = format;
          dessus.merge(marque.format);
          AttendLisible(dessus, dessus, i.fragment().text());
        }
      }
    }
  }
  static QColor CouleurDuTitre() {
    return Page().document()->begin().begin().fragment().charFormat().foreground().color();
  }
  static bool SeVoit(const QColor& couleur) {
    const QImage image = Page().viewport()->grab().toImage();
    for (int y = 0; y < image.height(); ++y) {
      for (int x = 0; x < image.width(); ++x) {
        if (image.pixelColor(x, y) == couleur) {
          return true;
        }
      }
    }
    return false;
  }

  Bibliotheque b;
  std::optional<Aide> aide;
};

TEST_F(CouleursDeLAide, ChaquePageSeLitSurPapierClairEtSombre) {
  aide->Ouvre(sujetAccueil);
  for (const QPalette& palette : {QPalette(), Sombre(), QPalette()}) {
    PosePalette(palette);
    for (const QString& sujet : Sujets()) {
      aide->Ouvre(sujet, {"cmdValideAjouter", "cmdEffacerModifier", "TabStrip1"});
      AttendLisible();
      EXPECT_TRUE(SeVoit(CouleurDuTitre())) << sujet.toStdString();
    }
  }
}

TEST_F(CouleursDeLAide, LaPageAfficheeSuitLaPalette) {
  aide->Ouvre("cadre");
  const QColor claire = CouleurDuTitre();
  PosePalette(Sombre());
  AttendLisible();
  const QColor sombre = CouleurDuTitre();
  EXPECT_NE(sombre, claire);
  EXPECT_TRUE(SeVoit(sombre));
  EXPECT_FALSE(SeVoit(claire));
  PosePalette(QPalette());
  EXPECT_EQ(CouleurDuTitre(), claire);
  AttendLisible();
}

TEST_F(CouleursDeLAide, LesMotsTrouvesSeLisent) {
  aide->Ouvre("donnees");
  Tape(Trouve(*FenetreAide(), "txtRecherche"), "les");
  PosePalette(Sombre());
  ASSERT_FALSE(Page().extraSelections().isEmpty());
  AttendLisible();
}

TEST_F(CouleursDeLAide, LaPageGardeSaPlaceEtSaSelection) {
  aide->Ouvre("cadre");
  QScrollBar& barre = *Page().verticalScrollBar();
  QTextCursor selection = Page().document()->find("barre d'outils");
  Page().setTextCursor(selection);
  constexpr int plusBas = 150;
  ASSERT_GT(barre.maximum(), plusBas);
  barre.setValue(plusBas);
  PosePalette(Sombre());
  EXPECT_EQ(barre.value(), plusBas);
  EXPECT_EQ(Page().textCursor().selectedText(), "barre d'outils");
  PosePalette(QPalette());
  EXPECT_EQ(barre.value(), plusBas);
  EXPECT_FALSE(Trouve(*FenetreAide(), "tbAide.Precedent").isEnabled());
}

TEST_F(CouleursDeLAide, LesTitresGrandissentAvecLeTexteEtReviennent) {
  aide->Ouvre("cadre");
  ASSERT_TRUE(QTest::qWaitForWindowActive(FenetreAide()));
  const auto hauteur = [] {
    const QTextDocument& document = *Page().document();
    return document.documentLayout()->blockBoundingRect(document.begin()).height();
  };
  const double avant = hauteur();
  for (const Qt::Key retour : {Qt::Key_0, Qt::Key_Agrave}) {
    QTest::keyClick(&Page(), Qt::Key_Plus, Qt::ControlModifier);
    QTest::keyClick(&Page(), Qt::Key_Equal, Qt::ControlModifier);
    EXPECT_GT(hauteur(), avant);
    QTest::keyClick(&Page(), retour, Qt::ControlModifier);
    EXPECT_EQ(hauteur(), avant);
  }
  QTest::keyClick(&Page(), Qt::Key_Minus, Qt::ControlModifier);
  EXPECT_LT(hauteur(), avant);
}

}  // namespace
}  // namespace gastrelle::essai
