// The search dialog over each of its windows: its texts, its states, its messages, the keyboard,
// the help.

#include <QGroupBox>
#include <QTextBrowser>
#include <QThread>

#include "doublures/AideVue.h"
#include "recherche/fenetre/DialogueRecherche.h"
#include "shell/FichierAide.h"

namespace gastrelle::essai {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// Counts how often a widget is painted.
class Peintures final : public QObject {
 public:
  explicit Peintures(QWidget& peint) { peint.installEventFilter(this); }

  bool eventFilter(QObject* /*vers*/, QEvent* evenement) override {
    nombre += evenement->type() == QEvent::Paint ? 1 : 0;
    return false;
  }

  int nombre = 0;
};

class BoiteRecherche : public DialogueRecherche {
 protected:
  /// Where the Tab key goes from the control in focus, and back to it.
  static QString Tour() {
    QStringList tour;
    do {
      tour << QApplication::focusWidget()->objectName();
      Frappe(Qt::Key_Tab);
    } while (tour.front() != QApplication::focusWidget()->objectName() && tour.size() < 20);
    return tour.join(u' ');
  }
  [[nodiscard]] QString NomsDu(std::initializer_list<const char*> debuts) const {
    QStringList noms;
    for (const char* debut : debuts) {
      noms << QLatin1String(debut) + QLatin1String(ligne.suffixe);
    }
    return noms.join(u' ');
  }
  static QStringList TouchesDAcces(const QDialog& dialogue) {
    QStringList touches;
    for (const auto* bouton : dialogue.findChildren<QPushButton*>()) {
      if (bouton->isVisible() && bouton->isEnabled()) {
        touches << bouton->shortcut().toString();
      }
    }
    touches.sort();
    return touches;
  }
  /// Every control that the keyboard reaches opens its own paragraph by F1.
  void AttendParagraphes(const VueDialogue& vue, const QStringList& noms) {
    for (const QString& nom : noms) {
      vue.dialogue.activateWindow();
      Trouve(vue.dialogue, nom.toUtf8()).setFocus();
      Frappe(Qt::Key_F1);
      EXPECT_EQ(SujetAide(), "rechercher");
      EXPECT_EQ(Trouve<QTextBrowser>(*FenetreAide(), "txtPage").source().fragment(), nom);
    }
    vue.dialogue.activateWindow();
  }
};
INSTANTIATE_TEST_SUITE_P(Fenetres, BoiteRecherche, testing::ValuesIn(lignesRecherche),
                         NomDeLaLigne);

TEST_P(BoiteRecherche, PorteSesTextes) {
  OuvreTrois();
  AvecRecherche([&](const VueDialogue& vue) {
    EXPECT_TRUE(vue.dialogue.isModal());
    EXPECT_EQ(vue.dialogue.parentWidget(), cadre.get());
    EXPECT_EQ(vue.dialogue.windowTitle(), "Gastrelle 2005 - Rechercher");
    EXPECT_EQ(vue.Le("txtSaisie").accessibleName(), "Rechercher");
    EXPECT_EQ(Texte(vue.Le("cmdOk")), "&OK");
    EXPECT_EQ(Texte(vue.Le("cmdAnnuler")), "&Annuler");
    EXPECT_EQ(Texte(vue.Le("cmdAide")), "A&ide");
    EXPECT_FALSE(vue.Le<QLabel>("Image1").pixmap().isNull());
    EXPECT_EQ(vue.Du<QGroupBox>("Frame").title(), Fr(ligne.titre));
    for (const auto& [debut, titre, infobulle] : std::initializer_list<std::array<const char*, 3>>{
             {"cmdActiver", "A&ctiver", "Afficher"},
             {"cmdContinuer", "C&ontinuer", "Continuer la recherche"},
             {"cmdAnnuler", "&Annuler", "Arrêter la recherche"}}) {
      EXPECT_EQ(Texte(vue.Du(debut)), titre);
      EXPECT_EQ(vue.Du(debut).toolTip(), Fr(infobulle));
    }
  });
}

TEST_P(BoiteRecherche, SOuvreEnSaisieSansSonCadreNiLectureDuDisque) {
  OuvreTrois();
  AvecRecherche([&](const VueDialogue& vue) {
    EXPECT_EQ(vue.Motif(), enSaisie);
    EXPECT_FALSE(vue.Du("Frame").isVisible());
    EXPECT_TRUE(vue.Le("txtSaisie").hasFocus());
    EXPECT_TRUE(vue.Le<QPushButton>("cmdOk").isDefault());
    EXPECT_EQ(vue.Le<QLineEdit>("txtSaisie").text(), "");
    EXPECT_EQ(b.pointeur.sabliers, 1);
    EXPECT_FALSE(b.pointeur.sablier);
  });
  EXPECT_THAT(b.disque.journal(), IsEmpty());
}

TEST_P(BoiteRecherche, LeBoutonDeLaBarreLOuvreAussi) {
  OuvreTrois();
  AvecDialogue([&] { Clique(BoutonBarre("Find")); },
               [&](QDialog& dialogue) { EXPECT_EQ(dialogue.objectName(), "frmRechercher"); });
}

TEST_P(BoiteRecherche, NeSOuvreQueSurLaListe) {
  OuvreTrois();
  QWidget& fenetre = *static_cast<QWidget*>(enfants().activeSubWindow()->widget());
  for (int onglet = Trouve<QTabBar>(fenetre, "TabStrip1").count(); onglet > 0; --onglet) {
    CliqueOnglet(fenetre, onglet);
    EXPECT_EQ(Permis("mnuEditRechercher"), onglet == 1) << onglet;
    EXPECT_EQ(BoutonBarre("Find").isEnabled(), onglet == 1) << onglet;
  }
}

TEST_P(BoiteRecherche, UnTexteVideOuDeBlancsSonneEtRedonneLaSaisie) {
  OuvreTrois();
  AvecRecherche([&](const VueDialogue& vue) {
    b.messages.bips = 0;
    for (const char* blancs : {"", " ", "     "}) {
      Remplace(vue.Le("txtSaisie"), blancs);
      Clique(vue.Le("cmdOk"));
      EXPECT_EQ(Texte(vue.Le("txtSaisie")), "");
      EXPECT_EQ(vue.Motif(), enSaisie);
      EXPECT_TRUE(vue.Le("txtSaisie").hasFocus());
      EXPECT_FALSE(vue.Du("Frame").isVisible());
      EXPECT_TRUE(vue.Le<QPushButton>("cmdOk").isDefault());
    }
    EXPECT_EQ(b.messages.bips, 3);
    EXPECT_EQ(b.pointeur.sabliers, 1);
  });
  EXPECT_THAT(b.disque.journal(), IsEmpty());
  EXPECT_THAT(b.messages.vus, IsEmpty());
}

TEST_P(BoiteRecherche, CeQuiEstSaisiEstRogneEtReste) {
  OuvreTrois();
  AvecRecherche([&](const VueDialogue& vue) {
    vue.Cherche("  noix de muscade ");
    EXPECT_EQ(Texte(vue.Le("txtSaisie")), "noix de muscade");
    EXPECT_EQ(vue.titre().trimmed(), "Soupe");
  });
}

TEST_P(BoiteRecherche, PendantUneEtapeToutEstInactifSousLeSablier) {
  OuvreTrois();
  AvecRecherche([&](const VueDialogue& vue) {
    int vus = 0;
    b.disque.pendant = [&](const std::string&) {
      ++vus;
      EXPECT_EQ(vue.Motif(), enRecherche);
      EXPECT_TRUE(vue.Du("Frame").isVisible());
      EXPECT_TRUE(b.pointeur.sablier);
      EXPECT_FALSE(vue.Le<QPushButton>("cmdOk").isDefault());
      EXPECT_EQ(vue.titre() + vue.texte(), "");
    };
    vue.Cherche("muscade");
    EXPECT_GT(std::exchange(vus, 0), 0);
    EXPECT_FALSE(b.pointeur.sablier);
    EXPECT_FALSE(vue.Le<QPushButton>("cmdOk").isDefault());
    b.disque.pendant = [&, avec = b.disque.pendant](const std::string& appel) {
      // Whether there is anything left to look at is asked before.
      if (!appel.starts_with("longueur") || b.pointeur.sablier) {
        avec(appel);
      }
    };
    vue.Continue();
    EXPECT_GT(vus, 0);
    EXPECT_FALSE(b.pointeur.sablier);
    b.disque.pendant = nullptr;
  });
}

TEST_P(BoiteRecherche, UneEtapeSePeintAvantDeCommencer) {
  OuvreTrois();
  AvecRecherche([&](const VueDialogue& vue) {
    const Peintures bouton(vue.Le("cmdOk"));
    bool vu = false;
    b.disque.pendant = [&](const std::string&) {
      vu = true;
      EXPECT_GT(bouton.nombre, 0);
    };
    vue.Cherche("muscade");
    EXPECT_TRUE(vu);
  });
}

TEST_P(BoiteRecherche, MontreChaqueFicheTrouveePuisFinit) {
  OuvreTrois();
  b.messages.pendant = [&] { EXPECT_FALSE(b.pointeur.sablier); };
  AvecRecherche([&](const VueDialogue& vue) {
    vue.Cherche("MusCade");
    EXPECT_EQ(vue.titre(), Fr("Muscade rapée"));
    EXPECT_EQ(vue.texte(), "Rien d'autre.");
    EXPECT_TRUE(vue.Du("txtNom").hasFocus());
    EXPECT_EQ(vue.Motif(), surUneFiche);
    vue.Continue();
    EXPECT_EQ(vue.titre(), "Soupe" + QString(123, u' '));
    EXPECT_EQ(vue.texte(), "De la noix de MUSCADE.\nUn peu.");
    EXPECT_TRUE(vue.Du("txtTexte").hasFocus());
    EXPECT_EQ(vue.Motif(), surUneFiche);
    EXPECT_THAT(b.messages.vus, IsEmpty());
    vue.Continue();
    EXPECT_EQ(vue.titre(), Fr("Gratin à la muscade"));
    EXPECT_EQ(vue.texte(), "");
    EXPECT_TRUE(vue.visible());
    b.messages.pendant = [&] {
      EXPECT_TRUE(vue.visible());
      EXPECT_FALSE(b.pointeur.sablier);
    };
    vue.Continue();
    EXPECT_FALSE(vue.visible());
  });
  EXPECT_THAT(b.messages.vus, ElementsAre(PlusDAutre()));
  EXPECT_THAT(b.disque.changements(), IsEmpty());
  EXPECT_EQ(FinVue(), std::nullopt);
}

TEST_P(BoiteRecherche, SansRienTrouverLeDitPuisSeFerme) {
  OuvreTrois();
  b.messages.pendant = [&] { EXPECT_FALSE(b.pointeur.sablier); };
  const int avant = NumeroAffiche();
  AvecRecherche([&](const VueDialogue& vue) {
    vue.Cherche("rapee");
    EXPECT_FALSE(vue.visible());
  });
  EXPECT_THAT(b.messages.vus, ElementsAre(NonTrouve()));
  EXPECT_EQ(NumeroAffiche(), avant);
}

TEST_P(BoiteRecherche, PlusRienApresUneFicheDitQuIlNYEnAPlus) {
  OuvreTrois();
  AvecRecherche([&](const VueDialogue& vue) {
    vue.Cherche("noix");
    EXPECT_TRUE(vue.visible());
    vue.Continue();
    EXPECT_FALSE(vue.visible());
  });
  EXPECT_THAT(b.messages.vus, ElementsAre(PlusDAutre()));
}

TEST_P(BoiteRecherche, UneFoisCommenceeNeChercheRienDAutre) {
  OuvreTrois();
  AvecRecherche([&](const VueDialogue& vue) {
    vue.Cherche("muscade");
    for (int i = 0; i < 2; ++i) {
      EXPECT_FALSE(vue.Le("txtSaisie").isEnabled());
      EXPECT_FALSE(vue.Le("cmdOk").isEnabled());
      vue.Continue();
    }
  });
  AvecRecherche([&](const VueDialogue& vue) {
    EXPECT_EQ(Texte(vue.Le("txtSaisie")), "");
    vue.Cherche("noix");
    EXPECT_EQ(vue.titre().trimmed(), "Soupe");
  });
}

// The keyboard.

TEST_P(BoiteRecherche, EntreeDansLaCaseCommence) {
  OuvreTrois();
  AvecRecherche([&](const VueDialogue& vue) {
    Frappe(QStringLiteral("noix"));
    Frappe(Qt::Key_Return);
    EXPECT_EQ(vue.Motif(), surUneFiche);
    EXPECT_EQ(vue.titre().trimmed(), "Soupe");
  });
}

TEST_P(BoiteRecherche, EntreeDansUneFicheNeFaitRien) {
  OuvreTrois();
  AvecRecherche([&](const VueDialogue& vue) {
    vue.Cherche("muscade");
    for (const char* debut : {"txtNom", "txtTexte"}) {
      vue.Du("cmdActiver").setFocus();
      vue.Du(debut).setFocus();
      b.disque.OublieJournal();
      Frappe(Qt::Key_Return);
      Frappe(Qt::Key_Enter, Qt::KeypadModifier);
      EXPECT_TRUE(vue.visible());
      EXPECT_EQ(vue.Motif(), surUneFiche);
      EXPECT_THAT(b.disque.journal(), IsEmpty());
    }
    vue.Du("cmdContinuer").setFocus();
    Frappe(Qt::Key_Return);
    EXPECT_EQ(vue.titre().trimmed(), "Soupe");
  });
}

TEST_P(BoiteRecherche, EchappeEtLesBoutonsAnnulerFermentSansRienChanger) {
  OuvreTrois();
  const int avant = NumeroAffiche();
  const auto echappe = [](const VueDialogue&) { Frappe(Qt::Key_Escape); };
  AvecRecherche([&](const VueDialogue& vue) {
    echappe(vue);
    EXPECT_FALSE(vue.visible());
  });
  AvecRecherche([&](const VueDialogue& vue) {
    Clique(vue.Le("cmdAnnuler"));
    EXPECT_FALSE(vue.visible());
  });
  AvecRecherche([&](const VueDialogue& vue) {
    vue.Cherche("noix");
    echappe(vue);
    EXPECT_FALSE(vue.visible());
  });
  AvecRecherche([&](const VueDialogue& vue) {
    vue.Cherche("noix");
    Clique(vue.Du("cmdAnnuler"));
    EXPECT_FALSE(vue.visible());
  });
  EXPECT_EQ(NumeroAffiche(), avant);
  EXPECT_THAT(b.messages.vus, IsEmpty());
  EXPECT_THAT(b.disque.changements(), IsEmpty());
  EXPECT_FALSE(b.pointeur.sablier);
}

TEST_P(BoiteRecherche, LesTouchesDAccesNeSeGenentPas) {
  OuvreTrois();
  AvecRecherche([&](const VueDialogue& vue) {
    EXPECT_THAT(TouchesDAcces(vue.dialogue), ElementsAre("Alt+A", "Alt+I", "Alt+O"));
    Frappe(QStringLiteral("muscade"));
    Frappe(Qt::Key_O, Qt::AltModifier);
    EXPECT_TRUE(QTest::qWaitFor([&] { return vue.Motif() == surUneFiche; }));
    EXPECT_THAT(TouchesDAcces(vue.dialogue), ElementsAre("Alt+A", "Alt+C", "Alt+O"));
    Frappe(Qt::Key_O, Qt::AltModifier);
    EXPECT_TRUE(QTest::qWaitFor([&] { return vue.titre().trimmed() == "Soupe"; }));
    Frappe(Qt::Key_C, Qt::AltModifier);
    EXPECT_TRUE(QTest::qWaitFor([&] { return !vue.visible(); }));
  });
  EXPECT_EQ(NumeroAffiche(), dansLeTexte);
}

TEST_P(BoiteRecherche, LaToucheTabVisiteCeQuiPeutServir) {
  OuvreTrois();
  AvecRecherche([&](const VueDialogue& vue) {
    EXPECT_EQ(Tour(), "txtSaisie cmdOk cmdAnnuler cmdAide");
    vue.Cherche("muscade");
    EXPECT_EQ(Tour(), NomsDu({"txtNom", "txtTexte", "cmdActiver", "cmdContinuer", "cmdAnnuler"}));
  });
}

TEST_P(BoiteRecherche, LesTouchesFrappeesPendantUneEtapeNeFontRien) {
  OuvreTrois();
  AvecRecherche([&](const VueDialogue& vue) {
    bool frappee = false;
    b.disque.pendant = [&](const std::string&) {
      if (!std::exchange(frappee, true)) {
        QThread::msleep(60);  // long enough for somebody to press a key
        for (const int touche : {Qt::Key_Return, Qt::Key_A, Qt::Key_Escape}) {
          qt_handleKeyEvent(vue.dialogue.windowHandle(), QEvent::KeyPress, touche, Qt::NoModifier,
                            touche == Qt::Key_A ? "a" : "");
        }
      }
    };
    vue.Cherche("muscade");
    // They met buttons that can't be pressed, and a dialog that can't be left.
    QApplication::processEvents();
    EXPECT_TRUE(frappee);
    EXPECT_TRUE(vue.visible());
    EXPECT_EQ(vue.titre(), Fr("Muscade rapée"));
  });
  EXPECT_THAT(b.messages.vus, IsEmpty());
}

TEST_P(BoiteRecherche, ChaqueControleASonParagrapheDansLAide) {
  OuvreTrois();
  b.module->fichierAide = DepuisUtf8(FICHIER_AIDE);
  AvecRecherche([&](const VueDialogue& vue) {
    AttendParagraphes(vue, {"txtSaisie", "cmdOk", "cmdAnnuler"});
    Clique(vue.Le("cmdAide"));
    EXPECT_EQ(SujetAide(), "rechercher");
    vue.dialogue.activateWindow();
    vue.Cherche("muscade");
    AttendParagraphes(
        vue,
        NomsDu({"txtNom", "txtTexte", "cmdActiver", "cmdContinuer", "cmdAnnuler"}).split(u' '));
  });
}

}  // namespace
}  // namespace gastrelle::essai
