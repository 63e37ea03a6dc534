// The export dialog once its button is pressed: the question, the writing, the messages, what the
// user does meanwhile.

#include <QDateTime>
#include <QGroupBox>
#include <QLineEdit>
#include <QPointer>
#include <QThread>
#include <QWindow>

#include "sortie/fenetre/DialogueExport.h"

namespace gastrelle::essai {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;

class EcritureDExport : public DialogueExport {
 protected:
  void TearDown() override { b.disque.pendant = nullptr; }

  /// Runs `bloc` at the first call of the disk whose line begins so.
  void Au(std::string debut, std::function<void()> bloc) {
    b.disque.pendant = [debut = std::move(debut), bloc = std::move(bloc),
                        fait = false](const std::string& ligne) mutable {
      if (!fait && ligne.starts_with(debut)) {
        fait = true;
        bloc();
      }
    };
  }
  [[nodiscard]] static MessageVu NonCree() {
    return {std::string("Impossibilté de créer un fichier temporaire."_1252), Icone::critique,
            "Gastrelle 2005"};
  }
  [[nodiscard]] std::string Cible() const { return b.disque.CheminEntier("export.doc"); }
};

TEST_F(EcritureDExport, EcritLesFamillesCocheesDansLOrdreDeLaListePuisOuvreLeDocument) {
  OuvreTrois();
  Exporte([](QDialog& dialogue) { CliqueCase(dialogue, 0); });
  EXPECT_EQ(Document(), Entete() +
                            "* Famille de recettes : ZESTES\r\n\r\n"
                            "** Recette : Citron\r\n\r\n"
                            "* Famille de recettes : ABATS\r\n\r\n"
                            "** Recette : Rognons\r\n\r\n" +
                            std::string("Au madère.\r\n\r\n"_1252));
  EXPECT_THAT(b.association.cibles, ElementsAre(Cible()));
  EXPECT_THAT(b.messages.vus, IsEmpty());
  EXPECT_THAT(b.messages.questions, IsEmpty());
  EXPECT_FALSE(b.pointeur.sablier);
}

TEST_F(EcritureDExport, EntreeDepuisLaListeExporte) {
  OuvreTrois();
  AvecExport([](QDialog& dialogue) {
    Frappe(Qt::Key_Return);
    EXPECT_FALSE(dialogue.isVisible());
  });
  EXPECT_THAT(Document(), HasSubstr("POTAGES"));
}

TEST_F(EcritureDExport, UnNonFermeSansEcrire) {
  OuvreTrois();
  b.dossier.Ecrit("export.doc", "ancien");
  b.messages.reponses = {Reponse::non};
  Exporte();
  EXPECT_EQ(Document(), "ancien");
  EXPECT_THAT(
      b.messages.questions,
      ElementsAre(std::string("Un fichier EXPORT.DOC existe déjà dans le dossier\r\n"_1252) +
                  b.module->chemins.cheminAppli() +
                  std::string("\r\nVoulez-vous l'écraser ?"_1252)));
  EXPECT_EQ(b.messages.choix, Choix::ouiNon);
  EXPECT_THAT(b.disque.changements(), IsEmpty());
  EXPECT_THAT(b.association.cibles, IsEmpty());
  EXPECT_THAT(b.messages.vus, IsEmpty());
}

TEST_F(EcritureDExport, UnOuiSupprimeLAncienPuisEcrit) {
  OuvreTrois();
  b.dossier.Ecrit("export.doc", "ancien");
  b.messages.reponses = {Reponse::oui};
  Exporte();
  ASSERT_THAT(b.disque.changements(), SizeIs(3));
  EXPECT_EQ(b.disque.changements()[0], "supprime export.doc");
  EXPECT_EQ(b.disque.changements()[1], "crée export.doc");
  EXPECT_THAT(Document(), testing::StartsWith(Entete()));
  EXPECT_THAT(b.association.cibles, SizeIs(1));
}

TEST_F(EcritureDExport, PendantLaQuestionRienNEstMontre) {
  OuvreTrois();
  bool vu = false;
  Exporte([&](QDialog& dialogue) {
    Au("existe export.doc", [&] {
      vu = true;
      EXPECT_FALSE(Trouve(dialogue, "Frame1").isVisible());
      EXPECT_FALSE(Trouve(dialogue, "Frame2").isVisible());
      EXPECT_EQ(Liste(dialogue).cursor().shape(), Qt::WaitCursor);
      EXPECT_FALSE(b.pointeur.sablier);
    });
  });
  EXPECT_TRUE(vu);
}

TEST_F(EcritureDExport, PendantLEcritureSeulLeBoutonAnnulerEstLa) {
  OuvreTrois();
  bool vu = false;
  Exporte([&](QDialog& dialogue) {
    Au("crée export.doc", [&] {
      vu = true;
      EXPECT_FALSE(Trouve(dialogue, "Frame1").isVisible());
      EXPECT_TRUE(Trouve(dialogue, "Frame2").isVisible());
      auto& stop = Trouve<QPushButton>(dialogue, "cmdStop");
      EXPECT_TRUE(stop.isVisible());
      EXPECT_TRUE(stop.isDefault());
      EXPECT_TRUE(stop.hasFocus());
      EXPECT_TRUE(b.pointeur.sablier);
    });
  });
  EXPECT_TRUE(vu);
}

TEST_F(EcritureDExport, UnEchecSeDitLaBoiteEncoreLaPuisElleSeFerme) {
  OuvreTrois();
  bool vu = false;
  Exporte([&](QDialog& dialogue) {
    b.disque.EchoueALaNiemeEcriture(1, Panne::disquePlein, Maniere::moitieEcrite);
    b.messages.pendant = [&] {
      vu = true;
      EXPECT_TRUE(dialogue.isVisible());
      EXPECT_TRUE(Trouve(dialogue, "Frame2").isVisible());
      EXPECT_FALSE(b.pointeur.sablier);
    };
  });
  EXPECT_TRUE(vu);
  EXPECT_THAT(b.messages.vus, ElementsAre(NonCree()));
  EXPECT_THAT(b.association.cibles, IsEmpty());
  EXPECT_THAT(Document(), testing::StartsWith(Entete()));
  EXPECT_FALSE(b.module->erreurFatale);
  EXPECT_EQ(FinVue(), std::nullopt);
}

TEST_F(EcritureDExport, UnDocumentQuiNePeutSeFaireSeDit) {
  OuvreTrois();
  std::filesystem::create_directory(b.dossier.chemin() / "export.doc");
  Exporte();
  EXPECT_THAT(b.messages.vus, ElementsAre(NonCree()));
  EXPECT_THAT(b.messages.questions, IsEmpty());
  EXPECT_THAT(b.association.cibles, IsEmpty());
}

TEST_F(EcritureDExport, UnFichierQuiManqueSeDitAvantLEchec) {
  OuvreTrois();
  b.dossier.Supprime("GLR3.DAT");
  Exporte();
  EXPECT_THAT(b.messages.vus,
              ElementsAre(MessageVu{"Fichier " + b.module->chemins.De("GLR3.DAT") + "\r\n" +
                                        std::string("non trouvé ou erreur disque."_1252),
                                    Icone::critique, "Gastrelle 2005"},
                          NonCree()));
  EXPECT_EQ(Document(), Entete());
}

TEST_F(EcritureDExport, SansAssociationLeDocumentEstLaEtCelaSeDit) {
  OuvreTrois();
  b.association.reponse = Ouverture::aucuneAssociation;
  Exporte();
  EXPECT_THAT(b.messages.vus,
              ElementsAre(MessageVu{
                  std::string("Aucune association n'est définie pour les fichiers *.DOC"_1252),
                  Icone::information, "Gastrelle 2005"}));
  EXPECT_THAT(b.association.cibles, ElementsAre(Cible()));
  EXPECT_THAT(Document(), HasSubstr("POTAGES"));
}

TEST_F(EcritureDExport, UneOuvertureQuiEchoueAutrementNeSeDitPas) {
  OuvreTrois();
  b.association.reponse = Ouverture::echec;
  Exporte();
  EXPECT_THAT(b.messages.vus, IsEmpty());
}

// What the user does while it writes.

/// Counts what reaches the widgets outside a dialog, and what a widget is painted.
class Guetteur final : public QObject {
 public:
  Guetteur(const QWidget& dialogue, const QWidget& peint) : dialogue_(dialogue), peint_(peint) {
    qApp->installEventFilter(this);
  }

  bool eventFilter(QObject* vers, QEvent* evenement) override {
    const QEvent::Type type = evenement->type();
    peintures += type == QEvent::Paint && vers == &peint_ ? 1 : 0;
    const bool geste = type == QEvent::KeyPress || type == QEvent::MouseButtonPress;
    if (geste && vers->isWidgetType()) {
      (static_cast<QWidget*>(vers)->window() == &dialogue_ ? gestes : gestesAilleurs) += 1;
    }
    return false;
  }

  int peintures = 0;
  int gestes = 0;
  int gestesAilleurs = 0;

 private:
  const QWidget& dialogue_;
  const QWidget& peint_;
};

class PatienceDExport : public EcritureDExport {
 protected:
  /// What the window system has for the dialog: it waits there to be fetched.
  static void Frappee(const QWidget& fenetre, int touche, const QString& lettre = {}) {
    for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease}) {
      qt_handleKeyEvent(fenetre.windowHandle(), type, touche, Qt::NoModifier, lettre);
    }
  }
  static void Cliquee(const QWidget& fenetre, const QWidget& controle) {
    const QPoint place = controle.mapTo(&fenetre, controle.rect().center());
    const QPoint ecran = fenetre.mapToGlobal(place);
    const int instant = static_cast<int>(QDateTime::currentMSecsSinceEpoch() % 100000000);
    qt_handleMouseEvent(fenetre.windowHandle(), place, ecran, Qt::LeftButton, Qt::LeftButton,
                        QEvent::MouseButtonPress, {}, instant);
    qt_handleMouseEvent(fenetre.windowHandle(), place, ecran, Qt::NoButton, Qt::LeftButton,
                        QEvent::MouseButtonRelease, {}, instant);
  }

  /// Exports by a click that comes from the window system; before the first record is read, keys
  /// and clicks come in, and the writing takes a while. `pendant` runs behind that while.
  void ExporteDerange(const std::function<void(QDialog&, Guetteur&)>& pendant) {
    constexpr unsigned long unMoment = 60;  // milliseconds
    int fermetures = 0;
    AvecDialogue([&] { Choisit("mnuFileExport"); },
                 [&](QDialog& dialogue) {
                   QApplication::processEvents();
                   QObject::connect(&dialogue, &QDialog::finished, [&] { ++fermetures; });
                   Guetteur guetteur(dialogue, Trouve(dialogue, "Frame2"));
                   b.disque.pendant = [&](const std::string& ligne) {
                     if (ligne.starts_with("lit GLR2.DAT")) {
                       guetteur.gestes = 0;
                       guetteur.peintures = 0;
                       Derange(dialogue);
                       QThread::msleep(unMoment);
                     }
                     if (ligne.starts_with("lit GLR3.DAT") && fermetures == 0) {
                       pendant(dialogue, guetteur);
                     }
                   };
                   Cliquee(dialogue, Trouve(dialogue, "cmdExport"));
                   QApplication::processEvents();
                   EXPECT_FALSE(dialogue.isVisible());
                   EXPECT_EQ(guetteur.gestesAilleurs, 0);
                 });
    Guetteur apres(*cadre, *cadre);
    QApplication::processEvents();
    EXPECT_EQ(apres.gestes + apres.gestesAilleurs, 0);
    EXPECT_EQ(fermetures, 1);
  }
  static void Derange(QDialog& dialogue) {
    Trouve(dialogue, "Frame2").update();
    Frappee(dialogue, Qt::Key_Escape);
    Cliquee(dialogue, Trouve(dialogue, "cmdStop"));
    Frappee(dialogue, Qt::Key_Space, " ");
    Frappee(dialogue, Qt::Key_A, "a");
    Frappee(dialogue, Qt::Key_Return, "\r");
  }
};

TEST_F(PatienceDExport, SePeintEtNeSeFermeQuUneFoisLeDocumentEntier) {
  OuvreTrois();
  int vus = 0;
  ExporteDerange([&](QDialog& dialogue, Guetteur& guetteur) {
    if (vus++ == 0) {
      EXPECT_GT(guetteur.peintures, 0);
    }
    EXPECT_TRUE(dialogue.isVisible());
  });
  EXPECT_GE(vus, 1);
  EXPECT_THAT(Document(), HasSubstr("POTAGES"));
  EXPECT_THAT(Document(), testing::EndsWith(std::string("Au madère.\r\n\r\n"_1252)));
  EXPECT_THAT(b.association.cibles, SizeIs(1));
}

TEST_F(PatienceDExport, LesTouchesTapeesNeTombentPasDansLeMessage) {
  OuvreTrois();
  b.association.reponse = Ouverture::aucuneAssociation;
  b.messages.pendant = [&] {
    QDialog message(QApplication::activeWindow());
    QLineEdit saisie(&message);
    message.setModal(true);
    message.show();
    message.activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&message));
    QApplication::processEvents();
    EXPECT_TRUE(message.isVisible());
    EXPECT_EQ(saisie.text(), "");
  };
  ExporteDerange([](QDialog&, Guetteur&) {});
  EXPECT_THAT(b.messages.vus, SizeIs(1));
}

// The close box, and whatever gets through all the same.
TEST_F(PatienceDExport, RienNeFermeLaBoiteTantQueLeDocumentNEstPasEntier) {
  OuvreTrois();
  bool vu = false;
  Exporte([&](QDialog& dialogue) {
    Au("lit GLR3.DAT", [&] {
      vu = true;
      EXPECT_FALSE(dialogue.close());
      QTest::keyClick(&dialogue, Qt::Key_Escape);
      Clique(Trouve(dialogue, "cmdStop"));
      EXPECT_TRUE(dialogue.isVisible());
    });
  });
  EXPECT_TRUE(vu);
  EXPECT_THAT(Document(), testing::EndsWith(std::string("Au madère.\r\n\r\n"_1252)));
}

}  // namespace
}  // namespace gastrelle::essai
