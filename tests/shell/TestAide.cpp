// The help: its window, its search, the key F1, its place beside a modal dialog.

#include <functional>

#include <QAccessible>
#include <QFile>
#include <QLineEdit>
#include <QListWidget>
#include <QScreen>
#include <QScrollBar>
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
#include "shell/PlaceAide.h"

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

TEST_F(AideEnLigne, F1VaAuParagrapheDuControle) {
  QWidget page;
  page.setProperty(proprieteSujet, "recettes-modifier");
  QLineEdit boite(&page);
  boite.setObjectName("txtImageModifier");
  QTest::keyClick(&boite, Qt::Key_F1);
  EXPECT_EQ(SujetAide(), "recettes-modifier");
  EXPECT_EQ(Page().source().fragment(), "txtImageModifier");
  ASSERT_THAT(Page().extraSelections(), SizeIs(1));
  const QTextCursor paragraphe = Page().extraSelections().first().cursor;
  EXPECT_TRUE(paragraphe.selectedText().startsWith("L'image se choisit"));
  EXPECT_TRUE(Page().viewport()->rect().contains(Page().cursorRect(paragraphe).center()));
  EXPECT_EQ(Page().textCursor().position(), paragraphe.selectionStart());
  boite.setObjectName("txtSansParagraphe");
  QTest::keyClick(&boite, Qt::Key_F1);
  EXPECT_TRUE(Page().source().fragment().isEmpty());
  EXPECT_EQ(Page().verticalScrollBar()->value(), 0);
  EXPECT_THAT(Page().extraSelections(), IsEmpty());
}

TEST_F(AideEnLigne, F1VaAuParagrapheDeCeQuiLEntoure) {
  QWidget page;
  page.setProperty(proprieteSujet, "cadre");
  QWidget dialogue(&page);
  dialogue.setObjectName("frmSauvegarde");
  QLineEdit boite(&dialogue);
  boite.setObjectName("txtChemin");
  QTest::keyClick(&boite, Qt::Key_F1);
  EXPECT_EQ(Page().source().fragment(), "frmSauvegarde");
}

TEST_F(AideEnLigne, F1DansLAideOuvreSaPageAuParagraphe) {
  aide->Ouvre("cadre");
  QTest::keyClick(&Dans("treeSommaire"), Qt::Key_F1);
  EXPECT_EQ(SujetAide(), "aide");
  EXPECT_EQ(Page().source().fragment(), "treeSommaire");
}

// The window for those who don't see it, and its place for those who do.

TEST_F(AideEnLigne, LesAidesTechniquesVoientUneFenetreEtSesPartiesNommees) {
  aide->Ouvre(sujetAccueil);
  const QAccessibleInterface* fenetre = QAccessible::queryAccessibleInterface(FenetreAide());
  ASSERT_NE(fenetre, nullptr);
  EXPECT_EQ(fenetre->role(), QAccessible::Window);
  EXPECT_EQ(fenetre->text(QAccessible::Name), "Aide de Gastrelle");
  for (const char* nom : {"tbAide", "txtRecherche", "treeSommaire", "lstResultats", "partage",
                          "txtPage", "tbAide.Precedent", "tbAide.Suivant", "tbAide.Sommaire"}) {
    EXPECT_FALSE(
        QAccessible::queryAccessibleInterface(&Dans(nom))->text(QAccessible::Name).isEmpty())
        << nom;
  }
}

TEST_F(AideEnLigne, SaPremierePlaceEstAupresDuProgramme) {
  QWidget programme;
  const QRect ecran = programme.screen()->availableGeometry();
  programme.setGeometry(ecran.x(), ecran.y(), ecran.width() / 2, ecran.height() / 4);
  programme.show();
  QApplication::setActiveWindow(&programme);
  aide->Ouvre(sujetAccueil);
  const QWidget& fenetre = *FenetreAide();
  EXPECT_EQ(fenetre.size(), TailleAide(ecran));
  EXPECT_TRUE(ecran.contains(fenetre.frameGeometry()));
  EXPECT_EQ(fenetre.pos(),
            CoinAide(ecran, fenetre.frameGeometry().size(), programme.frameGeometry()));
  EXPECT_NE(fenetre.pos(), ecran.topLeft());
}

TEST_F(AideEnLigne, DeplaceeElleSeRouvreOuElleEtait) {
  aide->Ouvre(sujetAccueil);
  constexpr QRect choisie(40, 50, 700, 500);
  FenetreAide()->setGeometry(choisie);
  FenetreAide()->close();
  aide->Ouvre("cadre");
  EXPECT_EQ(FenetreAide()->geometry(), choisie);
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
    arbre.scrollToItem(entrees.first());
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
    ASSERT_TRUE(QTest::qWaitForWindowActive(FenetreAide()));
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
  EXPECT_TRUE(Cherche("oeuf").contains("Se servir de l'aide"));
  EXPECT_EQ(Cherche("oeuf"), Cherche(Fr("œuf")));
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

TEST_F(RechercheDansLAide, UnePageDemandeeMetFinALaRecherche) {
  QLineEdit boite;
  boite.setProperty(proprieteSujet, "donnees");
  const std::vector<std::function<void()>> demandes{
      [&] { QTest::keyClick(&boite, Qt::Key_F1); },
      [] { Clique(Dans("tbAide.Sommaire")); },
      [] { QTest::keyClick(FenetreAide(), Qt::Key_Home, Qt::AltModifier); },
  };
  for (const auto& demande : demandes) {
    for (const char* mots : {"zzz", "sauve"}) {
      Cherche(mots);
      ASSERT_FALSE(Dans("treeSommaire").isVisible());
      demande();
      EXPECT_EQ(Texte(Dans("txtRecherche")), "");
      EXPECT_TRUE(Dans("treeSommaire").isVisible());
      EXPECT_THAT(Page().extraSelections(), IsEmpty());
    }
  }
}

TEST_F(RechercheDansLAide, LaFlecheVaAuxPagesTrouveesEtRevient) {
  for (const Qt::Key touche : {Qt::Key_Down, Qt::Key_Return, Qt::Key_Enter}) {
    Dans("txtRecherche").setFocus();
    const QStringList pages = Cherche("recettes");
    ASSERT_GT(pages.size(), 2);
    auto& resultats = Dans<QListWidget>("lstResultats");
    QTest::keyClick(&Dans("txtRecherche"), touche);
    EXPECT_TRUE(resultats.hasFocus());
    EXPECT_EQ(resultats.currentRow(), 0);
    const QString premiere = SujetAide();
    QTest::keyClick(&resultats, Qt::Key_Down);
    EXPECT_EQ(resultats.currentRow(), 1);
    EXPECT_NE(SujetAide(), premiere);
    QTest::keyClick(&resultats, Qt::Key_Up);
    EXPECT_EQ(SujetAide(), premiere);
    EXPECT_TRUE(resultats.hasFocus());
    QTest::keyClick(&resultats, Qt::Key_Up);
    EXPECT_TRUE(Dans("txtRecherche").hasFocus());
    EXPECT_EQ(Texte(Dans("txtRecherche")), "recettes");
  }
}

TEST_F(RechercheDansLAide, SansPageTrouveeLeClavierResteDansLaCase) {
  Dans("txtRecherche").setFocus();
  Cherche("zzz");
  QTest::keyClick(&Dans("txtRecherche"), Qt::Key_Down);
  EXPECT_TRUE(Dans("txtRecherche").hasFocus());
}

TEST_F(RechercheDansLAide, SansRechercheLaFlecheVaAuSommaire) {
  Dans("txtRecherche").setFocus();
  QTest::keyClick(&Dans("txtRecherche"), Qt::Key_Down);
  EXPECT_TRUE(Dans("treeSommaire").hasFocus());
}

TEST_F(RechercheDansLAide, LesTouchesOntLeMemeNomPartout) {
  const QString bulle = Dans("tbAide.Sommaire").toolTip();
  EXPECT_EQ(bulle, Fr("Sommaire (Alt+Début)"));
  for (const char* sujet : {"aide", "clavier"}) {
    EXPECT_TRUE(FichierAide::Html(sujet).contains(Fr("Alt + Début"))) << sujet;
    EXPECT_FALSE(FichierAide::Html(sujet).contains("+ Origine")) << sujet;
  }
}

}  // namespace
}  // namespace gastrelle::essai
