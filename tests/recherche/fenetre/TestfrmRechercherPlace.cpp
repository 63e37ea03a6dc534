// The search dialog on small and dense screens, in the dark, and with texts of any length.

#include <QElapsedTimer>
#include <QImage>
#include <QScreen>

#include "doublures/EcranVirtuel.h"
#include "recherche/fenetre/DialogueRecherche.h"

namespace gastrelle::essai {
namespace {

class PlaceDeLaRecherche : public DialogueRecherche {};
INSTANTIATE_TEST_SUITE_P(Fenetres, PlaceDeLaRecherche, testing::ValuesIn(lignesRecherche),
                         NomDeLaLigne);

TEST_P(PlaceDeLaRecherche, ToutEnEstVuMemeSurUnPetitEcran) {
  OuvreTrois();
  AvecRecherche([&](const VueDialogue& vue) {
    const QRect ecran = vue.dialogue.screen()->availableGeometry();
    EXPECT_TRUE(ecran.contains(vue.dialogue.frameGeometry()));
    vue.Cherche("muscade");
    QApplication::processEvents();
    EXPECT_TRUE(ecran.contains(vue.dialogue.frameGeometry()));
    for (const char* debut : {"txtNom", "txtTexte", "cmdActiver", "cmdContinuer", "cmdAnnuler"}) {
      QWidget& controle = vue.Du(debut);
      EXPECT_EQ(controle.visibleRegion().boundingRect(), controle.rect()) << debut;
      EXPECT_GE(controle.width(), controle.minimumSizeHint().width()) << debut;
    }
    // Several lines of the text, and most of a title.
    EXPECT_GE(vue.Du("txtTexte").height(), 6 * vue.dialogue.fontMetrics().lineSpacing());
    EXPECT_GE(vue.Du("txtNom").width(), 40 * vue.dialogue.fontMetrics().averageCharWidth());
  });
  if (!qEnvironmentVariableIsSet("QT_SCALE_FACTOR")) {
    const QString nom =
        QStringLiteral("Fenetres/PlaceDeLaRecherche.ToutEnEstVuMemeSurUnPetitEcran/") +
        QLatin1String(ligne.nom);
    EXPECT_EQ(RejoueSurUnEcranDe({640, 480}, 1, nom), 0);
    EXPECT_EQ(RejoueSurUnEcranDe({1280, 960}, 2, nom), 0);
  }
}

TEST_P(PlaceDeLaRecherche, LaBoiteAgrandieDonneSaPlaceAuTexte) {
  OuvreTrois();
  AvecRecherche([&](const VueDialogue& vue) {
    vue.Cherche("muscade");
    QApplication::processEvents();
    const QSize texte = vue.Du("txtTexte").size();
    vue.dialogue.resize(vue.dialogue.size() + QSize(100, 120));
    QApplication::processEvents();
    EXPECT_EQ(vue.Du("txtTexte").size(), texte + QSize(100, 120));
  });
}

TEST_P(PlaceDeLaRecherche, DansLeSombreToutSeLit) {
  const QPalette avant = QApplication::palette();
  QPalette sombre(QColor(45, 45, 48), QColor(37, 37, 38));
  OuvreTrois();
  QApplication::setPalette(sombre);
  AvecRecherche([&](const VueDialogue& vue) {
    vue.Cherche("noix");
    QApplication::processEvents();
    for (const char* debut : {"txtNom", "txtTexte"}) {
      const QWidget& boite = vue.Du(debut);
      EXPECT_LT(boite.palette().color(QPalette::Base).lightness(), 128) << debut;
      EXPECT_GT(boite.palette().color(QPalette::Text).lightness(), 128) << debut;
    }
    const QImage image = vue.dialogue.grab().toImage();
    EXPECT_LT(image.pixelColor(2, 2).lightness(), 128);
  });
  QApplication::setPalette(avant);
}

TEST_P(PlaceDeLaRecherche, UnTexteTresLongSeMontreEntierDepuisSonDebut) {
  constexpr qint64 patienceMs = 60'000;
  b.Garnit();
  for (const std::size_t lignes : {1000U, 100000U}) {
    std::string texte;
    for (std::size_t i = 0; i < lignes; ++i) {
      texte += "Ajouter un peu de farine.....\n";
    }
    Ajoute(lignes == 1000 ? "Court" : "Long", texte + "muscade", "Zestes");
  }
  Ajoute("Zut", "", "Zestes");
  OuvreSurLaFenetre();
  QElapsedTimer depuis;
  depuis.start();
  AvecRecherche([&](const VueDialogue& vue) {
    for (const char* titre : {"Court", "Long"}) {
      titre == std::string("Court") ? vue.Cherche("muscade") : vue.Continue();
      EXPECT_EQ(vue.titre().trimmed(), titre);
      auto& boite = vue.Du<QPlainTextEdit>("txtTexte");
      EXPECT_EQ(boite.toPlainText().size(),
                30 * (titre == std::string("Court") ? 1000 : 100000) + 7);
      EXPECT_TRUE(boite.hasFocus());
      // From its beginning, nothing of it selected.
      EXPECT_EQ(boite.textCursor().position(), 0);
      EXPECT_FALSE(boite.textCursor().hasSelection());
      QApplication::processEvents();
      Frappe(Qt::Key_End, Qt::ControlModifier);
      EXPECT_TRUE(vue.visible());
    }
  });
  EXPECT_LT(depuis.elapsed(), patienceMs);
  EXPECT_FALSE(b.module->erreurFatale);
}

TEST_P(PlaceDeLaRecherche, UneFicheTrouveeSeLitMaisNeSEcritPas) {
  OuvreTrois();
  AvecRecherche([&](const VueDialogue& vue) {
    vue.Cherche("noix");
    for (const char* debut : {"txtNom", "txtTexte"}) {
      const QString avant = Texte(vue.Du(debut));
      Tape(vue.Du(debut), "xyz");
      QTest::keyClick(&vue.Du(debut), Qt::Key_Delete);
      EXPECT_EQ(Texte(vue.Du(debut)), avant) << debut;
    }
  });
}

}  // namespace
}  // namespace gastrelle::essai
