// How the pages of every window look in any place and under any palette: nothing is crushed, all
// can be reached, every text can be read.

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QHash>
#include <QHeaderView>
#include <QLineEdit>
#include <QRadioButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QTest>

#include "controles/Teintes.h"
#include "doublures/FenetreEssai.h"
#include "doublures/ToutesFenetres.h"

namespace gastrelle::essai {
namespace {

/// Letters and grounds of a desktop at night.
QPalette Nuit() {
  QPalette nuit(QColor(60, 60, 60), QColor(48, 48, 48));
  nuit.setColor(QPalette::Base, QColor(34, 34, 34));
  return nuit;
}

class Places : public FenetreEssai<FenetreEnfant>, public testing::WithParamInterface<LigneEssai> {
 protected:
  Places() { b.Garnit(); }
  ~Places() override { QApplication::setPalette(jour); }

  std::unique_ptr<FenetreEnfant> Cree() override { return ligne.cree(*b.module, *cadre); }

  QWidget& Page(int onglet) { return Le(("Frame1(" + std::to_string(onglet) + ")").c_str()); }
  /// The last control that the key Tab visits on a page: its help button.
  QWidget& DernierDe(int onglet) {
    const QByteArray noms(ligne.clavier[static_cast<std::size_t>(onglet) - 1]);
    return Trouve(Page(onglet), noms.mid(noms.lastIndexOf(' ') + 1).constData());
  }
  static QScrollArea& PlaceDe(const QWidget& page) {
    return *qobject_cast<QScrollArea*>(page.parentWidget()->parentWidget());
  }
  void Redimensionne(const QSize& taille) {
    fenetre->resize(taille);
    QApplication::processEvents();
  }
  void ChangePalette(const QPalette& palette) {
    QApplication::setPalette(palette);
    QApplication::processEvents();
    EXPECT_EQ(fenetre == nullptr || QColor(fenetre->grab().toImage().pixel(1, 100)) ==
                                        palette.color(QPalette::Window),
              true);
  }

  /// What a user reads or works on a page, as far as it is shown.
  static std::vector<QWidget*> ControlesDe(const QWidget& page) {
    std::vector<QWidget*> controles;
    for (auto* controle : page.findChildren<QWidget*>()) {
      const bool lu = qobject_cast<QLabel*>(controle) != nullptr ||
                      qobject_cast<QLineEdit*>(controle) != nullptr ||
                      qobject_cast<QPlainTextEdit*>(controle) != nullptr ||
                      qobject_cast<QComboBox*>(controle) != nullptr ||
                      qobject_cast<QAbstractButton*>(controle) != nullptr ||
                      qobject_cast<QAbstractItemView*>(controle) != nullptr;
      const bool partie = qobject_cast<QHeaderView*>(controle) != nullptr;  // of its grid
      if (lu && !partie && controle->isVisible() && !controle->objectName().startsWith("qt_")) {
        controles.push_back(controle);
      }
    }
    return controles;
  }

  void AttendRienDEcrase(int onglet) {
    for (const QWidget* controle : ControlesDe(Page(onglet))) {
      const QSize naturel = controle->minimumSizeHint().boundedTo(controle->maximumSize());
      const QSize moindre(controle->minimumWidth() > 0 ? controle->minimumWidth() : naturel.width(),
                          naturel.height());
      EXPECT_GE(controle->height(), moindre.height()) << controle->objectName().toStdString();
      EXPECT_GE(controle->width(), moindre.width()) << controle->objectName().toStdString();
    }
  }
  /// Goes through a page with the key Tab; each control on the way is seen whole, as far as its
  /// place can hold it.
  void AttendChaqueControleEnVueParLaToucheTab(int onglet) {
    const QWidget& page = Page(onglet);
    const QRect glace = PlaceDe(page).viewport()->rect();
    auto* bande = fenetre->findChild<QTabBar*>();
    QWidget* depart = bande == nullptr ? &DernierDe(onglet) : bande;
    depart->setFocus();
    for (QTest::keyClick(depart, Qt::Key_Tab); fenetre->focusWidget() != depart;
         QTest::keyClick(fenetre->focusWidget(), Qt::Key_Tab)) {
      const QWidget& ici = *fenetre->focusWidget();
      if (!page.isAncestorOf(&ici)) {
        continue;  // an arrow of the strip of tabs
      }
      const QRect place(ici.mapTo(PlaceDe(page).viewport(), QPoint()), ici.size());
      EXPECT_EQ(glace.intersected(place).size(), place.size().boundedTo(glace.size()))
          << ici.objectName().toStdString();
    }
  }

  /// Best contrast of a pixel of a control with its ground, which is its most frequent colour.
  static double ContrastePeint(QWidget& controle) {
    const QImage image = controle.grab().toImage();
    QHash<QRgb, int> points;
    for (int y = 0; y < image.height(); ++y) {
      for (int x = 0; x < image.width(); ++x) {
        ++points[image.pixel(x, y)];
      }
    }
    const auto parNombre = [](int un, int autre) { return un < autre; };
    const QRgb fond = std::max_element(points.begin(), points.end(), parNombre).key();
    double contraste = 1;
    for (const QRgb point : points.keys()) {
      contraste = std::max(contraste, Contraste(point, fond));
    }
    return contraste;
  }
  static double ContrasteDesRoles(const QWidget& controle) {
    const QWidget* fond = &controle;
    if (const auto* zone = qobject_cast<const QAbstractScrollArea*>(&controle)) {
      fond = zone->viewport();
    }
    return Contraste(controle.palette().color(controle.foregroundRole()),
                     fond->palette().color(fond->backgroundRole()));
  }
  void AttendLisible() {
    for (int onglet = 1; onglet <= ligne.onglets(); ++onglet) {
      VaA(onglet);
      QApplication::processEvents();
      for (QWidget* controle : ControlesDe(Page(onglet))) {
        if (!controle->isEnabled()) {
          continue;
        }
        EXPECT_GE(ContrasteDesRoles(*controle), contrasteLisible)
            << onglet << ' ' << controle->objectName().toStdString();
        const bool ecrit = !Texte(*controle).trimmed().isEmpty();
        EXPECT_GE(ecrit ? ContrastePeint(*controle) : contrasteLisible, contrasteLisible)
            << onglet << ' ' << controle->objectName().toStdString();
      }
    }
  }

  const LigneEssai& ligne = GetParam();
  const QPalette jour = QApplication::palette();
};

INSTANTIATE_TEST_SUITE_P(Toutes, Places, testing::ValuesIn(ToutesLesFenetres()),
                         testing::PrintToStringParamName());

TEST_P(Places, UneTuileDefileSansRienEcraser) {
  Ouvre();
  for (const QSize& taille : {QSize(340, 165), QSize(340, 600), QSize(800, 165)}) {
    Redimensionne(taille);
    for (int onglet = 1; onglet <= ligne.onglets(); ++onglet) {
      SCOPED_TRACE(std::to_string(taille.width()) + " x " + std::to_string(taille.height()) +
                   " : " + std::to_string(onglet));
      VaA(onglet);
      QApplication::processEvents();
      EXPECT_EQ(fenetre->size(), taille);
      AttendRienDEcrase(onglet);
    }
  }
}

TEST_P(Places, UneTuileEtroiteNeDefileQueDeHautEnBas) {
  Ouvre();
  Redimensionne({340, 600});
  for (int onglet = 1; onglet <= ligne.onglets(); ++onglet) {
    VaA(onglet);
    QApplication::processEvents();
    EXPECT_EQ(PlaceDe(Page(onglet)).horizontalScrollBar()->maximum(), 0) << onglet;
  }
}

TEST_P(Places, LaToucheTabAmeneEnVueCeQuElleVisite) {
  Ouvre();
  fenetre->activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(fenetre.get()));
  Redimensionne({340, 165});
  for (int onglet = 1; onglet <= ligne.onglets(); ++onglet) {
    SCOPED_TRACE(onglet);
    VaA(onglet);
    QApplication::processEvents();
    AttendChaqueControleEnVueParLaToucheTab(onglet);
  }
}

TEST_P(Places, LeBandeauCedeQuandLaHauteurManqueEtRevient) {
  Ouvre();
  QWidget& logo = Trouve(Page(1), "Image1");
  EXPECT_TRUE(logo.isVisible());
  Redimensionne({800, 165});
  EXPECT_FALSE(logo.isVisible());
  Redimensionne({800, 600});
  EXPECT_TRUE(logo.isVisible());
}

TEST_P(Places, LesBoutonsTouchentPresqueLeBas) {
  Ouvre();
  const QWidget& aide = DernierDe(1);
  const int bas = aide.mapTo(fenetre.get(), aide.rect().bottomLeft()).y();
  EXPECT_LE(fenetre->height() - bas, 8);
}

TEST_P(Places, AHuitCentsSurSixCentsRienNeDefile) {
  Ouvre();
  Redimensionne({790, 470});
  for (int onglet = 1; onglet <= ligne.onglets(); ++onglet) {
    VaA(onglet);
    QApplication::processEvents();
    const QScrollArea& place = PlaceDe(Page(onglet));
    EXPECT_EQ(place.verticalScrollBar()->maximum(), 0) << onglet;
    EXPECT_EQ(place.horizontalScrollBar()->maximum(), 0) << onglet;
  }
}

TEST_P(Places, LesTextesSeLisentDeJourDeNuitEtQuandLaPaletteChange) {
  Ouvre();
  AttendLisible();
  ChangePalette(Nuit());
  AttendLisible();
  ChangePalette(jour);
  AttendLisible();
}

TEST_P(Places, LesPagesFaitesDeNuitSeLisentDeJour) {
  ChangePalette(Nuit());
  Ouvre();
  AttendLisible();
  ChangePalette(jour);
  AttendLisible();
}

}  // namespace
}  // namespace gastrelle::essai
