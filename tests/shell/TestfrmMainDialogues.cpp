// What the frame opens beside its child windows: the viewer, the preferences, the about dialog, the
// help.

#include <QImage>
#include <QTest>

#include "doublures/AideVue.h"
#include "doublures/CadreVrai.h"
#include "shell/Aide.h"

namespace gastrelle::essai {
namespace {

using testing::ElementsAre;

class DialoguesDuCadre : public CadreVrai {
 protected:
  /// Runs `ouvre` and expects a modal dialog of that name, owned by the frame.
  void AttendDialogue(
      const char* nom, const std::function<void()>& ouvre,
      const std::function<void(QDialog&)>& regarde = [](QDialog&) {}) {
    AvecDialogue(ouvre, [&](QDialog& dialogue) {
      EXPECT_EQ(dialogue.objectName(), nom);
      EXPECT_TRUE(dialogue.isModal());
      EXPECT_EQ(dialogue.parentWidget(), cadre.get());
      regarde(dialogue);
    });
  }
};

TEST_F(DialoguesDuCadre, LesPreferencesSOuvrentModales) {
  Ouvre();
  AttendDialogue("frmPreferences", [&] { Choisit("mnuFilePreferences"); });
}

TEST_F(DialoguesDuCadre, LAProposSOuvreModal) {
  Ouvre();
  AttendDialogue("frmAbout", [&] { Choisit("mnuHelpAbout"); });
}

/// Two recipes, each with its picture; the second one of the list is on display.
class ImageDuCadre : public DialoguesDuCadre {
 protected:
  void SetUp() override {
    std::filesystem::create_directory(b.dossier.chemin() / "IMAGE");
    for (const char* nom : {"a.png", "b.png"}) {
      QImage image(300, 200, QImage::Format_RGB32);
      image.fill(Qt::darkGreen);
      ASSERT_TRUE(
          image.save(QString::fromStdString((b.dossier.chemin() / "IMAGE" / nom).string()), "PNG"));
    }
    b.AjouteRecette(2, "Avec a", {}, "/a.png");
    b.AjouteRecette(2, "Avec b", {}, "/b.png");
    Ouvre();
    essai::Choisit(Le<QComboBox>("ComboRecettes"), "Avec b");
  }

  void AttendLImageB(const std::function<void()>& ouvre) {
    b.pointeur.sabliers = 0;
    AttendDialogue("frmImage", ouvre, [&](QDialog& dialogue) {
      EXPECT_EQ(Texte(Trouve(dialogue, "lblLegende")), Fr("b.png (300 × 200)"));
      QApplication::processEvents();
      EXPECT_TRUE(dialogue.isVisible());
    });
    EXPECT_EQ(b.pointeur.sabliers, 1);
    EXPECT_FALSE(b.pointeur.sablier);
    EXPECT_THAT(b.messages.vus, testing::IsEmpty());
  }
};

TEST_F(ImageDuCadre, LeVisualisateurInterneMontreCelleDeLaRecette) {
  AttendLImageB([&] { Choisit("mnuViewImageVisuInterne"); });
}

TEST_F(ImageDuCadre, LeBoutonDeLaListeOuvreLeMemeVisualisateur) {
  AttendLImageB([&] { Clique(Le("cmdCameraListe")); });
}

TEST_F(ImageDuCadre, F1DansLeVisualisateurOuvreSaPage) {
  b.module->fichierAide = DepuisUtf8(FICHIER_AIDE);
  AttendDialogue(
      "frmImage", [&] { Choisit("mnuViewImageVisuInterne"); },
      [](QDialog& dialogue) {
        QTest::keyClick(&dialogue, Qt::Key_F1);
        EXPECT_EQ(SujetAide(), "visualisateur");
      });
}

class AideDuCadre : public CadreVrai {
 protected:
  void OuvreAvecAide() {
    OuvreGarni();
    b.module->fichierAide = DepuisUtf8(FICHIER_AIDE);
  }
};

TEST_F(AideDuCadre, LeSommaireOuvreLAccueil) {
  OuvreAvecAide();
  CliqueOnglet(Le("frmRecettes"), 2);
  Choisit("mnuHelpContents");
  EXPECT_EQ(SujetAide(), "accueil");
}

TEST_F(AideDuCadre, LeBoutonOuvreLAccueil) {
  OuvreAvecAide();
  Clique(BoutonBarre("Help"));
  EXPECT_EQ(SujetAide(), "accueil");
}

TEST_F(AideDuCadre, SansSonFichierLeSommaireDitSonErreur) {
  Ouvre();
  ASSERT_FALSE(b.dossier.A("gl32.hlp"));
  Choisit("mnuHelpContents");
  EXPECT_THAT(b.messages.vus,
              ElementsAre(MessageVu{"Fichier introuvable", Icone::aucune, "Gastrelle 2005"}));
  EXPECT_EQ(FenetreAide(), nullptr);
}

TEST_F(AideDuCadre, F1SurLesOngletsOuvreLaPageDeLOnglet) {
  OuvreAvecAide();
  for (const auto& [onglet, sujet] :
       std::vector<std::pair<int, const char*>>{{1, "recettes-liste"},
                                                {2, "recettes-ajouter"},
                                                {3, "recettes-modifier"},
                                                {4, "recettes-supprimer"},
                                                {5, "recettes-alpha"},
                                                {1, "recettes-liste"}}) {
    CliqueOnglet(Le("frmRecettes"), onglet);
    QTest::keyClick(&Trouve(Le("frmRecettes"), "TabStrip1"), Qt::Key_F1);
    EXPECT_EQ(SujetAide(), sujet);
  }
  Choisit("mnuViewMenus");
  QTest::keyClick(&Trouve(Le("frmMenus"), "TabStrip1"), Qt::Key_F1);
  EXPECT_EQ(SujetAide(), "menus-liste");
}

TEST_F(AideDuCadre, F1SurLeCadreOuvreSaPage) {
  OuvreAvecAide();
  QTest::keyClick(cadre.get(), Qt::Key_F1);
  EXPECT_EQ(SujetAide(), "cadre");
}

}  // namespace
}  // namespace gastrelle::essai
