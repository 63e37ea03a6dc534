// The picture beside a text.

#include <sys/stat.h>

#include <QPlainTextEdit>
#include <QTest>
#include <gtest/gtest.h>

#include "doublures/Bibliotheque.h"
#include "doublures/Ecran.h"
#include "images/Vignette.h"

namespace gastrelle::essai {
namespace {

class Vignettes : public testing::Test {
 protected:
  Vignettes() {
    vignette.setGeometry(500, 10, 360, 400);
    page.resize(1000, 600);
    page.show();
  }

  [[nodiscard]] QString Chemin(const char* nom) const {
    return QString::fromStdString((dossier.chemin() / nom).string());
  }
  QString Dessine(int largeur, int hauteur, const char* nom = "photo.png") {
    QImage image(largeur, hauteur, QImage::Format_RGB32);
    image.fill(Qt::darkGreen);
    EXPECT_TRUE(image.save(Chemin(nom)));
    return Chemin(nom);
  }
  /// Where the picture is painted.
  [[nodiscard]] QRect Peinte() {
    QApplication::processEvents();
    QApplication::processEvents();
    const QImage vue = vignette.grab().toImage();
    QRect place;
    for (int y = 0; y < vue.height(); ++y) {
      for (int x = 0; x < vue.width(); ++x) {
        if (vue.pixelColor(x, y) == QColor(Qt::darkGreen)) {
          place |= QRect(x, y, 1, 1);
        }
      }
    }
    return place;
  }

  DossierEssai dossier;
  QWidget page;
  Vignette vignette{"imgEssai", "Image", &page};
};

TEST_F(Vignettes, ReduisentUneGrandeImageSansLaDeformer) {
  vignette.Montre(Dessine(1440, 800));
  EXPECT_EQ(Peinte(), QRect(0, 0, 360, 200));
}

TEST_F(Vignettes, TiennentAussiEnHauteur) {
  vignette.Montre(Dessine(600, 1200));
  EXPECT_EQ(Peinte(), QRect(80, 0, 200, 400));
}

TEST_F(Vignettes, NAgrandissentPasUnePetiteImage) {
  vignette.Montre(Dessine(100, 50));
  EXPECT_EQ(Peinte(), QRect(130, 0, 100, 50));
}

TEST_F(Vignettes, NeSeMontrentQueSurUnePageAssezGrande) {
  vignette.Montre(Dessine(100, 50));
  EXPECT_TRUE(vignette.isVisible());
  page.resize(899, 600);
  EXPECT_FALSE(vignette.isVisible());
  page.resize(900, 320);
  EXPECT_TRUE(vignette.isVisible());
  page.resize(1000, 319);
  EXPECT_FALSE(vignette.isVisible());
}

TEST_F(Vignettes, RendentLaPlaceSansImage) {
  vignette.Montre(Dessine(100, 50));
  vignette.Montre({});
  EXPECT_FALSE(vignette.isVisible());
}

TEST_F(Vignettes, RendentLaPlaceQuandLeFichierNEstPasUneImage) {
  dossier.Ecrit("texte.png", "pas une image");
  const QString tuyau = Chemin("tuyau");
  ASSERT_EQ(::mkfifo(qPrintable(tuyau), S_IRUSR | S_IWUSR), 0);
  for (const QString& fichier : {Chemin("texte.png"), Chemin("absente.png"),
                                 QString::fromStdString(dossier.chemin().string()), tuyau}) {
    vignette.Montre(fichier);
    EXPECT_TRUE(Peinte().isNull());
    EXPECT_FALSE(vignette.isVisible()) << qPrintable(fichier);
  }
}

TEST_F(Vignettes, OublientLImageDAvantDesQuUneAutreEstDemandee) {
  vignette.Montre(Dessine(100, 50));
  ASSERT_FALSE(Peinte().isNull());
  vignette.Montre(Dessine(200, 100, "autre.png"));
  EXPECT_EQ(vignette.grab().toImage().pixelColor(180, 5), page.palette().color(QPalette::Window));
  EXPECT_EQ(Peinte().size(), QSize(200, 100));
}

/// Keeps whether the picture was there when the text beside it was painted.
class TexteTemoin : public QPlainTextEdit {
 public:
  using QPlainTextEdit::QPlainTextEdit;
  std::function<void()> pendant;

 protected:
  void paintEvent(QPaintEvent* evenement) override {
    QPlainTextEdit::paintEvent(evenement);
    pendant();
  }
};

TEST_F(Vignettes, LisentLImageUneFoisLeTextePeint) {
  const QString image = Dessine(100, 50);
  TexteTemoin texte(&page);
  int peints = 0;
  texte.pendant = [&] {
    // Were it read by now, a file that is gone would do no harm.
    QFile::remove(image);
    ++peints;
  };
  texte.show();
  vignette.Montre(image);
  EXPECT_TRUE(Peinte().isNull());
  EXPECT_GT(peints, 0);
  EXPECT_FALSE(vignette.isVisible());
}

TEST_F(Vignettes, RepondentAuClicSurLImageSeule) {
  int clics = 0;
  vignette.surClic = [&] { ++clics; };
  vignette.Montre(Dessine(360, 200));
  ASSERT_EQ(Peinte().size(), QSize(360, 200));
  QTest::mouseClick(&vignette, Qt::LeftButton, {}, {100, 100});
  EXPECT_EQ(clics, 1);
  QTest::mouseClick(&vignette, Qt::LeftButton, {}, {100, 300});
  QTest::mouseClick(&vignette, Qt::RightButton, {}, {100, 100});
  EXPECT_EQ(clics, 1);
}

}  // namespace
}  // namespace gastrelle::essai
