// The preferences dialog, through its controls.

#include <QLabel>
#include <QRadioButton>
#include <QTest>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "data/Texte1252.h"
#include "doublures/ApplicationEssai.h"
#include "doublures/Bibliotheque.h"
#include "doublures/Ecran.h"
#include "maintenance/frmPreferences.h"

namespace gastrelle::essai {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;

class DialoguePreferences : public testing::Test {
 protected:
  void SetUp() override {
    b.Demarre();
    OublieFin();
    EcouteMessages(&b.messages);
  }

  void Ouvre(RecPreferences enVigueur = {}) {
    b.module->prefs[0] = enVigueur;
    dialogue = std::make_unique<frmPreferences>(*b.module, nullptr);
    dialogue->show();
  }

  QRadioButton& Option(const char* nom) { return Trouve<QRadioButton>(*dialogue, nom); }
  std::string Fichier() { return b.dossier.Lit("GLPREF.DAT"); }
  std::string EnVigueur() { return Octets(b.module->prefs[0]); }

  Bibliotheque b;
  std::unique_ptr<frmPreferences> dialogue;
};

TEST_F(DialoguePreferences, PorteLeTitreDeLApplicationEtLeSien) {
  Ouvre();
  EXPECT_EQ(dialogue->windowTitle(), Fr("Gastrelle 2005 - Préférences"));
}

TEST_F(DialoguePreferences, LesLegendesOntLeursPointsDeConduite) {
  Ouvre();
  QStringList legendes;
  for (const QLabel* legende : dialogue->findChildren<QLabel*>()) {
    legendes << legende->text();
  }
  EXPECT_THAT(
      legendes,
      ElementsAre(
          Fr("Fenêtre \"Recettes\" maximalisée lors de l'ouverture du logiciel") +
              QString(27, u'.'),
          Fr("Impression des recettes en police corps") + QString(51, u'.'),
          Fr("Copie de sécurité des fichiers de données lors de la fermeture du logiciel")));
}

TEST_F(DialoguePreferences, AucuneLegendeNEstCoupee) {
  Ouvre();
  for (const QLabel* legende : dialogue->findChildren<QLabel*>()) {
    EXPECT_GE(legende->width(), legende->fontMetrics().horizontalAdvance(legende->text()));
  }
}

TEST_F(DialoguePreferences, LesOptionsEtLesBoutonsOntLeursTextes) {
  Ouvre();
  EXPECT_EQ(Option("OptFenetre(0)").text(), "Oui");
  EXPECT_EQ(Option("OptFenetre(1)").text(), "Non");
  EXPECT_EQ(Option("OptPolice(0)").text(), "10");
  EXPECT_EQ(Option("OptPolice(1)").text(), "20");
  EXPECT_EQ(Option("OptSauve(0)").text(), "Oui");
  EXPECT_EQ(Option("OptSauve(1)").text(), "Non");
  EXPECT_EQ(Texte(Trouve(*dialogue, "cmdOk")), "&OK");
  EXPECT_EQ(Texte(Trouve(*dialogue, "cmdAnnuler")), "A&nnuler");
  EXPECT_EQ(Texte(Trouve(*dialogue, "cmdAide")), "&Aide");
}

TEST_F(DialoguePreferences, MontreLesPreferencesEnVigueur) {
  Ouvre({1, 0, 1});
  EXPECT_TRUE(Option("OptFenetre(1)").isChecked());
  EXPECT_TRUE(Option("OptPolice(0)").isChecked());
  EXPECT_TRUE(Option("OptSauve(1)").isChecked());
}

TEST_F(DialoguePreferences, ToutAutreNombreQueZeroChoisitLaSecondeOption) {
  Ouvre({-1, 2, 32767});
  EXPECT_TRUE(Option("OptFenetre(1)").isChecked());
  EXPECT_TRUE(Option("OptPolice(1)").isChecked());
  EXPECT_TRUE(Option("OptSauve(1)").isChecked());
}

TEST_F(DialoguePreferences, OkRecritCesNombresEnUn) {
  Ouvre({-1, 2, 0});
  Clique(Trouve(*dialogue, "cmdOk"));
  EXPECT_EQ(Fichier(), std::string("\1\0\1\0\0\0", 6));
  EXPECT_EQ(EnVigueur(), std::string("\1\0\1\0\0\0", 6));
  EXPECT_FALSE(dialogue->isVisible());
}

TEST_F(DialoguePreferences, ChaquePaireSeChoisitSansToucherAuxAutres) {
  Ouvre();
  Option("OptPolice(1)").click();
  EXPECT_FALSE(Option("OptPolice(0)").isChecked());
  EXPECT_TRUE(Option("OptFenetre(0)").isChecked());
  EXPECT_TRUE(Option("OptSauve(0)").isChecked());
  Clique(Trouve(*dialogue, "cmdOk"));
  EXPECT_EQ(Fichier(), std::string("\0\0\1\0\0\0", 6));
}

TEST_F(DialoguePreferences, LaSauvegardeRefuseeEstEnVigueurAussitot) {
  Ouvre();
  Option("OptSauve(1)").click();
  Clique(Trouve(*dialogue, "cmdOk"));
  EXPECT_EQ(b.module->prefs[0].sansCopie, 1);
}

TEST_F(DialoguePreferences, EntreeValideCommeOk) {
  Ouvre();
  Option("OptFenetre(1)").click();
  QTest::keyClick(dialogue.get(), Qt::Key_Return);
  EXPECT_EQ(Fichier(), std::string("\1\0\0\0\0\0", 6));
}

TEST_F(DialoguePreferences, AnnulerNeChangeRien) {
  Ouvre();
  b.disque.OublieJournal();
  Option("OptSauve(1)").click();
  Clique(Trouve(*dialogue, "cmdAnnuler"));
  EXPECT_FALSE(dialogue->isVisible());
  EXPECT_THAT(b.disque.journal(), IsEmpty());
  EXPECT_EQ(EnVigueur(), std::string(6, '\0'));
}

TEST_F(DialoguePreferences, EchappeCommeAnnuler) {
  Ouvre();
  Option("OptSauve(1)").click();
  QTest::keyClick(dialogue.get(), Qt::Key_Escape);
  EXPECT_FALSE(dialogue->isVisible());
  EXPECT_EQ(Fichier(), std::string(6, '\0'));
}

TEST_F(DialoguePreferences, UnFichierDisparuSeDitLeDialogueEncoreLa) {
  Ouvre();
  b.dossier.Supprime("GLPREF.DAT");
  bool visible = false;
  b.messages.pendant = [&] { visible = dialogue->isVisible(); };
  Option("OptFenetre(1)").click();
  Clique(Trouve(*dialogue, "cmdOk"));
  EXPECT_TRUE(visible);
  EXPECT_FALSE(dialogue->isVisible());
  EXPECT_THAT(
      b.messages.vus,
      ElementsAre(MessageVu{
          std::string("Erreur E/S disque. Les modifications n'ont pas été prises en compte."_1252),
          Icone::critique, "Gastrelle 2005"}));
  EXPECT_EQ(EnVigueur(), std::string(6, '\0'));
}

TEST_F(DialoguePreferences, OkUneSecondeFoisRecreeLeFichier) {
  Ouvre();
  b.dossier.Supprime("GLPREF.DAT");
  Clique(Trouve(*dialogue, "cmdOk"));
  Ouvre();
  Option("OptPolice(1)").click();
  Clique(Trouve(*dialogue, "cmdOk"));
  EXPECT_EQ(Fichier(), std::string("\0\0\1\0\0\0", 6));
  EXPECT_THAT(b.disque.journal(), Contains("ouvre GLPREF.DAT"));
}

}  // namespace
}  // namespace gastrelle::essai
