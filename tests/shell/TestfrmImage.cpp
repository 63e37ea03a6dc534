// The picture viewer, through its controls, on the tests' screen of 800 by 800.

#include <QImageWriter>
#include <QLabel>
#include <QScreen>
#include <QTest>
#include <QToolBar>
#include <QToolButton>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "controles/Conversion.h"
#include "controles/Icones.h"
#include "doublures/AideVue.h"
#include "doublures/ApplicationEssai.h"
#include "doublures/Bibliotheque.h"
#include "doublures/Ecran.h"
#include "doublures/EcranVirtuel.h"
#include "shell/Aide.h"
#include "shell/frmImage.h"

namespace gastrelle::essai {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr int cote = 800;

class Visualisateur : public testing::Test {
 protected:
  void SetUp() override {
    b.Demarre();
    OublieFin();
    EcouteMessages(&b.messages);
    const QScreen& ecran = *QGuiApplication::primaryScreen();
    ASSERT_EQ(ecran.size() * ecran.devicePixelRatio(), QSize(cote, cote));
    b.module->contexteActif = 11;
  }

  [[nodiscard]] QString Chemin(const QString& nom) const {
    return QString::fromStdString((b.dossier.chemin() / nom.toStdString()).string());
  }

  /// A picture file of that size; the format is that of `genre`, whatever the name.
  void Dessine(int largeur, int hauteur, const char* genre = "PNG",
               const QString& nom = QStringLiteral("photo.png")) {
    QImage image(largeur, hauteur, QImage::Format_RGB32);
    image.fill(Qt::darkGreen);
    ASSERT_TRUE(image.save(Chemin(nom), genre)) << genre;
  }

  void Ouvre(const QString& nom = QStringLiteral("photo.png")) {
    fenetre = std::make_unique<frmImage>(*b.module, DepuisQt(Chemin(nom)), nullptr);
    fenetre->show();
    QApplication::processEvents();
  }

  QLabel& picture() { return Trouve<QLabel>(*fenetre, "Picture1"); }
  QLabel& image() { return Trouve<QLabel>(*fenetre, "Image1"); }
  int h() { return Trouve(*fenetre, "tbToolbar").height(); }

  MessageVu NonTrouve(const QString& nom) {
    return {"Fichier image\r\n" + DepuisQt(Chemin(nom)) +
                std::string("\r\nnon trouvé ou incompatible."_1252),
            Icone::critique, "Gastrelle 2005"};
  }

  void AttendNaturelle(const QSize& taille) {
    EXPECT_TRUE(picture().isVisible());
    EXPECT_FALSE(image().isVisible());
    EXPECT_EQ(picture().size(), taille);
    EXPECT_EQ(picture().pixmap().size(), taille);
    EXPECT_EQ(fenetre->size(), QSize(taille.width(), taille.height() + 2 * h()));
    EXPECT_EQ(fenetre->pos(), QPoint(0, 0));
  }

  void AttendEtiree() {
    EXPECT_FALSE(picture().isVisible());
    EXPECT_TRUE(image().isVisible());
    EXPECT_TRUE(image().hasScaledContents());
    EXPECT_EQ(image().size(), QSize(cote, cote - 3 * h()));
    EXPECT_EQ(fenetre->size(), QSize(cote, cote - h()));
    EXPECT_EQ(fenetre->pos(), QPoint(0, 0));
  }

  Bibliotheque b;
  std::unique_ptr<frmImage> fenetre;
};

TEST_F(Visualisateur, UneImageQuiTientGardeSaTaille) {
  Dessine(300, 200);
  Ouvre();
  AttendNaturelle({300, 200});
}

TEST_F(Visualisateur, UneImageAussiLargeQueLEcranGardeSaTaille) {
  Dessine(cote, 100);
  Ouvre();
  AttendNaturelle({cote, 100});
}

TEST_F(Visualisateur, UnPointDePlusEnLargeurEtElleEstEtiree) {
  Dessine(cote + 1, 100);
  Ouvre();
  AttendEtiree();
}

TEST_F(Visualisateur, UneImageQuiRemplitLaHauteurGardeSaTaille) {
  Dessine(10, 10);
  Ouvre();
  const int limite = cote - 2 * h();
  Dessine(300, limite);
  Ouvre();
  AttendNaturelle({300, limite});
}

TEST_F(Visualisateur, UnPointDePlusEnHauteurEtElleEstEtiree) {
  Dessine(10, 10);
  Ouvre();
  Dessine(300, cote - 2 * h() + 1);
  Ouvre();
  AttendEtiree();
}

TEST_F(Visualisateur, UneGrandePhotographieEstReduiteDesSaLecture) {
  Dessine(3000, 1000, "JPG");
  Ouvre();
  AttendEtiree();
  EXPECT_EQ(image().pixmap().size(), image().size());
}

TEST_F(Visualisateur, UnePhotographieCoucheeEstRedressee) {
  QImage couchee(300, 100, QImage::Format_RGB32);
  couchee.fill(Qt::red);
  QImageWriter ecriture(Chemin("photo.png"), "JPG");
  ecriture.setTransformation(QImageIOHandler::TransformationRotate90);
  ASSERT_TRUE(ecriture.write(couchee));
  Ouvre();
  AttendNaturelle({100, 300});
}

TEST_F(Visualisateur, UneGrandePhotographieCoucheeRemplitLEcranRedressee) {
  QImage couchee(900, 100, QImage::Format_RGB32);
  couchee.fill(Qt::red);
  QImageWriter ecriture(Chemin("photo.png"), "JPG");
  ecriture.setTransformation(QImageIOHandler::TransformationRotate90);
  ASSERT_TRUE(ecriture.write(couchee));
  Ouvre();
  AttendEtiree();
  EXPECT_EQ(image().pixmap().size(), image().size());
}

/// The same screen of 800 by 800 where two of its pixels make one of the program's.
class VisualisateurDense : public Visualisateur {
 protected:
  /// Runs the test there, if it doesn't yet.
  static bool AReprendre(const QString& nom) {
    const bool ailleurs = QGuiApplication::primaryScreen()->devicePixelRatio() == 1;
    if (ailleurs) {
      EXPECT_EQ(RejoueSurUnEcranDe({cote, cote}, 2, "VisualisateurDense." + nom), 0);
    }
    return ailleurs;
  }
};

TEST_F(VisualisateurDense, UneImageQuiTientSurLeVerreGardeSesPoints) {
  if (AReprendre("UneImageQuiTientSurLeVerreGardeSesPoints")) {
    return;
  }
  Dessine(cote, 500);
  Ouvre();
  EXPECT_TRUE(picture().isVisible());
  EXPECT_EQ(picture().pixmap().size(), QSize(cote, 500));
  EXPECT_EQ(picture().pixmap().devicePixelRatio(), 2);
  EXPECT_EQ(picture().size(), QSize(cote / 2, 250));
  EXPECT_EQ(fenetre->size(), QSize(cote / 2, 250 + 2 * h()));
}

TEST_F(VisualisateurDense, UnPointDePlusEtElleRemplitLeVerre) {
  if (AReprendre("UnPointDePlusEtElleRemplitLeVerre")) {
    return;
  }
  Dessine(cote + 1, 100);
  Ouvre();
  EXPECT_FALSE(picture().isVisible());
  EXPECT_TRUE(image().isVisible());
  EXPECT_EQ(image().pixmap().size(), QSize(cote, cote - 6 * h()));
  EXPECT_EQ(image().size(), QSize(cote / 2, cote / 2 - 3 * h()));
}

TEST_F(VisualisateurDense, LaHauteurDeLaBarreSeCompteEnPointsDuVerre) {
  if (AReprendre("LaHauteurDeLaBarreSeCompteEnPointsDuVerre")) {
    return;
  }
  Dessine(10, 10);
  Ouvre();
  const int limite = cote - 4 * h();
  for (const int hauteur : {limite, limite + 1}) {
    Dessine(300, hauteur);
    Ouvre();
    EXPECT_EQ(picture().isVisible(), hauteur == limite) << hauteur;
  }
}

TEST_F(Visualisateur, LeBoutonQuiOuvreAilleursNEstPasUnAppareilPhoto) {
  Dessine(300, 200);
  Ouvre();
  const auto vue = [](const QIcon& icone) { return icone.pixmap(24).toImage(); };
  const QImage sienne = vue(Trouve<QToolButton>(*fenetre, "tbToolbar.Copier").icon());
  EXPECT_NE(sienne, vue(IconeDe("camera")));
  EXPECT_EQ(sienne, vue(IconeDe("ailleurs")));
}

class Formats : public Visualisateur, public testing::WithParamInterface<const char*> {};

TEST_P(Formats, SAffichentQuelleQueSoitLExtension) {
  Dessine(64, 48, GetParam(), "photo.xyz");
  Ouvre("photo.xyz");
  AttendNaturelle({64, 48});
}

INSTANTIATE_TEST_SUITE_P(Image, Formats, testing::Values("PNG", "JPG", "BMP", "ICO"));

TEST_F(Visualisateur, UnGifSAffiche) {
  b.dossier.Ecrit("photo.gif", std::string("GIF89a\x01\0\x01\0\x80\0\0\xff\xff\xff\0\0\0,\0\0\0\0"
                                           "\x01\0\x01\0\0\x02\x02"
                                           "D\x01\0;",
                                           35));
  Ouvre("photo.gif");
  AttendNaturelle({1, 1});
}

TEST_F(Visualisateur, LeCheminPeutAvoirDesAccents) {
  Dessine(20, 20, "PNG", Fr("crème brûlée à l'œil.png"));
  Ouvre(Fr("crème brûlée à l'œil.png"));
  AttendNaturelle({20, 20});
}

TEST_F(Visualisateur, LesBullesDisentCommentFermer) {
  Dessine(300, 200);
  Ouvre();
  EXPECT_EQ(picture().toolTip(), Fr("Clic sur l'image pour fermer la fenêtre"));
  EXPECT_EQ(image().toolTip(), Fr("Clic sur l'image pour fermer la fenêtre"));
  EXPECT_EQ(Trouve(*fenetre, "tbToolbar.Fermer").toolTip(), Fr("Fermer la fenêtre"));
}

TEST_F(Visualisateur, LePointeurRevientALaFleche) {
  Dessine(300, 200);
  b.pointeur.Sablier();
  Ouvre();
  EXPECT_FALSE(b.pointeur.sablier);
}

TEST_F(Visualisateur, UnClicSurLImageFermeLaFenetre) {
  Dessine(300, 200);
  Ouvre();
  QTest::mouseClick(&picture(), Qt::LeftButton);
  EXPECT_FALSE(fenetre->isVisible());
}

TEST_F(Visualisateur, LeBoutonDroitSurLImageFermeLaFenetre) {
  Dessine(300, 200);
  Ouvre();
  QTest::mouseClick(&picture(), Qt::RightButton);
  EXPECT_FALSE(fenetre->isVisible());
}

TEST_F(Visualisateur, UnClicSurLImageEtireeFermeLaFenetre) {
  Dessine(cote + 1, 100);
  Ouvre();
  QTest::mouseClick(&image(), Qt::RightButton);
  EXPECT_TRUE(fenetre->isVisible());
  QTest::mouseClick(&image(), Qt::LeftButton);
  EXPECT_FALSE(fenetre->isVisible());
}

TEST_F(Visualisateur, LeBoutonFermerFermeLaFenetre) {
  Dessine(300, 200);
  Ouvre();
  Clique(Trouve(*fenetre, "tbToolbar.Fermer"));
  EXPECT_FALSE(fenetre->isVisible());
}

TEST_F(Visualisateur, LeBoutonCopierOuvreLImageParSonAssociation) {
  Dessine(300, 200);
  Ouvre();
  Clique(Trouve(*fenetre, "tbToolbar.Copier"));
  EXPECT_THAT(b.association.cibles, ElementsAre(Chemin("photo.png").toStdString()));
  EXPECT_TRUE(fenetre->isVisible());
}

TEST_F(Visualisateur, LeBoutonAideOuvreSaPage) {
  Dessine(300, 200);
  b.module->fichierAide = DepuisUtf8(FICHIER_AIDE);
  Aide aide(*b.module);
  Ouvre();
  QApplication::setActiveWindow(fenetre.get());
  Clique(Trouve(*fenetre, "tbToolbar.Aide"));
  EXPECT_EQ(SujetAide(), "visualisateur");
}

TEST_F(Visualisateur, SansAssociationLeBoutonCopierLeDit) {
  Dessine(300, 200);
  Ouvre();
  b.association.reponse = Ouverture::aucuneAssociation;
  Clique(Trouve(*fenetre, "tbToolbar.Copier"));
  EXPECT_THAT(b.messages.vus,
              ElementsAre(MessageVu{
                  std::string("Aucune association n'est définie pour afficher l'image"_1252),
                  Icone::information, "Gastrelle 2005"}));
}

TEST_F(Visualisateur, LeBoutonCopierDitQueLeFichierAEteRetire) {
  Dessine(300, 200);
  Ouvre();
  b.dossier.Supprime("photo.png");
  Clique(Trouve(*fenetre, "tbToolbar.Copier"));
  EXPECT_THAT(b.association.cibles, IsEmpty());
  EXPECT_THAT(b.messages.vus, ElementsAre(MessageVu{"Fichier\r\n" + DepuisQt(Chemin("photo.png")) +
                                                        std::string("\r\nnon trouvé."_1252),
                                                    Icone::critique, "Gastrelle 2005"}));
}

TEST_F(Visualisateur, UnFichierAbsentSeDitLaFenetreCachee) {
  bool visible = true;
  b.messages.pendant = [&] { visible = fenetre->isVisible(); };
  Ouvre("absent.png");
  EXPECT_THAT(b.messages.vus, ElementsAre(NonTrouve("absent.png")));
  EXPECT_FALSE(visible);
  EXPECT_FALSE(fenetre->isVisible());
}

TEST_F(Visualisateur, UnNomQuiEnCommenceUnAutreNEstPasCetAutre) {
  Dessine(300, 200, "PNG", "photo.jpg.png");
  Ouvre("photo.jpg");
  EXPECT_THAT(b.messages.vus, ElementsAre(NonTrouve("photo.jpg")));
  EXPECT_FALSE(fenetre->isVisible());
}

TEST_F(Visualisateur, UnFormatInconnuSeDitCommeUnFichierAbsent) {
  b.dossier.Ecrit("photo.png", "ceci n'est pas une image");
  Ouvre();
  EXPECT_THAT(b.messages.vus, ElementsAre(NonTrouve("photo.png")));
}

TEST_F(Visualisateur, UneImageCoupeeNArretePasLeProgramme) {
  Dessine(300, 200);
  b.dossier.Ecrit("photo.png", b.dossier.Lit("photo.png").substr(0, 60));
  Ouvre();
  EXPECT_FALSE(fenetre->isVisible());
  EXPECT_THAT(b.messages.vus, ElementsAre(NonTrouve("photo.png")));
}

TEST_F(Visualisateur, ModalUnEchecRendLaMain) {
  fenetre = std::make_unique<frmImage>(*b.module, DepuisQt(Chemin("absent.png")), nullptr);
  b.pointeur.Sablier();
  EXPECT_EQ(fenetre->exec(), QDialog::Rejected);
  EXPECT_THAT(b.messages.vus, ElementsAre(NonTrouve("absent.png")));
  EXPECT_FALSE(b.pointeur.sablier);
}

TEST_F(Visualisateur, HorsDeLaListeDesRecettesRienNEstChargeNiDit) {
  Dessine(300, 200);
  b.module->contexteActif = 12;
  Ouvre();
  EXPECT_TRUE(picture().pixmap().isNull());
  Clique(Trouve(*fenetre, "tbToolbar.Copier"));
  EXPECT_THAT(b.association.cibles, IsEmpty());
  EXPECT_THAT(b.messages.vus, IsEmpty());
}

}  // namespace
}  // namespace gastrelle::essai
