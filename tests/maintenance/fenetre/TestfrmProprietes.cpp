// The dialog of the cleaning, through the frame and its controls.

#include <QGroupBox>

#include "data/EspaceMort.h"
#include "doublures/Pannes.h"
#include "maintenance/fenetre/DialogueMaintenance.h"
#include "maintenance/frmProprietes.h"

namespace gastrelle::essai {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;

class DialogueDeNettoyage : public DialogueMaintenance {
 protected:
  void AvecNettoyage(const std::function<void(QDialog&)>& regarde) {
    AvecMaintenance("mnuFileProperties", "FrmProprietes", regarde);
  }
  void Nettoie() {
    AvecNettoyage([](QDialog& dialogue) {
      Clique(Trouve(dialogue, "cmdNettoyer"));
      EXPECT_FALSE(dialogue.isVisible());
    });
  }
  static std::string Mesures(const QDialog& dialogue) {
    QStringList textes;
    for (const char* nom : {"txtRecette(2)", "txtRecette(0)", "txtRecette(1)", "txtGain"}) {
      textes << Texte(Trouve(dialogue, nom));
    }
    return textes.join(u'|').toStdString();
  }
};

TEST_F(DialogueDeNettoyage, PorteSesTextes) {
  OuvreAvecPertes();
  AvecNettoyage([](QDialog& dialogue) {
    EXPECT_EQ(dialogue.windowTitle(), "Gastrelle 2005 - Maintenance des fichiers");
    QStringList legendes;
    for (const auto* legende : dialogue.findChildren<QLabel*>()) {
      if (legende->buddy() != nullptr) {
        legendes << legende->buddy()->objectName() + " : " + legende->text();
      }
    }
    EXPECT_THAT(legendes, testing::UnorderedElementsAre(
                              Fr("txtDossier : Dossier (pour mémoire)"), "txtRecette(2) : Nombre",
                              "txtRecette(0) : actuelle", Fr("txtRecette(1) : après nettoyage"),
                              "txtGain : Ecart"));
    EXPECT_EQ(dialogue.findChild<QGroupBox*>()->title(), "Recettes");
    EXPECT_EQ(Texte(Trouve(dialogue, "cmdNettoyer")), "&Nettoyer");
    EXPECT_EQ(Texte(Trouve(dialogue, "cmdAide")), "&Aide");
    EXPECT_EQ(Texte(Trouve(dialogue, "cmdFermer")), "&Fermer");
  });
}

TEST_F(DialogueDeNettoyage, MontreLeDossierLeNombreLesTaillesEtLEcart) {
  OuvreAvecPertes();
  AvecNettoyage([&](QDialog& dialogue) {
    EXPECT_EQ(Texte(Trouve(dialogue, "txtDossier")), VersQt(b.module->chemins.cheminAppli()));
    EXPECT_EQ(Mesures(dialogue), "3|1 334|1 037|297");
    EXPECT_TRUE(Trouve(dialogue, "cmdNettoyer").isEnabled());
    for (const auto* boite : dialogue.findChildren<QLineEdit*>()) {
      EXPECT_TRUE(boite->isReadOnly()) << boite->objectName().toStdString();
    }
  });
  EXPECT_THAT(b.disque.changements(), IsEmpty());
}

TEST_F(DialogueDeNettoyage, GroupeLesChiffresParTrois) {
  b.dossier.Ecrit("GLR3.stp", b.dossier.Lit("GLR3.stp") + std::string(1'233'980, 'x'));
  Ouvre();
  AvecNettoyage(
      [](QDialog& dialogue) { EXPECT_EQ(Mesures(dialogue), "1|1 234 567|587|1 233 980"); });
}

TEST_F(DialogueDeNettoyage, UnCompteQuiDepasseLesFichiersDonneUnEcartNegatif) {
  Ouvre();
  b.module->bufRecette.nbActifs() = 12345;
  AvecNettoyage([](QDialog& dialogue) {
    EXPECT_EQ(Mesures(dialogue), "12 345|587|1 852 187|-1 851 600");
    EXPECT_TRUE(Trouve(dialogue, "cmdNettoyer").isEnabled());
  });
}

TEST_F(DialogueDeNettoyage, SansPerteNeNettoiePas) {
  Ouvre();
  AvecNettoyage([](QDialog& dialogue) {
    EXPECT_EQ(Mesures(dialogue), "1|587|587|0");
    EXPECT_FALSE(Trouve(dialogue, "cmdNettoyer").isEnabled());
    EXPECT_TRUE(Trouve(dialogue, "cmdFermer").isEnabled());
  });
}

TEST_F(DialogueDeNettoyage, NettoieEtGagneCeQuIlMontre) {
  OuvreAvecPertes();
  const auto vivantes = RecettesVivantes(b.dossier);
  Nettoie();
  EXPECT_EQ(RecettesVivantes(b.dossier), vivantes);
  EXPECT_EQ(TailleDesQuatre(b.dossier), 1037);
  AvecNettoyage([](QDialog& dialogue) {
    EXPECT_EQ(Mesures(dialogue), "3|1 037|1 037|0");
    EXPECT_FALSE(Trouve(dialogue, "cmdNettoyer").isEnabled());
  });
}

TEST_F(DialogueDeNettoyage, RouvreLesRecettesMaximiseesMemeSiLaPreferenceLesVeutNormales) {
  OuvreAvecPertes(fenetresNormales);
  EXPECT_FALSE(recettes().isMaximized());
  Nettoie();
  AttendRecettesMaximisees();
  EXPECT_EQ(Ouvertes(), "frmRecettes");
  EXPECT_EQ(Textes(Le<QComboBox>("ComboFamilles")), QStringList({"Desserts", "Potages"}));
  essai::Choisit(Le<QComboBox>("ComboFamilles"), "Potages");
  EXPECT_EQ(Textes(Le<QComboBox>("ComboRecettes")), QStringList({"Eau", Fr("Velouté")}));
  essai::Choisit(Le<QComboBox>("ComboRecettes"), Fr("Velouté"));
  EXPECT_EQ(Texte(Le("txtRecette")), Fr("Un velouté."));
  AttendQueToutSeRouvre();
}

TEST_F(DialogueDeNettoyage, DechargeLesSeptCataloguesEtGardeNotesEtCoursesCommeOnLesTapait) {
  OuvreLesNeuf();
  QWidget* const notes = &Le("frmMesNotes");
  QWidget* const courses = &Le("frmCourses");
  std::string ouvertes;
  b.disque.pendant = [&](const std::string& ligne) {
    if (ligne == "crée TEMP") {
      ouvertes = Ouvertes();
    }
  };
  Nettoie();
  EXPECT_EQ(ouvertes, "frmMesNotes frmCourses");
  EXPECT_EQ(Ouvertes(), "frmRecettes frmMesNotes frmCourses");
  EXPECT_EQ(&Le("frmMesNotes"), notes);
  EXPECT_EQ(&Le("frmCourses"), courses);
  EXPECT_THAT(Texte(Le("txtSaisie")).toStdString(), testing::HasSubstr("Encore une."));
  EXPECT_EQ(Texte(Le("txtDetail")), "Du pain.");
  // They were written before the work began.
  EXPECT_EQ(b.dossier.Lit("MesNotes.txt"), "Encore une.Des notes.\r\n");
  AttendRecettesMaximisees();
  AttendQueToutSeRouvre();
}

TEST_F(DialogueDeNettoyage, LeSablierEtLesBoutonsGrisesDurentAutantQueLui) {
  OuvreLesNeuf();
  Choisit("mnuViewRecettes");  // as it goes, another window comes to the front
  AvecNettoyage([&](QDialog& dialogue) {
    int appels = 0;
    bool commence = false;
    b.disque.pendant = [&](const std::string& ligne) {
      ++appels;
      // A window that comes to the front while others go takes it off for a moment.
      commence = commence || ligne == "dossier? TEMP";
      EXPECT_TRUE(b.pointeur.sablier || !commence) << ligne;
      for (const char* nom : {"cmdNettoyer", "cmdAide", "cmdFermer"}) {
        EXPECT_FALSE(Trouve(dialogue, nom).isEnabled()) << ligne;
      }
    };
    Clique(Trouve(dialogue, "cmdNettoyer"));
    b.disque.pendant = {};
    EXPECT_GT(appels, 40);
    EXPECT_FALSE(b.pointeur.sablier);
  });
}

TEST_F(DialogueDeNettoyage, FermerEtEchappeEtLaCroixNeTouchentARien) {
  OuvreAvecPertes(fenetresNormales);
  AvecNettoyage([](QDialog& dialogue) {
    Clique(Trouve(dialogue, "cmdFermer"));
    EXPECT_FALSE(dialogue.isVisible());
  });
  AvecNettoyage([](QDialog& dialogue) {
    Frappe(Qt::Key_Escape);
    EXPECT_FALSE(dialogue.isVisible());
  });
  AvecNettoyage([](QDialog& dialogue) { EXPECT_TRUE(dialogue.close()); });
  EXPECT_THAT(b.disque.changements(), IsEmpty());
  EXPECT_FALSE(recettes().isMaximized());
}

TEST_F(DialogueDeNettoyage, EntreeAussitotOuvertNeNettoiePas) {
  OuvreAvecPertes();
  AvecNettoyage([](QDialog& dialogue) {
    Frappe(Qt::Key_Return);
    EXPECT_FALSE(dialogue.isVisible());
  });
  EXPECT_THAT(b.disque.changements(), IsEmpty());
}

TEST_F(DialogueDeNettoyage, UneMesureImpossibleFinitLeProgramme) {
  Ouvre();
  b.disque.EchoueSur("lit GLR2.DAT", Panne::entreeSortie);
  EXPECT_EQ(FinDe([&] { const FrmProprietes dialogue(*b.module, *cadre, nullptr); }), 1);
  EXPECT_THAT(b.messages.vus, ElementsAre(Fatal()));
}

TEST_F(DialogueDeNettoyage, UnDossierDeCopiesPleinFinitLeProgrammeSansRienChanger) {
  OuvreAvecPertes();
  std::filesystem::create_directory(b.dossier.chemin() / "TEMP");
  b.dossier.Ecrit("TEMP/GLR2.DAT", "des recettes d'avant");
  const auto avant = Contenu(b.dossier.chemin());
  AvecNettoyage([&](QDialog& dialogue) {
    Clique(Trouve(dialogue, "cmdNettoyer"));
    EXPECT_EQ(FinVue(), 1);
    EXPECT_FALSE(b.pointeur.sablier);
    OublieLaMarque(dialogue);
  });
  EXPECT_THAT(b.messages.vus, ElementsAre(Fatal()));
  EXPECT_EQ(Contenu(b.dossier.chemin()), avant);
}

TEST_F(DialogueDeNettoyage, UnePanneEnCoursDeRouteGardeLesCopies) {
  OuvreAvecPertes();
  const auto avant = LesQuatre(b.dossier);
  b.disque.EchoueSur("renomme GLR2.tmp", Panne::entreeSortie);
  AvecNettoyage([&](QDialog& dialogue) {
    Clique(Trouve(dialogue, "cmdNettoyer"));
    EXPECT_EQ(FinVue(), 1);
    OublieLaMarque(dialogue);
  });
  EXPECT_THAT(b.messages.vus, ElementsAre(Fatal()));
  EXPECT_EQ(LesQuatre(b.dossier, "TEMP/"), avant);
}

TEST_F(DialogueDeNettoyage, LaToucheTabVaDesBoitesAuxBoutons) {
  OuvreAvecPertes();
  AvecNettoyage([](QDialog& dialogue) {
    Trouve(dialogue, "txtDossier").setFocus();
    EXPECT_EQ(TourDuClavier(9),
              "txtDossier txtRecette(2) txtRecette(0) txtRecette(1) txtGain cmdNettoyer cmdFermer "
              "cmdAide txtDossier");
    QStringList touches = TouchesDAcces(dialogue);
    EXPECT_EQ(touches.size(), 3);
    EXPECT_EQ(touches.removeDuplicates(), 0);
  });
}

TEST_F(DialogueDeNettoyage, SaToucheDAccesNettoie) {
  OuvreAvecPertes();
  AvecNettoyage([](QDialog& dialogue) {
    Frappe(Qt::Key_N, Qt::AltModifier);
    EXPECT_TRUE(QTest::qWaitFor([&] { return !dialogue.isVisible(); }));
  });
  EXPECT_EQ(TailleDesQuatre(b.dossier), 1037);
}

TEST_F(DialogueDeNettoyage, ChaqueControleASonParagrapheDansLAide) {
  OuvreAvecPertes();
  AvecNettoyage([&](QDialog& dialogue) {
    AttendAides(dialogue, "nettoyage",
                {"txtDossier", "txtRecette(2)", "txtRecette(0)", "txtRecette(1)", "txtGain",
                 "cmdNettoyer", "cmdFermer", "cmdAide"});
    Clique(Trouve(dialogue, "cmdAide"));
    EXPECT_EQ(SujetAide(), "nettoyage");
  });
}

TEST_F(DialogueDeNettoyage, TientSurUnPetitEcranEnGrandesLettres) {
  OuvreAvecPertes();
  const GrandEtSombre grand;
  AvecNettoyage([](QDialog& dialogue) {
    EXPECT_LE(dialogue.sizeHint().width(), 640);
    EXPECT_LE(dialogue.sizeHint().height(), 480);
    for (const auto* boite : dialogue.findChildren<QLineEdit*>()) {
      EXPECT_TRUE(boite->visibleRegion().boundingRect() == boite->rect());
    }
  });
}

}  // namespace
}  // namespace gastrelle::essai
