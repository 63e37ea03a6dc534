// The buttons of pages and dialogs, the logo band, the focus.

#include <QTest>
#include <gtest/gtest.h>

#include "controles/BandeauLogo.h"
#include "controles/Boutons.h"
#include "controles/Focus.h"
#include "doublures/EcouteF1.h"
#include "doublures/Ecran.h"
#include "doublures/LecteurEcran.h"

namespace gastrelle::essai {
namespace {

class Pied : public testing::Test {
 protected:
  Pied() { page.setLayout(pied); }

  QWidget page;
  PiedBoutons* pied = new PiedBoutons;
  int clics = 0;
};

TEST_F(Pied, ChaqueVerbeASonTitreSonInfobulleEtSonImage) {
  const PiedBoutons::Action compte = [this] { ++clics; };
  const std::array<QPushButton*, 5> boutons{
      pied->Valide("cmdValide", u"Valider les saisies", compte), pied->Efface("cmdEfface", compte),
      pied->Reinitialise("cmdReinitialise", compte),
      pied->Supprime("cmdSupprime", u"Supprimer le menu", compte),
      pied->Affiche("cmdActiver", u"Afficher le fromage", compte)};
  const QStringList attendus{
      "cmdValide|&Valider|Valider les saisies", "cmdEfface|Effa&cer|Effacer toutes les saisies",
      Fr("cmdReinitialise|Ré&initialiser|Réinitialiser"),
      "cmdSupprime|&Supprimer|Supprimer le menu", "cmdActiver|Affi&cher|Afficher le fromage"};
  page.show();
  for (std::size_t i = 0; i < boutons.size(); ++i) {
    QPushButton& bouton = *boutons[i];
    EXPECT_EQ(bouton.objectName() + u'|' + bouton.text() + u'|' + bouton.toolTip(),
              attendus[static_cast<qsizetype>(i)]);
    EXPECT_EQ(Dit(bouton, QAccessible::Name), bouton.text().remove(u'&'));
    EXPECT_EQ(Dit(bouton, QAccessible::Description), bouton.toolTip());
    EXPECT_FALSE(bouton.icon().isNull());
    Clique(*boutons[i]);
    EXPECT_EQ(clics, static_cast<int>(i) + 1);
  }
}

TEST_F(Pied, UnBoutonSansTitreSeNommeParSonInfobulle) {
  QPushButton* web = Bouton("PictureWeb", {}, "web", "Chercher ailleurs", &page);
  EXPECT_EQ(Dit(*web, QAccessible::Name), "Chercher ailleurs");
}

TEST_F(Pied, AfficherNAPasLImageDeValider) {
  const auto image = [](const QPushButton& bouton) { return bouton.icon().pixmap(24).toImage(); };
  const QPushButton& valide = *pied->Valide("cmdValide", u"", {});
  const QPushButton& affiche = *pied->Affiche("cmdAffiche", u"", {});
  EXPECT_FALSE(image(affiche).isNull());
  EXPECT_NE(image(affiche), image(valide));
}

TEST_F(Pied, LAideEnvoieLaToucheF1) {
  QPushButton* aide = pied->Aide("cmdAide");
  page.show();
  page.activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&page));
  const EcouteF1 ecoute;
  Clique(*aide);
  EXPECT_EQ(ecoute.appuis, 1);
  EXPECT_EQ(aide->toolTip(), "Aide");
}

TEST_F(Pied, LesBoutonsSontAuBoutDroitDansLeurOrdre) {
  const QPushButton* valide = pied->Valide("cmdValide", u"", {});
  const QPushButton* aide = pied->Aide("cmdAide");
  page.resize(900, 60);
  page.show();
  QApplication::processEvents();
  EXPECT_GT(valide->x(), 450);
  EXPECT_GT(aide->x(), valide->x());
}

TEST(Bandeau, DitSonEnteteEtSonInfobulleSansLigneNiAnnonce) {
  const BandeauLogo bandeau("logo-menus", "Mes notes", "Mes notes en vrac", nullptr);
  EXPECT_EQ(Texte(Trouve(bandeau, "Label1")), "Mes notes");
  EXPECT_EQ(Trouve(bandeau, "Image1").toolTip(), "Mes notes en vrac");
  EXPECT_FALSE(Trouve<QLabel>(bandeau, "Image1").pixmap().isNull());
  EXPECT_TRUE(bandeau.findChildren<QWidget*>("lblLigneLogo").isEmpty());
  EXPECT_TRUE(bandeau.findChildren<QPlainTextEdit*>().isEmpty());
}

TEST(Bandeau, MontreSaLigneSousLEnteteEtSonAnnonceADroite) {
  BandeauLogo bandeau("logo-menus", "Les crus", "Avec modération", nullptr);
  bandeau.AjouteLigne("Avec modération");
  bandeau.AjouteAnnonce("txtAnnonce(0)");
  bandeau.PoseAnnonce("12\r\ncrus");
  bandeau.resize(600, 80);
  bandeau.show();
  const QWidget& entete = Trouve(bandeau, "Label1");
  const QWidget& annonce = Trouve(bandeau, "txtAnnonce(0)");
  EXPECT_EQ(Texte(annonce), "12\ncrus");
  EXPECT_GT(annonce.x(), entete.geometry().center().x());
  EXPECT_GT(Trouve(bandeau, "lblLigneLogo").y(), entete.y());
}

TEST(Focus, NeVaPasAUnControleCacheOuInactif) {
  QWidget page;
  QLineEdit visible(&page);
  QWidget cadre(&page);
  QLineEdit cache(&cadre);
  QLineEdit inactif(&page);
  cadre.hide();
  inactif.setEnabled(false);
  page.show();
  DonneFocus(&visible);
  DonneFocus(&cache);
  DonneFocus(&inactif);
  EXPECT_EQ(page.focusWidget(), &visible);
}

TEST(Focus, AttendQueLaFenetreSeMontre) {
  QWidget page;
  const QLineEdit premier(&page);
  QLineEdit second(&page);
  DonneFocus(&second);
  page.show();
  page.activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&page));
  EXPECT_TRUE(second.hasFocus());
}

}  // namespace
}  // namespace gastrelle::essai
