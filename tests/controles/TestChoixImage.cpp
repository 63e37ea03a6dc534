// The file dialog for a recipe's picture, through its controls.

#include <QComboBox>
#include <QFileDialog>
#include <QLineEdit>
#include <QTest>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "controles/ChoixImage.h"
#include "data/Texte1252.h"
#include "doublures/ApplicationEssai.h"
#include "doublures/Bibliotheque.h"
#include "doublures/Ecran.h"

namespace gastrelle::essai {
namespace {

class ChoixDImage : public testing::Test {
 protected:
  ChoixDImage() { b.Demarre(); }

  /// Opens the dialog and does `gestes` on it; what was chosen.
  std::optional<std::string> Choisit(const std::function<void(QFileDialog&)>& gestes) {
    std::optional<std::string> choisie;
    AvecDialogue([&] { choisie = ChoisitImage(*b.module, nullptr); },
                 [&](QDialog& dialogue) { gestes(dynamic_cast<QFileDialog&>(dialogue)); });
    return choisie;
  }

  static std::function<void(QFileDialog&)> Prend(const QString& nom) {
    return [nom](QFileDialog& dialogue) {
      Remplace(Trouve(dialogue, "fileNameEdit"), nom);
      static_cast<QDialog&>(dialogue).accept();
      EXPECT_FALSE(dialogue.isVisible());
    };
  }

  /// The names that the dialog shows, once it shows `nombre` of them.
  static QStringList Montres(QFileDialog& dialogue, int nombre) {
    const auto& liste = Trouve<QAbstractItemView>(dialogue, "listView");
    const auto noms = [&] {
      QStringList vus;
      for (int i = 0; i < liste.model()->rowCount(liste.rootIndex()); ++i) {
        vus << liste.model()->index(i, 0, liste.rootIndex()).data().toString();
      }
      vus.sort();
      return vus;
    };
    static_cast<void>(QTest::qWaitFor([&] { return noms().size() == nombre; }, 1000));
    return noms();
  }

  Bibliotheque b;
};

TEST_F(ChoixDImage, LeDialogueASonNomEtSonTitre) {
  Choisit([](QFileDialog& dialogue) {
    EXPECT_EQ(dialogue.objectName(), "CommonDialog1");
    EXPECT_EQ(dialogue.windowTitle(), "Rechercher une image");
    EXPECT_EQ(dialogue.acceptMode(), QFileDialog::AcceptOpen);
    EXPECT_EQ(dialogue.fileMode(), QFileDialog::ExistingFile);
    EXPECT_EQ(Texte(Trouve(dialogue, "fileNameEdit")), "");
  });
}

TEST_F(ChoixDImage, LeDialogueSOuvreSurLeDossierDesImages) {
  Choisit([&](QFileDialog& dialogue) {
    EXPECT_EQ(dialogue.directory().path().toStdString(), (b.dossier.chemin() / "IMAGE").string());
  });
}

TEST_F(ChoixDImage, LesSixFiltresSontDansLeurOrdreLePremierChoisi) {
  Choisit([](QFileDialog& dialogue) {
    const auto& filtres = Trouve<QComboBox>(dialogue, "fileTypeCombo");
    EXPECT_EQ(Textes(filtres),
              (QStringList{"(*.JPG) JPEG-Fichiers", "(*.GIF) Compuserve GIF",
                           "(*.BMP) Bitmap Windows", Fr("(*.WMF) Méta-fichier Windows"),
                           Fr("(*.EMF) Méta-fichier étendu Windows"), "Tous fichiers (*.*)"}));
    EXPECT_EQ(filtres.currentIndex(), 0);
  });
}

TEST_F(ChoixDImage, UnFiltreNeRegardePasLaCasse) {
  for (const char* nom : {"a.jpg", "b.JPG", "c.Jpg", "d.gif", "e.txt", "sans"}) {
    b.dossier.Ecrit(std::string("IMAGE/") + nom, "x");
  }
  Choisit([](QFileDialog& dialogue) {
    EXPECT_EQ(Montres(dialogue, 3), (QStringList{"a.jpg", "b.JPG", "c.Jpg"}));
    auto& filtres = Trouve<QComboBox>(dialogue, "fileTypeCombo");
    essai::Choisit(filtres, 1);
    EXPECT_EQ(Montres(dialogue, 1), QStringList{"d.gif"});
    essai::Choisit(filtres, 5);
    EXPECT_EQ(Montres(dialogue, 6).size(), 6);
  });
}

TEST_F(ChoixDImage, AnnulerNeDonneRien) {
  b.dossier.Ecrit("IMAGE/a.jpg", "x");
  EXPECT_EQ(Choisit([](QFileDialog& dialogue) {
              dialogue.selectFile("a.jpg");
              static_cast<QDialog&>(dialogue).reject();
            }),
            std::nullopt);
}

TEST_F(ChoixDImage, OuvrirDonneLeChemin) {
  b.dossier.Ecrit("IMAGE/a.jpg", "x");
  EXPECT_EQ(Choisit(Prend("a.jpg")), b.module->chemins.De("IMAGE/a.jpg"));
  EXPECT_EQ(b.messages.bips, 0);
}

TEST_F(ChoixDImage, UnFichierDAilleursGardeSonChemin) {
  const DossierEssai ailleurs;
  ailleurs.Ecrit("a.jpg", "x");
  EXPECT_EQ(Choisit([&](QFileDialog& dialogue) {
              dialogue.setDirectory(QString::fromStdString(ailleurs.chemin().string()));
              Prend("a.jpg")(dialogue);
            }),
            (ailleurs.chemin() / "a.jpg").string());
}

TEST_F(ChoixDImage, UnNomAccentueSeRangeTelQuel) {
  b.dossier.Ecrit("IMAGE/crème.jpg", "x");
  EXPECT_EQ(Choisit(Prend(Fr("crème.jpg"))),
            b.module->chemins.De("IMAGE/") + std::string("crème.jpg"_1252));
  EXPECT_EQ(b.messages.bips, 0);
}

TEST_F(ChoixDImage, UnNomQuiNeSeRangePasBipe) {
  b.dossier.Ecrit("IMAGE/寿司.jpg", "x");
  EXPECT_EQ(Choisit(Prend(Fr("寿司.jpg"))), b.module->chemins.De("IMAGE/??.jpg"));
  EXPECT_EQ(b.messages.bips, 1);
}

}  // namespace
}  // namespace gastrelle::essai
