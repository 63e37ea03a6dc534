// The map of the vineyards: its regions, where their names stand, the mouse, what is brought out.

#include <fstream>
#include <regex>
#include <set>

#include <QMouseEvent>
#include <QTest>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "controles/Teintes.h"
#include "doublures/Ecran.h"
#include "vignobles/CarteVignobles.h"
#include "vignobles/CarteVignoblesFormes.h"
#include "vignobles/CarteVignoblesNoms.h"
#include "vignobles/CarteVignoblesTeintes.h"

namespace gastrelle::essai {
namespace {

constexpr std::int32_t alsaceNumero = 2;
constexpr std::int32_t champagneNumero = 4;
constexpr std::int32_t bourgogneNumero = 5;
constexpr std::int32_t corseNumero = 17;

std::int32_t Numero(std::size_t rang) {
  return static_cast<std::int32_t>(rang) + premierVignoble;
}

QStringList NomsDUsine() {
  std::ifstream fichier(REGIONS_USINE);
  const std::regex motif("nom = \"(.*)\"");
  QStringList noms;
  for (std::string ligne; std::getline(fichier, ligne);) {
    if (std::smatch trouve; std::regex_match(ligne, trouve, motif)) {
      noms << QString::fromStdString(trouve[1]);
    }
  }
  return noms;
}

QFont Lettres(int pixels) {
  QFont police = QApplication::font();
  police.setPixelSize(pixels);
  return police;
}

/// A dark desktop, for as long as a test lasts.
QPalette Sombre() {
  QPalette palette(QColor(60, 60, 60), QColor(45, 45, 45));
  palette.setColor(QPalette::Base, QColor(35, 35, 35));
  palette.setColor(QPalette::Text, QColor(230, 230, 230));
  return palette;
}

TEST(VignoblesDeFrance, SontLesRegionsDUsineDansLeurOrdre) {
  QStringList noms;
  for (const Vignoble& vignoble : vignobles) {
    noms << Lisible(vignoble.nom);
  }
  EXPECT_EQ(noms.size(), 27);
  EXPECT_EQ(noms, NomsDUsine());
}

TEST(VignoblesDeFrance, OntDesFormesAbregeesQuiDifferent) {
  std::set<std::u16string_view> abreges;
  for (const Vignoble& vignoble : vignobles) {
    EXPECT_LE(vignoble.abrege.size(), vignoble.nom.size());
    abreges.insert(vignoble.abrege);
  }
  EXPECT_EQ(abreges.size(), vignobles.size());
}

TEST(VignoblesDeFrance, LEchelleEstCelleDuPays) {
  // As the crow flies: from Paris to Lyon 392 km, from Strasbourg to Brest 900.
  EXPECT_NEAR(QLineF(Projection({2.352, 48.857}), Projection({4.835, 45.764})).length(), 392, 3);
  EXPECT_NEAR(QLineF(Projection({7.75, 48.58}), Projection({-4.49, 48.39})).length(), 900, 6);
  const QRectF carte = EtendueCarte();
  EXPECT_NEAR(carte.width(), 1114, 15);
  EXPECT_NEAR(carte.height(), 1060, 15);
}

TEST(VignoblesDeFrance, LesVillesSontDansLePaysEtLesVoisinesNon) {
  const QPainterPath& pays = FormesDeLaCarte().pays;
  for (const Lieu& dedans : {Lieu{2.35, 48.86}, Lieu{4.84, 45.76}, Lieu{-0.58, 44.84},
                             Lieu{9.15, 42.3}, Lieu{7.6, 48.5}, Lieu{-4.2, 48.4}}) {
    EXPECT_TRUE(pays.contains(Projection(dedans))) << dedans.est;
  }
  for (const Lieu& dehors : {Lieu{4.35, 50.85}, Lieu{6.14, 46.2}, Lieu{7.69, 45.07},
                             Lieu{2.17, 41.39}, Lieu{-3.0, 45.5}, Lieu{7.5, 42.9}}) {
    EXPECT_FALSE(pays.contains(Projection(dehors))) << dehors.est;
  }
}

TEST(VignoblesDeFrance, ChaqueRegionEstDansLePaysEtSurAucuneAutre) {
  const FormesCarte& formes = FormesDeLaCarte();
  for (std::size_t i = 0; i < vignobles.size(); ++i) {
    const std::string nom = Lisible(vignobles[i].nom).toStdString();
    const QPointF lieu = Projection(vignobles[i].lieu);
    EXPECT_FALSE(formes.aires[i].isEmpty()) << nom;
    EXPECT_TRUE(formes.pays.contains(lieu)) << nom;
    for (std::size_t j = 0; j < vignobles.size(); ++j) {
      EXPECT_EQ(formes.aires[j].contains(lieu), i == j) << nom << ' ' << j;
    }
    int dehors = 0;
    for (const QPolygonF& contour : formes.aires[i].toSubpathPolygons()) {
      for (const QPointF& point : contour) {
        // What the pen makes of a shore is a kilometre's worth.
        const QRectF autour = QRectF(point, point).adjusted(-1, -1, 1, 1);
        dehors += formes.pays.intersects(autour) ? 0 : 1;
      }
    }
    EXPECT_EQ(dehors, 0) << nom;
  }
}

TEST(VignoblesDeFrance, LesVoisinesNOntPasLaMemeTeinte) {
  for (std::size_t i = 0; i < vignobles.size(); ++i) {
    for (std::size_t j = i + 1; j < vignobles.size(); ++j) {
      constexpr double kilometres = 2;
      QPainterPathStroker bord;
      bord.setWidth(2 * kilometres);
      const QPainterPath& aire = FormesDeLaCarte().aires[i];
      const bool voisines = (bord.createStroke(aire) | aire).intersects(FormesDeLaCarte().aires[j]);
      EXPECT_FALSE(voisines && vignobles[i].teinte == vignobles[j].teinte)
          << Lisible(vignobles[i].nom).toStdString() << ", "
          << Lisible(vignobles[j].nom).toStdString();
    }
  }
}

void VerifiePlan(const QSizeF& taille, const QFont& police) {
  const PlanCarte plan = PlanDeLaCarte(taille, police);
  const QRectF place(QPointF(), taille);
  QFont grasse = police;
  grasse.setBold(true);
  const QFontMetricsF metrique(grasse);
  std::int32_t avant = 0;
  for (std::size_t i = 0; i < plan.noms.size(); ++i) {
    const NomPose& nom = plan.noms[i];
    SCOPED_TRACE(nom.texte.toStdString());
    EXPECT_GT(nom.numero, avant);
    avant = nom.numero;
    const Vignoble& vignoble = vignobles[static_cast<std::size_t>(nom.numero - premierVignoble)];
    EXPECT_TRUE(nom.texte == Lisible(vignoble.nom) || nom.texte == Lisible(vignoble.abrege));
    EXPECT_TRUE(place.contains(nom.cadre));
    EXPECT_GE(nom.cadre.width(), metrique.horizontalAdvance(nom.texte));
    EXPECT_GE(nom.cadre.height(), metrique.height());
    for (std::size_t j = i + 1; j < plan.noms.size(); ++j) {
      const NomPose& autre = plan.noms[j];
      EXPECT_FALSE(nom.cadre.intersects(autre.cadre)) << autre.texte.toStdString();
      EXPECT_FALSE(Gene(nom, autre)) << autre.texte.toStdString();
    }
    for (const VillePosee& ville : plan.villes) {
      EXPECT_FALSE(nom.cadre.intersects(ville.cadre)) << ville.texte.toStdString();
    }
  }
}

TEST(NomsDeLaCarte, NeSeChevauchentNiNeSortentJamais) {
  struct Cas {
    int lettres;
    QSizeF taille;
  };
  for (const Cas& cas :
       {Cas{10, {260, 260}}, Cas{10, {480, 480}}, Cas{12, {200, 200}}, Cas{12, {320, 400}},
        Cas{12, {700, 300}}, Cas{12, {900, 800}}, Cas{16, {420, 420}}, Cas{16, {1400, 1000}},
        Cas{24, {480, 480}}, Cas{24, {900, 800}}, Cas{24, {1400, 1000}}}) {
    SCOPED_TRACE(testing::Message()
                 << cas.lettres << " px, " << cas.taille.width() << " x " << cas.taille.height());
    VerifiePlan(cas.taille, Lettres(cas.lettres));
  }
}

TEST(NomsDeLaCarte, SontTousLaDesQuatreCentVingtPixels) {
  for (const int lettres : {10, 12, 13}) {
    for (const QSizeF& taille : {QSizeF(420, 420), QSizeF(480, 460), QSizeF(420, 700),
                                 QSizeF(900, 420), QSizeF(900, 800), QSizeF(1400, 1000)}) {
      EXPECT_EQ(PlanDeLaCarte(taille, Lettres(lettres)).noms.size(), vignobles.size())
          << lettres << " px, " << taille.width() << " x " << taille.height();
    }
  }
}

TEST(NomsDeLaCarte, CeluiQuiNAPasDePlaceResteDansLaCarte) {
  const QSizeF taille(200, 200);
  const QFont police = Lettres(16);
  const PlanCarte plan = PlanDeLaCarte(taille, police);
  ASSERT_LT(plan.noms.size(), vignobles.size());
  for (std::size_t i = 0; i < vignobles.size(); ++i) {
    const NomPose nom = NomSurLaCarte(plan, Numero(i), taille, police);
    EXPECT_EQ(nom.numero, Numero(i));
    EXPECT_TRUE(QRectF(QPointF(), taille).contains(nom.cadre)) << nom.texte.toStdString();
  }
}

TEST(TeintesDeLaCarte, SeLisentSurPapierClairEtSombre) {
  for (const QPalette& palette : {QPalette(QColor(240, 240, 240)), Sombre()}) {
    const TeintesCarte teintes = TeintesDeLaCarte(palette);
    for (const QColor& fond : {teintes.mer, teintes.cote, teintes.terre}) {
      EXPECT_GE(Contraste(teintes.encre, fond), contrasteLisible);
    }
    for (const QColor& fond : {teintes.mer, teintes.terre}) {
      EXPECT_GE(Contraste(teintes.discrete, fond), contrasteLisible);
    }
    std::set<QRgb> distinctes;
    for (const QColor& aire : teintes.aires) {
      EXPECT_GE(Contraste(teintes.encre, aire), contrasteLisible);
      distinctes.insert(aire.rgb());
    }
    EXPECT_EQ(distinctes.size(), teintes.aires.size());
  }
}

class CarteDesVins : public testing::Test {
 protected:
  CarteDesVins() {
    carte.resize(600, 560);
    carte.surRegion = [this](std::int32_t numero) { cliquees.push_back(numero); };
    carte.show();
  }
  ~CarteDesVins() override { QApplication::setPalette(avant); }

  PlanCarte Plan() {
    return PlanDeLaCarte(carte.size(), PoliceDesNoms(carte.size(), carte.font()));
  }
  QPoint Point(std::int32_t numero) {
    const Vignoble& vignoble = vignobles[static_cast<std::size_t>(numero - premierVignoble)];
    return Plan().versEcran.map(Projection(vignoble.lieu)).toPoint();
  }
  /// Where the area and the name of a region are drawn.
  QRegion Siens(std::int32_t numero) {
    const PlanCarte plan = Plan();
    const NomPose nom = NomSurLaCarte(plan, numero, carte.size(), carte.font());
    const QPainterPath& aire =
        FormesDeLaCarte().aires[static_cast<std::size_t>(numero - premierVignoble)];
    const QRegion trait(
        QRectF(nom.trait.p1(), nom.trait.p2()).normalized().toAlignedRect().adjusted(-3, -3, 3, 3));
    return QRegion(plan.versEcran.map(aire).boundingRect().toAlignedRect().adjusted(-2, -2, 2, 2)) +
           nom.cadre.toAlignedRect().adjusted(-1, -1, 1, 1) +
           (nom.trait.isNull() ? QRegion() : trait);
  }
  void VaSur(const QPoint& ou) {
    QMouseEvent glisse(QEvent::MouseMove, ou, carte.mapToGlobal(ou), Qt::NoButton, Qt::NoButton,
                       {});
    QApplication::sendEvent(&carte, &glisse);
  }
  QImage Image() { return carte.grab().toImage(); }

  const QPalette avant = QApplication::palette();
  CarteVignobles carte{"PictureCarte", nullptr};
  std::vector<std::int32_t> cliquees;
};

TEST_F(CarteDesVins, SeNommeEtNePrendPasLeFocus) {
  EXPECT_EQ(carte.objectName(), "PictureCarte");
  EXPECT_EQ(carte.accessibleName(), Fr("Carte des vignobles de France"));
  EXPECT_EQ(carte.focusPolicy(), Qt::NoFocus);
  EXPECT_LE(carte.minimumSizeHint().width(), 200);
  EXPECT_LE(carte.minimumSizeHint().height(), 200);
}

TEST_F(CarteDesVins, UnClicSurUneRegionOuSurSonNomLaDonne) {
  const PlanCarte plan = Plan();
  ASSERT_EQ(plan.noms.size(), vignobles.size());
  for (const NomPose& nom : plan.noms) {
    cliquees.clear();
    QTest::mouseClick(&carte, Qt::LeftButton, {}, Point(nom.numero));
    QTest::mouseClick(&carte, Qt::LeftButton, {}, nom.cadre.center().toPoint());
    EXPECT_EQ(cliquees, (std::vector{nom.numero, nom.numero})) << nom.texte.toStdString();
  }
}

TEST_F(CarteDesVins, AilleursUnClicNeDonneRien) {
  QTest::mouseClick(&carte, Qt::LeftButton, {}, {5, 5});
  QTest::mouseClick(&carte, Qt::RightButton, {}, Point(champagneNumero));
  QTest::mousePress(&carte, Qt::LeftButton, {}, Point(champagneNumero));
  QTest::mouseRelease(&carte, Qt::LeftButton, {}, Point(corseNumero));
  EXPECT_TRUE(cliquees.empty());
  carte.surRegion = nullptr;
  QTest::mouseClick(&carte, Qt::LeftButton, {}, Point(champagneNumero));
}

TEST_F(CarteDesVins, LePointeurDitLeNomEntierEtMontreUneMain) {
  EXPECT_EQ(Infobulle(carte, Point(bourgogneNumero)), Fr("Bourgogne (appellations régionales)"));
  VaSur(Point(bourgogneNumero));
  EXPECT_EQ(carte.cursor().shape(), Qt::PointingHandCursor);
  EXPECT_EQ(Infobulle(carte, {5, 5}), "");
  VaSur({5, 5});
  EXPECT_EQ(carte.cursor().shape(), Qt::ArrowCursor);
}

TEST_F(CarteDesVins, CeQuiEstEnValeurChangeChezLuiSeulement) {
  const QImage sans = Image();
  for (const std::int32_t numero : {alsaceNumero, champagneNumero, bourgogneNumero, corseNumero}) {
    carte.MetEnValeur(numero);
    const QImage avec = Image();
    QRegion changes;
    for (int y = 0; y < sans.height(); ++y) {
      for (int x = 0; x < sans.width(); ++x) {
        changes += sans.pixel(x, y) == avec.pixel(x, y) ? QRegion() : QRegion(x, y, 1, 1);
      }
    }
    EXPECT_TRUE(changes.contains(Point(numero))) << numero;
    EXPECT_TRUE((changes - Siens(numero)).isEmpty()) << numero;
  }
  carte.MetEnValeur(0);
  EXPECT_EQ(Image(), sans);
}

TEST_F(CarteDesVins, CeQuiEstEnValeurSeDitAuxOutilsDAssistance) {
  carte.MetEnValeur(champagneNumero);
  EXPECT_EQ(carte.accessibleDescription(), Fr("Région en valeur : Champagne"));
  for (const std::int32_t ailleurs : {0, 1, 29, -3, 32767}) {
    carte.MetEnValeur(champagneNumero);
    carte.MetEnValeur(ailleurs);
    EXPECT_EQ(carte.accessibleDescription(), "") << ailleurs;
  }
}

TEST_F(CarteDesVins, LaRegionSousLePointeurSEclaireEtSEteint) {
  const QImage sans = Image();
  VaSur(Point(champagneNumero));
  EXPECT_NE(Image(), sans);
  QEvent sort(QEvent::Leave);
  QApplication::sendEvent(&carte, &sort);
  EXPECT_EQ(Image(), sans);
}

TEST_F(CarteDesVins, SuitLaPaletteEtLesLettres) {
  const QImage claire = Image();
  QApplication::setPalette(Sombre());
  QApplication::processEvents();
  const QImage sombre = Image();
  EXPECT_LT(sombre.pixelColor(12, 12).lightness(), claire.pixelColor(12, 12).lightness());
  QApplication::setPalette(avant);
  QApplication::processEvents();
  EXPECT_EQ(Image(), claire);
  carte.setFont(Lettres(15));
  EXPECT_NE(Image(), claire);
}

}  // namespace
}  // namespace gastrelle::essai
