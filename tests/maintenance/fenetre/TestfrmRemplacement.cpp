// The two dialogs that replace all recipes, through the frame and their controls.

#include "maintenance/fenetre/DialogueRemplacement.h"

namespace gastrelle::essai {
namespace {

using testing::Each;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

TEST_P(DialogueRemplacement, PorteSesTextesEtDemandeUnePremiereFois) {
  OuvreTrois();
  AvecLui([&](QDialog& dialogue) {
    EXPECT_EQ(dialogue.windowTitle(), Fr(ligne().titre));
    EXPECT_EQ(Visibles(dialogue), "Label1(0) cmdOui cmdNon cmdAide");
    EXPECT_EQ(Texte(Trouve(dialogue, "Label1(0)")), Fr(ligne().demandes[0]));
    EXPECT_EQ(Texte(Trouve(dialogue, "Label1(1)")), Fr(ligne().demandes[1]));
    EXPECT_EQ(Texte(Trouve(dialogue, "cmdOui")), "&Oui");
    EXPECT_EQ(Texte(Trouve(dialogue, "cmdNon")), "&Non");
    EXPECT_EQ(Texte(Trouve(dialogue, "cmdAide")), "&Aide");
    EXPECT_EQ(Texte(Trouve(dialogue, "cmdFin")), Fr("&Terminé"));
    EXPECT_TRUE(Trouve(dialogue, "FrameAccord").isVisible());
    EXPECT_FALSE(Trouve(dialogue, "FrameEfface").isVisible());
    EXPECT_TRUE(Trouve(dialogue, "cmdNon").hasFocus());
    EXPECT_EQ(Sons(), 1U);
  });
  EXPECT_THAT(b.son.joues, Each((b.dossier.chemin() / "Exclamation").string()));
  EXPECT_THAT(b.disque.journal(), IsEmpty());
}

TEST_P(DialogueRemplacement, LePremierOuiRedemandeEtRendLeClavierANon) {
  OuvreTrois();
  AvecLui([&](QDialog& dialogue) {
    Clique(Trouve(dialogue, "cmdOui"));
    EXPECT_EQ(Visibles(dialogue), "Label1(1) cmdOui cmdNon cmdAide");
    EXPECT_TRUE(Trouve(dialogue, "cmdNon").hasFocus());
    EXPECT_EQ(Sons(), 2U);
    EXPECT_FALSE(b.pointeur.sablier);
  });
  EXPECT_THAT(b.disque.journal(), IsEmpty());
}

TEST_P(DialogueRemplacement, NonLaisseToutLaPremiereFoisCommeLaSeconde) {
  OuvreTrois();
  for (const bool seconde : {false, true}) {
    AvecLui([&](QDialog& dialogue) {
      if (seconde) {
        Clique(Trouve(dialogue, "cmdOui"));
      }
      Clique(Trouve(dialogue, "cmdNon"));
      EXPECT_FALSE(dialogue.isVisible());
    });
    AttendRienDeFait();
  }
}

TEST_P(DialogueRemplacement, EchappeEtLaCroixLaissentToutAussi) {
  OuvreTrois();
  for (const bool croix : {false, true}) {
    AvecLui([&](QDialog& dialogue) {
      Clique(Trouve(dialogue, "cmdOui"));
      if (croix) {
        EXPECT_TRUE(dialogue.close());
      } else {
        Frappe(Qt::Key_Escape);
      }
      EXPECT_FALSE(dialogue.isVisible());
    });
    AttendRienDeFait();
  }
}

TEST_P(DialogueRemplacement, EntreeDeuxFoisDeSuiteNeConfirmeRien) {
  OuvreTrois();
  AvecLui([&](QDialog& dialogue) {
    Trouve(dialogue, "cmdOui").setFocus();
    Frappe(Qt::Key_Return);
    EXPECT_EQ(Visibles(dialogue), "Label1(1) cmdOui cmdNon cmdAide");
    Frappe(Qt::Key_Return);
    EXPECT_FALSE(dialogue.isVisible());
  });
  AttendRienDeFait();
}

TEST_P(DialogueRemplacement, LaSecondeMoitieDUnDoubleClicNeConfirmeRien) {
  OuvreTrois();
  const Patience patience(60'000);
  AvecLui([&](QDialog& dialogue) {
    for (int i = 0; i < 3; ++i) {
      Clique(Trouve(dialogue, "cmdOui"));
    }
    EXPECT_EQ(Visibles(dialogue), "Label1(1) cmdOui cmdNon cmdAide");
    EXPECT_EQ(Sons(), 2U);
  });
  AttendRienDeFait();
}

TEST_P(DialogueRemplacement, UneToucheDAccesTenueNeConfirmeRien) {
  OuvreTrois();
  const Patience patience(60'000);
  AvecLui([&](QDialog& dialogue) {
    for (int i = 0; i < 3; ++i) {
      Frappe(Qt::Key_O, Qt::AltModifier);
      QTest::qWait(150);  // what a button takes to come up again
    }
    EXPECT_EQ(Visibles(dialogue), "Label1(1) cmdOui cmdNon cmdAide");
  });
  AttendRienDeFait();
}

TEST_P(DialogueRemplacement, LeSecondOuiRemplaceEtLeDit) {
  OuvreTrois();
  AvecLui([&](QDialog& dialogue) {
    Accorde(dialogue);
    EXPECT_EQ(Visibles(dialogue), "Label2(1) cmdFin");
    EXPECT_EQ(Texte(Trouve(dialogue, "Label2(1)")), Fr(ligne().fin));
    EXPECT_EQ(Texte(Trouve(dialogue, "cmdFin")), Fr("&Terminé"));
    EXPECT_TRUE(Trouve(dialogue, "cmdFin").hasFocus());
    EXPECT_FALSE(b.pointeur.sablier);
    EXPECT_EQ(Sons(), 2U);
    EXPECT_EQ(Ouvertes(), "");
    Clique(Trouve(dialogue, "cmdFin"));
    EXPECT_FALSE(dialogue.isVisible());
  });
  AttendRemplacees();
  AttendRecettesMaximisees();
  EXPECT_EQ(Texte(Le("txtRecette")), Fr("Un velouté."));
  AttendQueToutSeRouvre();
}

TEST_P(DialogueRemplacement, EchappeEtLaCroixFinissentCommeLeBouton) {
  for (const bool croix : {false, true}) {
    OuvreTrois();
    AvecLui([&](QDialog& dialogue) {
      Accorde(dialogue);
      if (croix) {
        EXPECT_TRUE(dialogue.close());
      } else {
        Frappe(Qt::Key_Escape);
      }
      EXPECT_FALSE(dialogue.isVisible());
    });
    AttendRemplacees();
    AttendRecettesMaximisees();
  }
}

TEST_P(DialogueRemplacement, LeSablierEtLAnnonceDurentAutantQueLui) {
  OuvreLesNeuf();
  Choisit("mnuViewRecettes");  // as it goes, another window comes to the front
  AvecLui([&](QDialog& dialogue) {
    int appels = 0;
    bool commence = false;
    b.disque.pendant = [&](const std::string& appel) {
      if (++appels == 1) {  // somebody in a hurry
        QApplication::postEvent(&dialogue,
                                new QKeyEvent(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier));
      }
      // A window that comes to the front while others go takes it off for a moment.
      commence = commence || appel == "supprime GLR1.tmp";
      EXPECT_TRUE(b.pointeur.sablier || !commence) << appel;
      EXPECT_EQ(Visibles(dialogue), "Label2(0) cmdFin") << appel;
      EXPECT_EQ(Texte(Trouve(dialogue, "Label2(0)")), "\nEffacement en cours...");
    };
    Accorde(dialogue);
    b.disque.pendant = {};
    EXPECT_TRUE(dialogue.isVisible());
    EXPECT_GT(appels, 30);
    EXPECT_FALSE(b.pointeur.sablier);
  });
}

TEST_P(DialogueRemplacement, DechargeLesNeufFenetresEtEcritLesNotes) {
  OuvreLesNeuf();
  std::string ouvertes = "aucun renommage";
  b.disque.pendant = [&](const std::string& appel) {
    if (appel == "renomme GLR1.DAT GLR1.tmp") {
      ouvertes = Ouvertes();
    }
  };
  Remplace();
  EXPECT_EQ(ouvertes, "");
  EXPECT_EQ(Ouvertes(), "frmRecettes");
  EXPECT_THAT(b.dossier.Lit("MesNotes.txt"), testing::HasSubstr("Encore une."));
  EXPECT_THAT(b.module->texteRayon, testing::Contains("Du pain."));
  AttendRecettesMaximisees();
  AttendQueToutSeRouvre();
}

TEST_P(DialogueRemplacement, UneOrigineAbsenteEstDiteEtRienNEstTouche) {
  OuvreLesNeuf();
  b.dossier.Supprime("GLR3.stp");
  b.dossier.Supprime("GLR4.stp");
  const auto avant = Contenu(b.dossier.chemin());
  AvecLui([&](QDialog& dialogue) {
    b.messages.pendant = [&] { EXPECT_FALSE(b.pointeur.sablier); };
    Accorde(dialogue);
    EXPECT_THAT(b.messages.vus, ElementsAre(NonTrouve(b, "GLR3.stp")));
    EXPECT_EQ(Visibles(dialogue), "Label2(1) cmdFin");
    EXPECT_EQ(Texte(Trouve(dialogue, "Label2(1)")),
              Fr("Un ou plusieurs fichiers d'origine sont manquants (.STP). Impossibilité de "
                 "continuer."));
    EXPECT_EQ(Texte(Trouve(dialogue, "cmdFin")), "&Fermer");
    EXPECT_FALSE(b.pointeur.sablier);
    EXPECT_EQ(Ouvertes(), ToutesOuvertes());
    Clique(Trouve(dialogue, "cmdFin"));
    EXPECT_FALSE(dialogue.isVisible());
  });
  EXPECT_EQ(Contenu(b.dossier.chemin()), avant);
  EXPECT_EQ(Ouvertes(), ToutesOuvertes());
  AttendRecettesMaximisees();
}

TEST_P(DialogueRemplacement, UnePanneFinitLeProgramme) {
  for (const char* debut : {"renomme GLR3.DAT", "ouvre GLR2.DAT", "synchronise /"}) {
    b.messages.vus.clear();
    OuvreTrois();
    b.disque.EchoueSur(debut, Panne::entreeSortie);
    AvecLui([&](QDialog& dialogue) {
      Accorde(dialogue);
      EXPECT_EQ(FinVue(), 1) << debut;
      EXPECT_FALSE(b.pointeur.sablier);
      dialogue.hide();
    });
    EXPECT_THAT(b.messages.vus, ElementsAre(Fatal())) << debut;
    b.disque.Guerit();
    cadre.reset();
  }
}

TEST_P(DialogueRemplacement, LeClavierFaitLeTourDesBoutonsDeChaqueEtat) {
  OuvreTrois();
  AvecLui([&](QDialog& dialogue) {
    for (const bool seconde : {false, true}) {
      EXPECT_EQ(TourDuClavier(4), "cmdNon cmdAide cmdOui cmdNon");
      QStringList touches = TouchesDAcces(dialogue);
      EXPECT_EQ(touches.size(), 3);
      EXPECT_EQ(touches.removeDuplicates(), 0);
      if (!seconde) {
        Clique(Trouve(dialogue, "cmdOui"));
      }
    }
    QTest::qWait(2 * QApplication::doubleClickInterval());
    Frappe(Qt::Key_O, Qt::AltModifier);
    EXPECT_TRUE(QTest::qWaitFor([&] { return Trouve(dialogue, "cmdFin").isVisible(); }));
    EXPECT_EQ(TourDuClavier(2), "cmdFin cmdFin");
    Frappe(Qt::Key_T, Qt::AltModifier);
    EXPECT_TRUE(QTest::qWaitFor([&] { return !dialogue.isVisible(); }));
  });
  AttendRemplacees();
}

TEST_P(DialogueRemplacement, ChaqueBoutonASonParagrapheDansLAide) {
  OuvreTrois();
  AvecLui([&](QDialog& dialogue) {
    AttendAides(dialogue, ligne().sujet, {"cmdOui", "cmdNon", "cmdAide"});
    Clique(Trouve(dialogue, "cmdAide"));
    EXPECT_EQ(SujetAide(), ligne().sujet);
    dialogue.activateWindow();
    Accorde(dialogue);
    AttendAides(dialogue, ligne().sujet, {"cmdFin"});
  });
}

TEST_P(DialogueRemplacement, TientSurUnPetitEcranEnGrandesLettres) {
  OuvreTrois();
  const GrandEtSombre grand;
  AvecLui([&](QDialog& dialogue) {
    for (const char* nom : {"Label1(0)", "Label1(1)", "Label2(1)"}) {
      auto& texte = Trouve<QLabel>(dialogue, nom);
      if (!texte.isVisible()) {
        nom == std::string_view("Label2(1)") ? Accorde(dialogue)
                                             : Clique(Trouve(dialogue, "cmdOui"));
        QTest::qWait(2 * QApplication::doubleClickInterval());
      }
      EXPECT_TRUE(texte.isVisible()) << nom;
      EXPECT_LE(texte.heightForWidth(texte.width()), texte.height()) << nom;
      EXPECT_LE(dialogue.width(), 640);
      EXPECT_LE(dialogue.height(), 480);
    }
  });
}

TEST_F(DialogueDeSuppression, UneSeuleRecetteNePeutEtreSupprimee) {
  Ouvre();
  AvecSuppression([&](QDialog& dialogue) {
    EXPECT_EQ(Texte(Trouve(dialogue, "Label1(0)")), Fr("\nLa recette ne peut être supprimée"));
    EXPECT_EQ(Texte(Trouve(dialogue, "cmdNon")), "&Fermer");
    EXPECT_EQ(DialogueRemplacement::Visibles(dialogue), "Label1(0) cmdNon");
    EXPECT_TRUE(Trouve(dialogue, "cmdNon").hasFocus());
    Clique(Trouve(dialogue, "cmdNon"));
    EXPECT_FALSE(dialogue.isVisible());
  });
  EXPECT_THAT(b.son.joues, IsEmpty());
  EXPECT_THAT(b.disque.journal(), IsEmpty());
}

TEST_F(DialogueDeSuppression, ApresAvoirToutVideElleNeSeFaitPlus) {
  b.AjouteRecette(2, "Tarte");
  Ouvre();
  AvecSuppression([&](QDialog& dialogue) { DialogueRemplacement::Accorde(dialogue); });
  EXPECT_EQ(Textes(Le<QComboBox>("ComboRecettes")), QStringList(Fr("Velouté")));
  AvecSuppression([&](QDialog& dialogue) {
    EXPECT_EQ(DialogueRemplacement::Visibles(dialogue), "Label1(0) cmdNon");
  });
  EXPECT_THAT(b.son.joues, SizeIs(2));
}

TEST_F(DialogueDeSuppression, UneSeuleRecetteSeReinitialiseToutDeMeme) {
  Ouvre();
  AvecMaintenance("mnuFilePropertiesReini", "frmReinitialisation", [&](QDialog& dialogue) {
    DialogueRemplacement::Accorde(dialogue);
    EXPECT_EQ(Texte(Trouve(dialogue, "Label2(1)")), Fr("Réinitialisation effectuée avec succès"));
  });
  EXPECT_THAT(b.son.joues, SizeIs(2));
}

INSTANTIATE_TEST_SUITE_P(LesDeux, DialogueRemplacement, testing::ValuesIn(lesDeux),
                         [](const auto& cas) { return std::string(cas.param.nom); });

}  // namespace
}  // namespace gastrelle::essai
