// The picture beside the recipe, and the title above it, on the tab "Liste".

#include <QImage>
#include <QLabel>

#include "recettes/fenetre/FenetreEssai.h"

namespace gastrelle::essai {
namespace {

class ListeImagee : public FenetreRecettes {
 protected:
  /// "Avec" (3) on display with its picture, and "Velouté" without one, in a wide window.
  void OuvreLarge() {
    b.AjouteRecette(2, "Avec", "Le texte.", "/a.png");
    PoseImage("a.png");
    QImage image(100, 50, QImage::Format_RGB32);
    image.fill(Qt::darkGreen);
    ASSERT_TRUE(image.save(QString::fromStdString((b.dossier.chemin() / "IMAGE/a.png").string())));
    Ouvre();
    fenetre->resize(1200, 600);
    Attend();
  }
  static void Attend() {
    QApplication::processEvents();
    QApplication::processEvents();
  }
  bool ImageVue() { return Le("imgRecette").isVisible(); }
  QLabel& titre() { return Le<QLabel>("lblTitreEntier"); }
};

TEST_F(ListeImagee, MontreLImageACoteDuTexte) {
  OuvreLarge();
  EXPECT_TRUE(ImageVue());
  EXPECT_GE(Le("imgRecette").x(), Le("txtRecette").geometry().right());
  fenetre->resize(800, 600);
  Attend();
  EXPECT_FALSE(ImageVue());
}

TEST_F(ListeImagee, UnClicSurLImageVautLeBouton) {
  OuvreLarge();
  Clique(Le("imgRecette"));
  EXPECT_EQ(cadre->imagesMontrees, 0) << "beside the picture";
  QTest::mouseClick(&Le("imgRecette"), Qt::LeftButton, {}, {Le("imgRecette").width() / 2, 10});
  EXPECT_EQ(cadre->imagesMontrees, 1);
}

TEST_F(ListeImagee, NeMontreRienPourUneRecetteSansImage) {
  OuvreLarge();
  Choisit(recettes(), Fr("Velouté"));
  Attend();
  EXPECT_FALSE(ImageVue());
  Choisit(recettes(), "Avec");
  Attend();
  EXPECT_TRUE(ImageVue());
}

TEST_F(ListeImagee, NeMontreRienPourUneFamilleVideEtLeDit) {
  b.AjouteFamille("Vide");
  OuvreLarge();
  Choisit(familles(), "Vide");
  Attend();
  EXPECT_FALSE(ImageVue());
  EXPECT_EQ(Le<QPlainTextEdit>("txtRecette").placeholderText(),
            "Aucune recette dans cette famille");
  EXPECT_EQ(Texte(Le("txtRecette")), "");
  Choisit(familles(), "Potages");
  EXPECT_EQ(Le<QPlainTextEdit>("txtRecette").placeholderText(), "");
}

TEST_F(ListeImagee, NAjouteNiLectureNiEcritureAuxFichiers) {
  OuvreLarge();
  b.disque.OublieJournal();
  Attend();
  fenetre->resize(1300, 600);
  Attend();
  EXPECT_THAT(b.disque.changements(), testing::IsEmpty());
}

TEST_F(ListeImagee, EcritLeTitreEntierQuandLaListeLeCoupe) {
  const std::string longue(128, 'M');
  b.AjouteRecette(2, longue, "Le texte.");
  OuvreLarge();
  Choisit(recettes(), QString(128, u'M'));
  Attend();
  EXPECT_TRUE(titre().isVisible());
  EXPECT_EQ(titre().text(), QString(128, u'M'));
  EXPECT_LT(titre().y(), Le("txtRecette").y());
  EXPECT_EQ(Texte(Le("lblLaRecette")), "La recette");
  fenetre->resize(4000, 600);
  Attend();
  EXPECT_FALSE(titre().isVisible());
  fenetre->resize(1000, 600);
  Attend();
  EXPECT_TRUE(titre().isVisible());
  Choisit(recettes(), "Avec");
  Attend();
  EXPECT_FALSE(titre().isVisible());
}

}  // namespace
}  // namespace gastrelle::essai
