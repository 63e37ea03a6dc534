// The backup dialog, through its controls.

#include <QKeyEvent>
#include <QTest>
#include <QTimer>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "controles/Conversion.h"
#include "doublures/ApplicationEssai.h"
#include "doublures/Bibliotheque.h"
#include "doublures/Ecran.h"
#include "maintenance/frmSauvegarde.h"

namespace gastrelle::essai {
namespace {

using testing::IsEmpty;
using testing::SizeIs;

class DialogueSauvegarde : public testing::Test {
 protected:
  void SetUp() override {
    b.Demarre();
    dialogue = std::make_unique<frmSauvegarde>(*b.module);
  }

  void MontreEtAttend() {
    dialogue->show();
    EXPECT_TRUE(QTest::qWaitFor([&] { return ok().isVisible() || !dialogue->isVisible(); }));
  }

  QWidget& ok() { return Trouve(*dialogue, "cmdOk"); }
  QString Tache() { return Texte(Trouve(*dialogue, "lblTache")); }

  Bibliotheque b;
  std::unique_ptr<frmSauvegarde> dialogue;
};

TEST_F(DialogueSauvegarde, PorteLeTitreEtLesTextesFixes) {
  EXPECT_EQ(dialogue->windowTitle(), "Gastrelle 2005");
  QStringList textes;
  for (const QLabel* etiquette : dialogue->findChildren<QLabel*>()) {
    textes << etiquette->text();
  }
  EXPECT_THAT(textes, testing::IsSupersetOf({Fr("Copie de sécurité des fichiers de données"),
                                             Fr("dans le dossier :"), Fr("en cours...")}));
  EXPECT_EQ(Texte(ok()), "&OK");
}

TEST_F(DialogueSauvegarde, LeCheminSeLitEnMinuscules) {
  const QString attendu = VersQt(b.module->chemins.cheminAppli()).toLower() + "sauve";
  EXPECT_EQ(Texte(Trouve(*dialogue, "txtChemin")), attendu);
}

TEST_F(DialogueSauvegarde, RienNEstCopieAvantQuIlSoitMontre) {
  QApplication::processEvents();
  EXPECT_FALSE(b.dossier.A("SAUVE"));
  EXPECT_EQ(Tache(), "en cours...");
}

TEST_F(DialogueSauvegarde, RienNeFermeLeDialogueAvantLaFinDeLaCopie) {
  dialogue->show();
  EXPECT_FALSE(ok().isVisible());
  QTest::keyClick(dialogue.get(), Qt::Key_Escape);
  EXPECT_TRUE(dialogue->isVisible());
  dialogue->close();
  EXPECT_TRUE(dialogue->isVisible());
}

TEST_F(DialogueSauvegarde, LaCopieReussieSeDitEtOkALeFocus) {
  b.pointeur.Sablier();
  MontreEtAttend();
  EXPECT_TRUE(b.dossier.A("SAUVE/GLR4.DAT"));
  EXPECT_EQ(Tache(), Fr("effectuée avec succès"));
  EXPECT_TRUE(ok().isVisible());
  EXPECT_EQ(dialogue->focusWidget(), &ok());
  EXPECT_FALSE(b.pointeur.sablier);
}

TEST_F(DialogueSauvegarde, LeSablierDureAutantQueLaCopie) {
  b.pointeur.Normal();
  int appels = 0;
  b.disque.pendant = [&](const std::string&) {
    ++appels;
    EXPECT_TRUE(b.pointeur.sablier) << b.disque.journal().back();
  };
  MontreEtAttend();
  EXPECT_GE(appels, 6);
  EXPECT_FALSE(b.pointeur.sablier);
}

TEST_F(DialogueSauvegarde, UneToucheFrappeePendantLaCopieNeLaCachePasAuLecteur) {
  b.disque.pendant = [&](const std::string&) {
    for (const int touche : {Qt::Key_Return, Qt::Key_Escape}) {
      QApplication::postEvent(dialogue.get(),
                              new QKeyEvent(QEvent::KeyPress, touche, Qt::NoModifier));
    }
  };
  MontreEtAttend();
  EXPECT_TRUE(ok().isVisible());
  EXPECT_EQ(Tache(), Fr("effectuée avec succès"));
}

TEST_F(DialogueSauvegarde, LaCopieCommenceAussiOuPersonneNePeutVoirLeDialogue) {
  dialogue->setUpdatesEnabled(false);
  MontreEtAttend();
  EXPECT_TRUE(b.dossier.A("SAUVE/GLR4.DAT"));
}

TEST_F(DialogueSauvegarde, UneCopieManqueeRendAussiLePointeur) {
  b.disque.EchoueSur("copie GLR2.DAT", Panne::disquePlein);
  MontreEtAttend();
  EXPECT_FALSE(b.pointeur.sablier);
}

TEST_F(DialogueSauvegarde, OkFermeLeDialogue) {
  MontreEtAttend();
  Clique(ok());
  EXPECT_FALSE(dialogue->isVisible());
}

TEST_F(DialogueSauvegarde, LaCroixFermeUneFoisLaCopieFaite) {
  MontreEtAttend();
  dialogue->close();
  EXPECT_FALSE(dialogue->isVisible());
}

TEST_F(DialogueSauvegarde, LaCopieNeSeFaitQuUneFois) {
  MontreEtAttend();
  dialogue->hide();
  b.disque.OublieJournal();
  MontreEtAttend();
  EXPECT_THAT(b.disque.journal(), IsEmpty());
}

TEST_F(DialogueSauvegarde, UneCopieManqueeFaitDisparaitreLeDialogueSansUnMot) {
  b.disque.EchoueSur("copie GLR3.DAT", Panne::disquePlein);
  const int resultat = dialogue->exec();
  EXPECT_EQ(resultat, QDialog::Rejected);
  EXPECT_FALSE(dialogue->isVisible());
  EXPECT_THAT(b.messages.vus, IsEmpty());
  EXPECT_TRUE(b.dossier.A("SAUVE/GLR2.DAT"));
  EXPECT_FALSE(b.dossier.A("SAUVE/GLR3.DAT"));
}

TEST_F(DialogueSauvegarde, ModalIlAttendLeClicSurOk) {
  bool fini = false;
  QTimer::singleShot(0, [&] {
    EXPECT_TRUE(QTest::qWaitFor([&] { return ok().isVisible(); }));
    fini = Tache() == Fr("effectuée avec succès");
    Clique(ok());
  });
  EXPECT_EQ(dialogue->exec(), QDialog::Accepted);
  EXPECT_TRUE(fini);
  EXPECT_THAT(b.disque.changements(), SizeIs(5));
}

}  // namespace
}  // namespace gastrelle::essai
