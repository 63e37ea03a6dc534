// The program in a folder whose name its files can't hold: whatever goes to the system is the real
// path.

#include <QFile>
#include <QFileDialog>
#include <QImage>
#include <QLabel>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "controles/ChoixImage.h"
#include "doublures/AideVue.h"
#include "doublures/FenetreEssai.h"
#include "recettes/frmRecettes.h"
#include "shell/Aide.h"
#include "shell/ImageAssociee.h"
#include "shell/frmImage.h"

namespace gastrelle::essai {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class DossierEtranger : public testing::Test {
 protected:
  DossierEtranger() {
    b.Demarre();
    EcouteMessages(&b.messages);
    b.module->contexteActif = 11;
    b.dossier.Ecrit("IMAGE/a.jpg", "x");
  }
  ~DossierEtranger() override { EcouteMessages(nullptr); }

  [[nodiscard]] std::string Vrai(const char* nom) const {
    return (b.dossier.chemin() / nom).string();
  }

  Bibliotheque b{"łukasz"};
};

TEST_F(DossierEtranger, LeVisualisateurYTrouveLImage) {
  QImage image(300, 200, QImage::Format_RGB32);
  image.fill(Qt::darkGreen);
  ASSERT_TRUE(image.save(QString::fromStdString(Vrai("IMAGE/a.jpg")), "PNG"));
  frmImage fenetre(*b.module, b.module->chemins.De("IMAGE/a.jpg"), nullptr);
  fenetre.show();
  QApplication::processEvents();
  EXPECT_TRUE(fenetre.isVisible());
  EXPECT_EQ(Trouve<QLabel>(fenetre, "Picture1").pixmap().size(), QSize(300, 200));
}

TEST_F(DossierEtranger, LImageAssocieeSOuvreParSonVraiChemin) {
  OuvreImageAssociee(*b.module, b.module->chemins.De("IMAGE/a.jpg"));
  EXPECT_THAT(b.association.cibles, ElementsAre(Vrai("IMAGE/a.jpg")));
  EXPECT_THAT(b.messages.vus, IsEmpty());
}

TEST_F(DossierEtranger, LAideSYOuvre) {
  ASSERT_TRUE(QFile::copy(QStringLiteral(FICHIER_AIDE), QString::fromStdString(Vrai("gl32.hlp"))));
  Aide aide(*b.module);
  aide.Ouvre("cadre");
  EXPECT_EQ(SujetAide(), "cadre");
  EXPECT_THAT(b.messages.vus, IsEmpty());
}

TEST_F(DossierEtranger, UnOngletRefuseYTrouveSonSon) {
  CadreEssai cadre(*b.module);
  frmRecettes fenetre(*b.module, cadre);
  fenetre.show();
  fenetre.Active();
  CliqueOnglet(fenetre, 5);
  CliqueOnglet(fenetre, 3);
  EXPECT_THAT(b.son.joues, ElementsAre(Vrai("Exclamation")));
}

TEST_F(DossierEtranger, LeChoixDUneImagePartDeSonDossierEtYRevient) {
  std::optional<std::string> choisie;
  AvecDialogue([&] { choisie = ChoisitImage(*b.module, nullptr); },
               [&](QDialog& dialogue) {
                 EXPECT_EQ(dynamic_cast<QFileDialog&>(dialogue).directory().path().toStdString(),
                           Vrai("IMAGE"));
                 Remplace(Trouve(dialogue, "fileNameEdit"), "a.jpg");
                 dialogue.accept();
               });
  EXPECT_EQ(choisie, b.module->chemins.De("IMAGE/a.jpg"));
  EXPECT_EQ(b.messages.bips, 0);
}

}  // namespace
}  // namespace gastrelle::essai
