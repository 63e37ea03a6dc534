// The export dialog before it exports: its texts, its list, the rules of its buttons, the keyboard,
// the help.

#include <QElapsedTimer>
#include <QGroupBox>
#include <QHeaderView>
#include <QTextBrowser>

#include "doublures/AideVue.h"
#include "doublures/Pannes.h"
#include "sortie/fenetre/DialogueExport.h"
#include "sortie/frmExport.h"

namespace gastrelle::essai {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

using ChoixDExport = DialogueExport;

TEST_F(ChoixDExport, PorteSesTextes) {
  OuvreTrois();
  AvecExport([](QDialog& dialogue) {
    EXPECT_TRUE(dialogue.isModal());
    EXPECT_EQ(dialogue.windowTitle(), Fr("Gastrelle 2005 - Export des recettes de cuisine"));
    const QTreeWidget& liste = Liste(dialogue);
    EXPECT_EQ(liste.columnCount(), 2);
    EXPECT_EQ(liste.headerItem()->text(0), "Les familles de recettes");
    EXPECT_EQ(liste.headerItem()->text(1), Fr("N° ordre"));
    EXPECT_EQ(Infobulle(*liste.viewport(), liste.visualItemRect(liste.topLevelItem(1)).center()),
              Fr("Cliquez sur la case à cocher pour sélectionner/désélectionner"));
    EXPECT_EQ(Texte(Trouve(dialogue, "cmdSelect")), Fr("Tout &sélectionner"));
    EXPECT_EQ(Texte(Trouve(dialogue, "cmdDeselect")), Fr("Tout &désélectionner"));
    EXPECT_EQ(Texte(Trouve(dialogue, "cmdExport")), "&Exporter");
    EXPECT_EQ(Texte(Trouve(dialogue, "cmdAnnuler")), "A&nnuler");
    EXPECT_EQ(Texte(Trouve(dialogue, "cmdAide")), "&Aide");
    EXPECT_EQ(Texte(Trouve(dialogue, "cmdStop")), "A&nnuler");
    EXPECT_EQ(Trouve<QGroupBox>(dialogue, "Frame2").title(),
              "Exportation des recettes en cours...");
    EXPECT_TRUE(Trouve(dialogue, "Frame1").isVisible());
    EXPECT_FALSE(Trouve(dialogue, "Frame2").isVisible());
  });
}

TEST_F(ChoixDExport, MontreLesFamillesVivantesDansLOrdreDesFichesToutesCochees) {
  OuvreTrois();
  AvecExport([](QDialog& dialogue) {
    std::vector<std::string> lignes;
    for (int i = 0; i < Liste(dialogue).topLevelItemCount(); ++i) {
      const QTreeWidgetItem& entree = *Liste(dialogue).topLevelItem(i);
      lignes.push_back((entree.text(0) + " " + entree.text(1)).toStdString());
    }
    EXPECT_THAT(lignes, ElementsAre("Potages 2", "Zestes 4", "Abats 5"));
    EXPECT_EQ(Coches(dialogue), "xxx");
    EXPECT_EQ(Boutons(dialogue), "-++");
    EXPECT_TRUE(Liste(dialogue).hasFocus());
  });
  EXPECT_THAT(b.disque.changements(), IsEmpty());
  EXPECT_THAT(b.disque.journal(), ElementsAre("longueur GLR1.DAT", "lit GLR1.DAT 130+520"));
}

TEST_F(ChoixDExport, LaColonneDesNomsAQuatreCinquiemesDeLaListeQuelleQueSoitSaLargeur) {
  constexpr int encore = 200;
  OuvreTrois();
  AvecExport([](QDialog& dialogue) {
    const QTreeWidget& liste = Liste(dialogue);
    EXPECT_EQ(liste.columnWidth(0), liste.width() * 4 / 5);
    const QSize avant = liste.size();
    dialogue.resize(dialogue.width() + encore, dialogue.height() + encore);
    QApplication::processEvents();
    EXPECT_EQ(liste.size(), avant + QSize(encore, encore));
    EXPECT_EQ(liste.columnWidth(0), liste.width() * 4 / 5);
    EXPECT_GE(liste.columnWidth(1), liste.header()->sectionSizeHint(1));
  });
}

TEST_F(ChoixDExport, LaSourisCocheEtDecocheEtLesBoutonsSuivent) {
  OuvreTrois();
  AvecExport([](QDialog& dialogue) {
    CliqueCase(dialogue, 1);
    EXPECT_EQ(Coches(dialogue) + Boutons(dialogue), "x.x+++");
    CliqueCase(dialogue, 0);
    EXPECT_EQ(Coches(dialogue) + Boutons(dialogue), "..x+++");
    CliqueCase(dialogue, 2);
    EXPECT_EQ(Coches(dialogue) + Boutons(dialogue), "...+--");
    CliqueCase(dialogue, 1);
    EXPECT_EQ(Coches(dialogue) + Boutons(dialogue), ".x.+++");
    CliqueCase(dialogue, 0);
    CliqueCase(dialogue, 2);
    EXPECT_EQ(Coches(dialogue) + Boutons(dialogue), "xxx-++");
  });
}

TEST_F(ChoixDExport, UnClicACoteDeLaCaseNeCochePas) {
  OuvreTrois();
  AvecExport([](QDialog& dialogue) {
    QTreeWidget& liste = Liste(dialogue);
    QTest::mouseClick(liste.viewport(), Qt::LeftButton, {},
                      liste.visualItemRect(liste.topLevelItem(1)).center());
    EXPECT_EQ(Coches(dialogue) + Boutons(dialogue), "xxx-++");
    EXPECT_EQ(liste.currentItem(), liste.topLevelItem(1));
  });
}

TEST_F(ChoixDExport, LesFlechesEtLaBarreDEspaceCochentEtDecochent) {
  OuvreTrois();
  AvecExport([](QDialog& dialogue) {
    Frappe(Qt::Key_Down);
    Frappe(Qt::Key_Space);
    EXPECT_EQ(Coches(dialogue) + Boutons(dialogue), "x.x+++");
    Frappe(Qt::Key_Down);
    Frappe(Qt::Key_Space);
    Frappe(Qt::Key_Home);
    Frappe(Qt::Key_Space);
    EXPECT_EQ(Coches(dialogue) + Boutons(dialogue), "...+--");
    Frappe(Qt::Key_Space);
    EXPECT_EQ(Coches(dialogue) + Boutons(dialogue), "x..+++");
  });
}

TEST_F(ChoixDExport, LesDeuxBoutonsCochentOuDecochentToutEtRendentLeClavierALaListe) {
  OuvreTrois();
  AvecExport([](QDialog& dialogue) {
    Clique(Trouve(dialogue, "cmdDeselect"));
    EXPECT_EQ(Coches(dialogue) + Boutons(dialogue), "...+--");
    EXPECT_TRUE(Liste(dialogue).hasFocus());
    Frappe(Qt::Key_Space);
    Clique(Trouve(dialogue, "cmdSelect"));
    EXPECT_EQ(Coches(dialogue) + Boutons(dialogue), "xxx-++");
    EXPECT_TRUE(Liste(dialogue).hasFocus());
    Frappe(Qt::Key_D, Qt::AltModifier);
    EXPECT_TRUE(QTest::qWaitFor([&] { return Coches(dialogue) + Boutons(dialogue) == "...+--"; }));
    Frappe(Qt::Key_S, Qt::AltModifier);
    EXPECT_TRUE(QTest::qWaitFor([&] { return Coches(dialogue) + Boutons(dialogue) == "xxx-++"; }));
  });
}

TEST_F(ChoixDExport, UneSeuleFamilleLaisseLesMemesRegles) {
  Ouvre();
  AvecExport([](QDialog& dialogue) {
    EXPECT_EQ(Boutons(dialogue), "-++");
    CliqueCase(dialogue, 0);
    EXPECT_EQ(Boutons(dialogue), "+--");
    CliqueCase(dialogue, 0);
    EXPECT_EQ(Boutons(dialogue), "-++");
  });
}

TEST_F(ChoixDExport, AnnulerEtEchappeFermentSansRienFaire) {
  OuvreTrois();
  AvecExport([](QDialog& dialogue) {
    Clique(Trouve(dialogue, "cmdAnnuler"));
    EXPECT_FALSE(dialogue.isVisible());
  });
  AvecExport([](QDialog& dialogue) {
    CliqueCase(dialogue, 1);
    Frappe(Qt::Key_Escape);
    EXPECT_FALSE(dialogue.isVisible());
  });
  EXPECT_THAT(b.disque.changements(), IsEmpty());
  EXPECT_THAT(b.association.cibles, IsEmpty());
  EXPECT_FALSE(b.dossier.A("export.doc"));
}

TEST_F(ChoixDExport, EntreeSansFamilleCocheeNExportePas) {
  OuvreTrois();
  AvecExport([](QDialog& dialogue) {
    Clique(Trouve(dialogue, "cmdDeselect"));
    Frappe(Qt::Key_Return);
    EXPECT_TRUE(dialogue.isVisible());
  });
  EXPECT_FALSE(b.dossier.A("export.doc"));
}

TEST_F(ChoixDExport, LaToucheTabVaDeLaListeAuxBoutons) {
  OuvreTrois();
  AvecExport([](QDialog& dialogue) {
    CliqueCase(dialogue, 0);  // all buttons can be pressed
    QStringList tour;
    for (int i = 0; i < 7; ++i) {
      tour << QApplication::focusWidget()->objectName();
      Frappe(Qt::Key_Tab);
    }
    EXPECT_EQ(tour.join(u' '),
              "ListView1 cmdSelect cmdDeselect cmdExport cmdAnnuler cmdAide ListView1");
  });
}

TEST_F(ChoixDExport, LesTouchesDAccesSontDistinctes) {
  OuvreTrois();
  AvecExport([](QDialog& dialogue) {
    QStringList touches;
    for (const auto* bouton : dialogue.findChildren<QPushButton*>()) {
      if (bouton->isVisible()) {
        touches << bouton->shortcut().toString();
      }
    }
    EXPECT_EQ(touches.size(), 5);
    EXPECT_EQ(touches.removeDuplicates(), 0);
  });
}

TEST_F(ChoixDExport, ChaqueControleASonParagrapheDansLAide) {
  OuvreTrois();
  b.module->fichierAide = DepuisUtf8(FICHIER_AIDE);
  AvecExport([](QDialog& dialogue) {
    CliqueCase(dialogue, 0);
    for (const char* nom : {"ListView1", "cmdSelect", "cmdDeselect", "cmdExport", "cmdAnnuler"}) {
      Trouve(dialogue, nom).setFocus();
      Frappe(Qt::Key_F1);
      EXPECT_EQ(SujetAide(), "exporter");
      EXPECT_EQ(Trouve<QTextBrowser>(*FenetreAide(), "txtPage").source().fragment(), nom);
      dialogue.activateWindow();
    }
    Clique(Trouve(dialogue, "cmdAide"));
    EXPECT_EQ(SujetAide(), "exporter");
  });
}

TEST_F(ChoixDExport, SansLesFamillesLeProgrammeFinit) {
  Ouvre();
  for (const bool ferme : {false, true}) {
    b.messages.vus.clear();
    b.module->erreurFatale = false;
    b.disque.EchoueSur("lit GLR1.DAT", Panne::entreeSortie);
    if (ferme) {
      b.disque.Guerit();
      b.module->Place(Donnees::GLR1).reset();
    }
    EXPECT_EQ(FinDe([&] { const frmExport dialogue(*b.module, nullptr); }), 1);
    EXPECT_THAT(b.messages.vus, ElementsAre(MessageVu{
                                    std::string("Erreur fatale. Impossibilité de continuer."_1252),
                                    Icone::critique, "Gastrelle 2005"}));
  }
}

TEST_F(ChoixDExport, SansUneFamilleLExportNAQueSonEntete) {
  Ouvre();
  RecFamille famille;
  b.module->bufFamille.Lit(2, famille);
  famille.actif = supprime;
  b.module->bufFamille.Ecrit(2, famille);
  b.module->bufFamille.Compte(-1);
  AvecExport([](QDialog& dialogue) {
    EXPECT_EQ(Coches(dialogue), "");
    EXPECT_EQ(Boutons(dialogue), "-++");
    Frappe(Qt::Key_Down);
    Frappe(Qt::Key_Space);
    Frappe(Qt::Key_Return);
    EXPECT_FALSE(dialogue.isVisible());
  });
  EXPECT_EQ(Document(), Entete());
}

TEST_F(ChoixDExport, TientAutantDeFamillesQuUnEnTeteEnCompte) {
  constexpr int nombre = 32766;
  std::string octets = b.dossier.Lit("GLR1.stp").substr(0, longueurEnregistrement<RecFamille>);
  octets[0] = static_cast<char>(nombre & 0xFF);
  octets[1] = static_cast<char>(nombre >> 8);
  for (int i = 0; i < nombre; ++i) {
    RecFamille famille;
    famille.actif = vivant;
    famille.nomFamille = "Famille " + std::to_string(i);
    octets += Octets(famille);
  }
  b.dossier.Ecrit("GLR1.stp", octets);
  Ouvre();
  QElapsedTimer depuis;
  depuis.start();
  Exporte([&](QDialog& dialogue) {
    EXPECT_EQ(Liste(dialogue).topLevelItemCount(), nombre);
    CliqueCase(dialogue, 0);
    EXPECT_EQ(Boutons(dialogue), "+++");
  });
  EXPECT_LT(depuis.elapsed(), 5000);
  EXPECT_THAT(Document(), testing::EndsWith("* Famille de recettes : FAMILLE 32765\r\n\r\n"));
}

}  // namespace
}  // namespace gastrelle::essai
