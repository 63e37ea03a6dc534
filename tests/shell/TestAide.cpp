// The help: its window, its search, the key F1, its place beside a modal dialog.

#include <QFile>
#include <QLineEdit>
#include <QTest>
#include <QTextBrowser>
#include <QTimer>
#include <QTreeWidget>
#include <QWindow>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "controles/Conversion.h"
#include "controles/Touches.h"
#include "doublures/AideVue.h"
#include "doublures/ApplicationEssai.h"
#include "doublures/Bibliotheque.h"
#include "doublures/Ecran.h"
#include "maintenance/frmPreferences.h"
#include "shell/Aide.h"
#include "shell/FichierAide.h"

namespace gastrelle::essai {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

class AideEnLigne : public testing::Test {
 protected:
  void SetUp() override {
    b.module->fichierAide = DepuisUtf8(FICHIER_AIDE);
    aide.emplace(*b.module);
  }

  /// A help file of other bytes, in the tests' own folder.
  void Remplace(const std::string& octets) {
    b.dossier.Ecrit("gl32.hlp", octets);
    b.module->fichierAide = b.module->chemins.De("gl32.hlp");
  }

  static std::string Octets() {
    QFile fichier(QStringLiteral(FICHIER_AIDE));
    EXPECT_TRUE(fichier.open(QIODevice::ReadOnly));
    return fichier.readAll().toStdString();
  }

  static bool Visible() {
    const QWidget* fenetre = FenetreAide();
    return fenetre != nullptr && fenetre->isVisible();
  }

  template <class Controle = QWidget>
  static Controle& Dans(const char* nom) {
    return Trouve<Controle>(*FenetreAide(), nom);
  }

  static QTextBrowser& Page() { return Dans<QTextBrowser>("txtPage"); }

  void AttendMessage(std::string_view texte) {
    EXPECT_THAT(b.messages.vus,
                ElementsAre(MessageVu{std::string(texte), Icone::aucune, "Gastrelle 2005"}));
    EXPECT_FALSE(Visible());
  }

  Bibliotheque b;
  std::optional<Aide> aide;
};

TEST_F(AideEnLigne, OuvreUnSujet) {
  aide->Ouvre("recettes-ajouter");
  ASSERT_TRUE(Visible());
  EXPECT_EQ(FenetreAide()->windowTitle(), "Aide de Gastrelle");
  EXPECT_EQ(SujetAide(), "recettes-ajouter");
  EXPECT_TRUE(Page().toPlainText().startsWith("Ajouter une recette"));
}

TEST_F(AideEnLigne, UnSujetInconnuOuvreLAccueil) {
  aide->Ouvre("jamais-ecrit");
  EXPECT_EQ(SujetAide(), sujetAccueil);
}

TEST_F(AideEnLigne, SansFichierDAideRienNeSePasse) {
  b.module->fichierAide.clear();
  aide->Ouvre(sujetAccueil);
  EXPECT_EQ(FenetreAide(), nullptr);
  EXPECT_THAT(b.messages.vus, IsEmpty());
}

TEST_F(AideEnLigne, UnFichierAbsentSeDit) {
  b.module->fichierAide = b.module->chemins.De("absent.hlp");
  aide->Ouvre(sujetAccueil);
  AttendMessage("Fichier introuvable");
}

TEST_F(AideEnLigne, UnFichierVideSeDit) {
  Remplace({});
  aide->Ouvre(sujetAccueil);
  AttendMessage("Fichier d'aide illisible ou incomplet");
}

TEST_F(AideEnLigne, UnFichierCoupeSeDit) {
  const std::string entier = Octets();
  Remplace(entier.substr(0, entier.size() / 2));
  aide->Ouvre(sujetAccueil);
  AttendMessage("Fichier d'aide illisible ou incomplet");
}

TEST_F(AideEnLigne, UnSeulOctetFauxSeDit) {
  const std::string entier = Octets();
  for (const std::size_t ou :
       {std::size_t{0}, entier.size() / 3, entier.size() - 100, entier.size() - 1}) {
    std::string abime = entier;
    abime[ou] = static_cast<char>(abime[ou] ^ 1);
    Remplace(abime);
    b.messages.vus.clear();
    aide->Ouvre(sujetAccueil);
    AttendMessage("Fichier d'aide illisible ou incomplet");
  }
}

TEST_F(AideEnLigne, UnFichierRepareOuvreALEssaiSuivant) {
  Remplace("x");
  aide->Ouvre(sujetAccueil);
  Remplace(Octets());
  aide->Ouvre(sujetAccueil);
  EXPECT_TRUE(Visible());
}

TEST_F(AideEnLigne, QuitteFermeLaFenetreEtOuvreLaRouvre) {
  aide->Ouvre("preferences");
  aide->Quitte();
  EXPECT_EQ(FenetreAide(), nullptr);
  aide->Ouvre("cadre");
  EXPECT_EQ(SujetAide(), "cadre");
}

TEST_F(AideEnLigne, FermeeParSaCroixElleSeRouvre) {
  aide->Ouvre("preferences");
  FenetreAide()->close();
  EXPECT_FALSE(Visible());
  aide->Ouvre("cadre");
  EXPECT_TRUE(Visible());
  EXPECT_EQ(SujetAide(), "cadre");
}

TEST_F(AideEnLigne, EchappeLaFerme) {
  aide->Ouvre(sujetAccueil);
  QTest::keyClick(&Page(), Qt::Key_Escape);
  EXPECT_FALSE(Visible());
}

// F1: the topic of the control, or of what it lies in.

TEST_F(AideEnLigne, F1OuvreLeSujetDuControle) {
  QLineEdit boite;
  boite.setProperty(proprieteSujet, "recettes-modifier");
  QTest::keyClick(&boite, Qt::Key_F1);
  EXPECT_EQ(SujetAide(), "recettes-modifier");
}

TEST_F(AideEnLigne, F1OuvreLeSujetDeCeQuiLEntoure) {
  QWidget fenetre;
  fenetre.setProperty(proprieteSujet, "cadre");
  auto* page = new QWidget(&fenetre);
  page->setProperty(proprieteSujet, "recettes-alpha");
  auto* boite = new QLineEdit(new QWidget(page));
  QTest::keyClick(boite, Qt::Key_F1);
  EXPECT_EQ(SujetAide(), "recettes-alpha");
}

TEST_F(AideEnLigne, F1SansSujetOuvreLAccueil) {
  QLineEdit boite;
  QTest::keyClick(&boite, Qt::Key_F1);
  EXPECT_EQ(SujetAide(), sujetAccueil);
}

TEST_F(AideEnLigne, MajusculeF1NEstPasF1) {
  QLineEdit boite;
  QTest::keyClick(&boite, Qt::Key_F1, Qt::ShiftModifier);
  EXPECT_EQ(FenetreAide(), nullptr);
}

TEST_F(AideEnLigne, LeBoutonAideDesPreferencesOuvreLeurPage) {
  b.Demarre();
  b.module->fichierAide = DepuisUtf8(FICHIER_AIDE);
  frmPreferences dialogue(*b.module, nullptr);
  dialogue.show();
  dialogue.activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&dialogue));
  Clique(Trouve(dialogue, "cmdAide"));
  EXPECT_EQ(SujetAide(), "preferences");
}

// Beside a modal dialog.

class AideEtDialogue : public AideEnLigne {
 protected:
  /// Runs a modal dialog and, while it is open, a block.
  template <class F>
  static void Pendant(QDialog& dialogue, F&& bloc) {
    QTimer::singleShot(0, &dialogue, [&] {
      bloc();
      dialogue.accept();
    });
    dialogue.exec();
    QApplication::processEvents();
  }

  /// A click that the modal dialog may stop, on a page of the contents.
  static void CliqueSommaire(const QString& titre) {
    auto& arbre = Dans<QTreeWidget>("treeSommaire");
    const QList<QTreeWidgetItem*> entrees =
        arbre.findItems(titre, Qt::MatchExactly | Qt::MatchRecursive);
    ASSERT_THAT(entrees, SizeIs(1));
    const QPoint milieu = arbre.visualItemRect(entrees.first()).center();
    QTest::mouseClick(FenetreAide()->windowHandle(), Qt::LeftButton, {},
                      arbre.viewport()->mapTo(FenetreAide(), milieu));
  }

  static QWindow* Transitoire() { return FenetreAide()->windowHandle()->transientParent(); }
};

TEST_F(AideEtDialogue, OuverteDepuisUnDialogueElleSeLit) {
  QDialog dialogue;
  Pendant(dialogue, [&] {
    QTest::keyClick(&dialogue, Qt::Key_F1);
    CliqueSommaire(Fr("Les préférences"));
    EXPECT_EQ(SujetAide(), "preferences");
  });
}

TEST_F(AideEtDialogue, OuverteAvantElleSeLitDesQuOnLaDemandeDuDialogue) {
  aide->Ouvre("cadre");
  QDialog dialogue;
  Pendant(dialogue, [&] {
    CliqueSommaire(Fr("Les préférences"));
    EXPECT_EQ(SujetAide(), "cadre");  // the dialog stops the click
    QTest::keyClick(&dialogue, Qt::Key_F1);
    CliqueSommaire(Fr("Les préférences"));
    EXPECT_EQ(SujetAide(), "preferences");
  });
}

TEST_F(AideEtDialogue, LeDialogueFermeElleResteEtRedevientLibre) {
  {
    QDialog dialogue;
    Pendant(dialogue, [&] {
      QTest::keyClick(&dialogue, Qt::Key_F1);
      EXPECT_EQ(Transitoire(), dialogue.windowHandle());
    });
    EXPECT_EQ(Transitoire(), nullptr);
  }
  EXPECT_TRUE(Visible());
  CliqueSommaire(Fr("La fenêtre principale"));
  EXPECT_EQ(SujetAide(), "cadre");
}

TEST_F(AideEtDialogue, LeDialogueInterieurFermeElleSuitLAutre) {
  QDialog dehors;
  Pendant(dehors, [&] {
    QDialog dedans(&dehors);
    Pendant(dedans, [&] { QTest::keyClick(&dedans, Qt::Key_F1); });
    EXPECT_EQ(Transitoire(), dehors.windowHandle());
    CliqueSommaire(Fr("La fenêtre principale"));
    EXPECT_EQ(SujetAide(), "cadre");
  });
}

// The window: contents, search, ways back.

TEST_F(AideEnLigne, LeSommaireSuitLaPage) {
  aide->Ouvre("visualisateur");
  EXPECT_EQ(Dans<QTreeWidget>("treeSommaire").currentItem()->text(0), "Voir l'image d'une recette");
}

TEST_F(AideEnLigne, LesBoutonsReviennentSurLesPas) {
  aide->Ouvre("cadre");
  EXPECT_FALSE(Dans("tbAide.Precedent").isEnabled());
  aide->Ouvre("preferences");
  Clique(Dans("tbAide.Precedent"));
  EXPECT_EQ(SujetAide(), "cadre");
  Clique(Dans("tbAide.Suivant"));
  EXPECT_EQ(SujetAide(), "preferences");
  Clique(Dans("tbAide.Sommaire"));
  EXPECT_EQ(SujetAide(), sujetAccueil);
}

TEST_F(AideEnLigne, UnLienOuvreSaPage) {
  aide->Ouvre("preferences");
  QTextCursor lien = Page().document()->find("Vos données et leur sauvegarde");
  ASSERT_FALSE(lien.isNull());
  lien.setPosition(lien.selectionStart() + 3);
  QTest::mouseClick(Page().viewport(), Qt::LeftButton, {}, Page().cursorRect(lien).center());
  EXPECT_EQ(SujetAide(), "donnees");
}

class RechercheDansLAide : public AideEnLigne {
 protected:
  void SetUp() override {
    AideEnLigne::SetUp();
    aide->Ouvre(sujetAccueil);
  }

  static QStringList Cherche(const QString& texte) {
    essai::Remplace(Dans("txtRecherche"), texte);
    return Textes(Dans<QAbstractItemView>("lstResultats"));
  }
};

TEST_F(RechercheDansLAide, TrouveToutesLesPagesDUnMot) {
  const QStringList pages = Cherche("SAUVE");
  EXPECT_TRUE(pages.contains(Fr("Vos données et leur sauvegarde")));
  EXPECT_FALSE(pages.contains("Le classement alphabétique"));
  EXPECT_TRUE(Dans("lstResultats").isVisible());
  EXPECT_FALSE(Dans("treeSommaire").isVisible());
}

TEST_F(RechercheDansLAide, LesAccentsEtLesMajusculesNeComptentPas) {
  EXPECT_EQ(Cherche("PREFERENCES"), Cherche(Fr("préférences")));
  EXPECT_EQ(Cherche("oeuf"), QStringList{"Se servir de l'aide"});
  EXPECT_EQ(Cherche(Fr("œuf")), QStringList{"Se servir de l'aide"});
}

TEST_F(RechercheDansLAide, TousLesMotsSontDansLaPage) {
  EXPECT_EQ(Cherche("Double-cliquez classement"), QStringList{Fr("Le classement alphabétique")});
}

TEST_F(RechercheDansLAide, LesTitresViennentEnTete) {
  EXPECT_EQ(Cherche("classement").first(), Fr("Le classement alphabétique"));
}

TEST_F(RechercheDansLAide, LesSignesSeCherchentTelsQuels) {
  EXPECT_EQ(Cherche(".*"), QStringList{Fr("Aucune page trouvée")});
  EXPECT_FALSE(Cherche(".stp").contains(Fr("Aucune page trouvée")));
}

TEST_F(RechercheDansLAide, EntreeOuvreLaPremierePageEtSurligne) {
  Cherche("classement alphabetique");
  QTest::keyClick(&Dans("txtRecherche"), Qt::Key_Return);
  EXPECT_EQ(SujetAide(), "recettes-alpha");
  QStringList surlignes;
  for (const QTextEdit::ExtraSelection& marque : Page().extraSelections()) {
    surlignes << marque.cursor.selectedText();
  }
  EXPECT_TRUE(surlignes.contains(Fr("alphabétique")));
}

TEST_F(RechercheDansLAide, UneCaseVideRendLeSommaire) {
  Cherche("sauve");
  Cherche("");
  EXPECT_TRUE(Dans("treeSommaire").isVisible());
  EXPECT_THAT(Page().extraSelections(), IsEmpty());
}

}  // namespace
}  // namespace gastrelle::essai
