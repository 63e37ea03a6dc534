// The sheets on which texts are read: paper, size of letters, length of lines, headings.

#include <fstream>
#include <iterator>

#include <QScrollBar>
#include <QSettings>
#include <QTest>
#include <QTextBlock>
#include <QVBoxLayout>
#include <QWheelEvent>
#include <gtest/gtest.h>

#include "controles/FeuilleTexte.h"
#include "controles/LigneTexte.h"
#include "controles/TailleLecture.h"
#include "controles/Teintes.h"
#include "controles/Touches.h"
#include "data/Enregistrements.h"
#include "doublures/Ecran.h"

namespace gastrelle::essai {
namespace {

constexpr std::string_view recette =
    "Pour 4 personnes\r\nCuisson\xA0: 20 min\r\n\r\nIngr\xE9"
    "dients\r\n- 1 oignon\r\n\r\n\xC9tapes\r\n1. \xC9plucher.";

QSettings Reglages() {
  return {QSettings::UserScope, "Gastrelle 2005"};
}

class Feuilles : public testing::Test {
 protected:
  Feuilles() {
    Reglages().clear();
    PoseTouchesTaille(fenetre, AgranditLecture);
    auto* pile = new QVBoxLayout(&fenetre);
    for (FeuilleTexte** feuille : {&lecture, &saisie}) {
      *feuille = new FeuilleTexte("txtFeuille", sansLimite, &fenetre);
      pile->addWidget(*feuille);
    }
    ligne = new LigneTexte("txtLigne", sansLimite, &fenetre);
    pile->addWidget(ligne);
    lecture->RendLectureSeule();
    lecture->PoseTexte(recette);
    fenetre.resize(700, 500);
    fenetre.show();
    QApplication::setActiveWindow(&fenetre);
    lecture->setFocus();
    QApplication::processEvents();
  }
  ~Feuilles() override {
    QApplication::setPalette(clair);
    Reglages().clear();
  }

  static void Molette(QWidget& sur, int huitiemes, Qt::KeyboardModifiers avec = {},
                      QPoint ou = {20, 20}) {
    QWheelEvent cran(ou, sur.mapToGlobal(ou), {}, {0, huitiemes}, Qt::NoButton, avec,
                     Qt::NoScrollPhase, false);
    QApplication::sendEvent(&sur, &cran);
    QApplication::processEvents();
  }
  [[nodiscard]] static double Points(const QWidget& feuille) { return feuille.font().pointSizeF(); }
  /// How the first letter of a line is drawn.
  [[nodiscard]] QTextCharFormat Dessin(int rang) const {
    for (const auto& passage : lecture->document()->findBlockByNumber(rang).layout()->formats()) {
      if (passage.start == 0) {
        return passage.format;
      }
    }
    return {};
  }
  [[nodiscard]] static QPalette Sombre() {
    QPalette sombre(QColor(40, 40, 40));
    sombre.setColor(QPalette::Base, QColor(30, 30, 30));
    sombre.setColor(QPalette::Text, Qt::white);
    return sombre;
  }

  const QPalette clair = QApplication::palette();
  const double systeme = QFontInfo(QApplication::font()).pointSizeF();
  QWidget fenetre;
  FeuilleTexte* lecture = nullptr;
  FeuilleTexte* saisie = nullptr;
  LigneTexte* ligne = nullptr;
};

TEST_F(Feuilles, SontDePapierQuOnYEcriveOuNon) {
  for (FeuilleTexte* feuille : {lecture, saisie}) {
    EXPECT_EQ(feuille->grab().toImage().pixelColor(feuille->rect().center()),
              QApplication::palette().color(QPalette::Base));
    EXPECT_GE(feuille->document()->documentMargin(), 12);
  }
}

TEST_F(Feuilles, SuiventUnePaletteQuiChange) {
  QApplication::setPalette(Sombre());
  QApplication::processEvents();
  const QImage vue = lecture->grab().toImage();
  EXPECT_EQ(vue.pixelColor(vue.rect().center()), QColor(30, 30, 30));
  EXPECT_GE(Contraste(lecture->palette().color(QPalette::Text), QColor(30, 30, 30)),
            contrasteLisible);
}

TEST_F(Feuilles, SeLisentEnPlusGrandQueLeReste) {
  EXPECT_EQ(Points(*lecture), systeme + 2);
  EXPECT_EQ(Points(*saisie), systeme + 2);
  EXPECT_EQ(Points(*ligne), systeme);
}

TEST_F(Feuilles, GrandissentToutesAuClavierDOuQuOnSoit) {
  QTest::keyClick(lecture, Qt::Key_Plus, Qt::ControlModifier);
  EXPECT_EQ(Points(*lecture), systeme + 3);
  EXPECT_EQ(Points(*saisie), systeme + 3);
  ligne->setFocus();
  QTest::keyClick(ligne, Qt::Key_Equal, Qt::ControlModifier);
  EXPECT_EQ(Points(*saisie), systeme + 4);
  saisie->setFocus();
  QTest::keyClick(saisie, Qt::Key_Minus, Qt::ControlModifier);
  EXPECT_EQ(Points(*lecture), systeme + 3);
  EXPECT_EQ(saisie->toPlainText(), "");
  QTest::keyClick(saisie, Qt::Key_0, Qt::ControlModifier);
  EXPECT_EQ(Points(*lecture), systeme + 2);
}

TEST_F(Feuilles, GrandissentALaMoletteMemeCellesOuLOnEcrit) {
  Molette(*saisie->viewport(), 120, Qt::ControlModifier);
  EXPECT_EQ(Points(*lecture), systeme + 3);
  Molette(*lecture->viewport(), -240, Qt::ControlModifier);
  EXPECT_EQ(Points(*saisie), systeme + 1);
}

TEST_F(Feuilles, AttendentUnCranEntierDUneMoletteFine) {
  Molette(*lecture->viewport(), 60, Qt::ControlModifier);
  EXPECT_EQ(Points(*lecture), systeme + 2);
  Molette(*lecture->viewport(), 60, Qt::ControlModifier);
  EXPECT_EQ(Points(*lecture), systeme + 3);
}

TEST_F(Feuilles, RetiennentLaTailleChoisieEtOublientCelleDuSysteme) {
  EXPECT_FALSE(Reglages().contains("Settings/TailleLecture"));
  QTest::keyClick(lecture, Qt::Key_Plus, Qt::ControlModifier);
  EXPECT_EQ(Reglages().value("Settings/TailleLecture").toDouble(), systeme + 3);
  const FeuilleTexte nouvelle("txtNouvelle", sansLimite);
  EXPECT_EQ(Points(nouvelle), systeme + 3);
  QTest::keyClick(lecture, Qt::Key_0, Qt::ControlModifier);
  EXPECT_FALSE(Reglages().contains("Settings/TailleLecture"));
}

TEST_F(Feuilles, RestentLisiblesQuoiQuOnDemande) {
  for (const auto& [reglage, taille] : {std::pair{"abc", systeme + 2},
                                        {"0", 7.0},
                                        {"-3", 7.0},
                                        {"4000", 40.0},
                                        {"nan", systeme + 2}}) {
    Reglages().setValue("Settings/TailleLecture", reglage);
    EXPECT_EQ(Points(FeuilleTexte("txtNouvelle", sansLimite)), taille) << reglage;
  }
  Reglages().setValue("Settings/TailleLecture", "40");
  AgranditLecture(1);
  EXPECT_EQ(Points(*lecture), 40);
}

TEST_F(Feuilles, NOntPasDeLigneDePlusDe95LettresEnviron) {
  std::string longue;
  while (longue.size() < 2000) {
    longue += "Couper la viande en cubes de trois centimetres et la laisser au frais. ";
  }
  lecture->PoseTexte(longue);
  for (const int largeur : {700, 1400, 2500}) {
    fenetre.resize(largeur, 500);
    QApplication::processEvents();
    const QTextLayout& mise = *lecture->document()->firstBlock().layout();
    ASSERT_GT(mise.lineCount(), 1);
    for (int i = 0; i + 1 < mise.lineCount(); ++i) {
      EXPECT_LE(mise.lineAt(i).textLength(), 102) << "à " << largeur;
    }
    if (largeur == 2500) {
      EXPECT_GE(mise.lineAt(0).textLength(), 85);
    }
  }
}

TEST_F(Feuilles, VontJusquAuBordOuLaLigneFinit) {
  fenetre.resize(2000, 300);
  std::string longue;
  for (int i = 0; i < 200; ++i) {
    longue += "ligne\r\n";
  }
  saisie->PoseTexte(longue);
  QApplication::processEvents();
  const QPoint bord(saisie->width() - 60, saisie->height() / 2);
  ASSERT_FALSE(saisie->viewport()->geometry().contains(bord));
  EXPECT_EQ(saisie->grab().toImage().pixelColor(bord),
            QApplication::palette().color(QPalette::Base));
  Molette(*saisie, -120, {}, bord);
  EXPECT_GT(saisie->verticalScrollBar()->value(), 0);
  QTest::mouseClick(saisie, Qt::LeftButton, {}, bord);
  EXPECT_TRUE(saisie->hasFocus());
  EXPECT_GT(saisie->textCursor().position(), 0);
}

TEST_F(Feuilles, OuvrentLeurMenuJusquAuBord) {
  fenetre.resize(2000, 300);
  QApplication::processEvents();
  const QPoint bord(lecture->width() - 60, lecture->height() / 2);
  QContextMenuEvent clicDroit(QContextMenuEvent::Mouse, bord, lecture->mapToGlobal(bord));
  QApplication::sendEvent(lecture, &clicDroit);
  ASSERT_NE(QApplication::activePopupWidget(), nullptr);
  QApplication::activePopupWidget()->close();
}

TEST_F(Feuilles, NeTournentPasEnRondAuBoutDeLaMolette) {
  Molette(*lecture->viewport(), 120);
  Molette(*lecture, 120, {}, {lecture->width() - 3, 20});
  EXPECT_EQ(lecture->verticalScrollBar()->value(), 0);
}

TEST_F(Feuilles, DessinentTitresClesEtMarques) {
  EXPECT_EQ(Dessin(0).fontWeight(), QFont::Bold);
  EXPECT_EQ(Dessin(1).fontWeight(), QFont::Bold);
  EXPECT_GT(Dessin(3).fontPointSize(), Points(*lecture));
  EXPECT_EQ(Dessin(3).fontWeight(), QFont::Bold);
  EXPECT_EQ(Dessin(4).foreground().color(), Dessin(3).foreground().color());
  EXPECT_EQ(Dessin(7).fontWeight(), QFont::Bold);
}

TEST_F(Feuilles, DessinentDansUneCouleurLisibleSurTousLesPapiers) {
  for (const QPalette& palette : {Sombre(), clair}) {
    QApplication::setPalette(palette);
    QApplication::processEvents();
    EXPECT_GE(Contraste(Dessin(3).foreground().color(), palette.color(QPalette::Base)),
              contrasteLisible);
  }
}

TEST_F(Feuilles, DessinentLesTitresALaTailleChoisie) {
  const double avant = Dessin(3).fontPointSize();
  QTest::keyClick(lecture, Qt::Key_Plus, Qt::ControlModifier);
  EXPECT_GT(Dessin(3).fontPointSize(), avant);
}

TEST_F(Feuilles, DessinentCeQuOnTape) {
  saisie->setFocus();
  Tape(*saisie, Fr("Étapes"));
  ASSERT_FALSE(saisie->document()->firstBlock().layout()->formats().isEmpty());
  QTest::keyClick(saisie, Qt::Key_S);
  EXPECT_TRUE(saisie->document()->firstBlock().layout()->formats().isEmpty());
  EXPECT_EQ(Texte(*saisie), Fr("Étapess"));
}

TEST_F(Feuilles, NeChangentRienAuTexteEnLeDessinant) {
  EXPECT_EQ(lecture->Texte(), recette);
  saisie->PoseTexte(recette);
  QTest::keyClick(saisie, Qt::Key_Plus, Qt::ControlModifier);
  QApplication::setPalette(Sombre());
  QApplication::processEvents();
  EXPECT_EQ(saisie->Texte(), recette);
  EXPECT_FALSE(saisie->document()->isUndoAvailable());
}

std::string Octets(const std::string& nom) {
  std::ifstream fichier(std::string(DOSSIER_PROGRAMME) + "/" + nom, std::ios::binary);
  return {std::istreambuf_iterator<char>(fichier), {}};
}

/// The texts of a catalogue: its records point into its pool.
template <class Record>
std::vector<std::string> TextesDe(const std::string& fiches, const std::string& reserve,
                                  std::int32_t Record::*position, std::int32_t Record::*longueur) {
  const std::string octets = Octets(fiches);
  const std::string pages = Octets(reserve);
  constexpr std::size_t pas = longueurEnregistrement<Record>;
  std::vector<std::string> textes;
  for (std::size_t debut = pas; debut + pas <= octets.size(); debut += pas) {
    Record fiche;
    Decode(fiche, octets.data() + debut);
    textes.push_back(pages.substr(static_cast<std::size_t>(fiche.*position) - 1,
                                  static_cast<std::size_t>(fiche.*longueur)));
  }
  return textes;
}

TEST(TextesDUsine, RestentALOctetPresSurUneFeuille) {
  FeuilleTexte feuille("txtFeuille", sansLimite);
  feuille.resize(800, 600);
  feuille.show();
  std::size_t lus = 0;
  for (const auto& textes :
       {TextesDe("GLR2.stp", "GLR3.stp", &RecRecette::posTexte, &RecRecette::lgTexte),
        TextesDe("GLM1.stp", "GLM2.stp", &RecFiche::posTexte, &RecFiche::lgTexte),
        TextesDe("GLT1.stp", "GLT2.stp", &RecFiche::posTexte, &RecFiche::lgTexte),
        TextesDe("GLF1.stp", "GLF2.stp", &RecFromage::posTexte, &RecFromage::lgTexte)}) {
    for (const std::string& texte : textes) {
      feuille.PoseTexte(texte);
      QApplication::processEvents();
      EXPECT_EQ(feuille.Texte(), texte);
      ++lus;
    }
  }
  EXPECT_EQ(lus, 365U + 15U + 167U + 122U);
}

}  // namespace
}  // namespace gastrelle::essai
