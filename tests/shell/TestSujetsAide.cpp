// The help topics of the windows as they stand in the real frame: each one has its page.

#include <QTest>

#include "controles/Touches.h"
#include "doublures/AideVue.h"
#include "doublures/CadreVrai.h"
#include "doublures/ToutesFenetres.h"
#include "maintenance/frmPreferences.h"
#include "maintenance/frmProprietes.h"
#include "maintenance/frmReinitialisation.h"
#include "maintenance/frmSauvegarde.h"
#include "maintenance/frmSuppRecette.h"
#include "recherche/frmRechercher.h"
#include "shell/FichierAide.h"
#include "shell/frmAbout.h"
#include "shell/frmImage.h"
#include "sortie/frmExport.h"

namespace gastrelle::essai {
namespace {

class SujetsDAide : public CadreVrai {
 protected:
  /// Opens a window and goes through all of its tabs. Returns the topics of its pages.
  QStringList Sujets(const LigneEssai& ligne) {
    Choisit(ligne.entree);
    QWidget& fenetre = Le(ligne.nom);
    QStringList sujets;
    auto* hote = dynamic_cast<FenetreOnglets*>(&fenetre);
    for (int onglet = 1; onglet <= ligne.onglets(); ++onglet) {
      if (hote != nullptr) {
        hote->MontreOnglet(onglet);
        const QWidget& page = Trouve(fenetre, ("Frame1(" + std::to_string(onglet) + ")").c_str());
        EXPECT_EQ(fenetre.property(proprieteSujet), page.property(proprieteSujet)) << onglet;
      }
      sujets << fenetre.property(proprieteSujet).toString();
    }
    return sujets;
  }

  /// Runs a block on each tab of each window: the table's row of the window, what the keyboard
  /// visits there, and the tab's topic.
  template <class F>
  void SurChaqueOnglet(F&& bloc) {
    OuvreGarni();
    b.module->fichierAide = DepuisUtf8(FICHIER_AIDE);
    const auto fichier = FichierAide::Ouvre(QStringLiteral(FICHIER_AIDE));
    ASSERT_NE(fichier, nullptr);
    for (const LigneEssai& ligne : ToutesLesFenetres()) {
      Choisit(ligne.entree);
      QWidget& fenetre = Le(ligne.nom);
      auto* hote = dynamic_cast<FenetreOnglets*>(&fenetre);
      for (int onglet = 1; onglet <= ligne.onglets(); ++onglet) {
        if (hote != nullptr) {
          hote->MontreOnglet(onglet);
        }
        const auto rang = static_cast<std::size_t>(onglet) - 1;
        bloc(fenetre, QString::fromLatin1(ligne.clavier[rang]).split(u' '),
             fenetre.property(proprieteSujet).toString());
      }
    }
  }

  static QUrl Adresse() { return Trouve<QTextBrowser>(*FenetreAide(), "txtPage").source(); }

  FenetreEnfant& Enfant(const char* entree, const char* nom) {
    Choisit(entree);
    return dynamic_cast<FenetreEnfant&>(Le(nom));
  }

  /// The controls of a window that a page of the help names and that aren't there.
  static QStringList Absents(const QString& sujet, const QList<const QObject*>& fenetres) {
    QStringList absents;
    for (const QString& nom : FichierAide::Ancres(sujet)) {
      const bool present = std::any_of(fenetres.begin(), fenetres.end(), [&](const QObject* f) {
        return f->objectName() == nom || f->findChild<QObject*>(nom) != nullptr;
      });
      absents << (present ? QStringList() : QStringList(nom));
    }
    return absents;
  }
};

TEST_F(SujetsDAide, ChaqueOngletDeChaqueFenetreALeSienEtSaPage) {
  OuvreGarni();
  QStringList sujets{cadre->property(proprieteSujet).toString()};
  qsizetype attendus = 1;
  for (const LigneEssai& ligne : ToutesLesFenetres()) {
    sujets << Sujets(ligne);
    attendus += ligne.onglets();
  }
  EXPECT_EQ(sujets.size(), attendus);
  EXPECT_EQ(sujets.removeDuplicates(), 0);
  // Whatever else bears a topic, inside a page or beside it.
  for (const QWidget* controle : cadre->findChildren<QWidget*>()) {
    if (controle->property(proprieteSujet).isValid()) {
      sujets << controle->property(proprieteSujet).toString();
    }
  }
  const auto fichier = FichierAide::Ouvre(QStringLiteral(FICHIER_AIDE));
  ASSERT_NE(fichier, nullptr);
  for (const QString& sujet : sujets) {
    EXPECT_TRUE(fichier->Contient(sujet)) << sujet.toStdString();
  }
}

TEST_F(SujetsDAide, ChaqueControleDUnOngletASonParagraphe) {
  SurChaqueOnglet([](QWidget&, const QStringList& visites, const QString& sujet) {
    for (const QString& nom : visites) {
      EXPECT_TRUE(nom.startsWith("cmdAide") || FichierAide::ContientAncre(sujet, nom))
          << sujet.toStdString() << ": " << nom.toStdString();
    }
  });
}

TEST_F(SujetsDAide, ChaqueParagrapheNommeEstCeluiDUnControle) {
  SurChaqueOnglet([](QWidget& fenetre, const QStringList&, const QString& sujet) {
    const auto* pile = fenetre.findChild<QStackedWidget*>();
    const QObject* page = pile == nullptr ? &fenetre : pile->currentWidget();
    QStringList absents = Absents(sujet, {page});
    absents.removeAll("TabStrip1");
    EXPECT_EQ(absents.join(u' ').toStdString(), "") << sujet.toStdString();
  });
}

TEST_F(SujetsDAide, LesParagraphesDuCadreEtDesDialoguesSontCeuxDeLeursControles) {
  OuvreGarni();
  const frmAbout aPropos(*b.module, nullptr);
  const frmSauvegarde sauvegarde(*b.module);
  const frmPreferences preferences(*b.module, nullptr);
  const frmExport exportation(*b.module, nullptr);
  const frmImage image(*b.module, "x.jpg", nullptr);
  const frmRechercher recettes(*b.module, Enfant("mnuViewRecettes", "frmRecettes"), nullptr);
  const frmRechercher menus(*b.module, Enfant("mnuViewMenus", "frmMenus"), nullptr);
  const frmRechercher trucs(*b.module, Enfant("mnuViewTermesTrucsAstuces", "frmTrucs"), nullptr);
  const FrmProprietes nettoyage(*b.module, *cadre, nullptr);
  const frmSuppRecette suppression(*b.module, *cadre, nullptr);
  const frmReinitialisation reinitialisation(*b.module, *cadre, nullptr);
  b.module->fichierAide = DepuisUtf8(FICHIER_AIDE);
  Choisit("mnuHelpContents");
  EXPECT_EQ(Absents("aide", {FenetreAide()}), QStringList());
  EXPECT_EQ(Absents("cadre", {cadre.get(), &aPropos, &sauvegarde}), QStringList());
  // Two of its headings have anchors of their own.
  EXPECT_EQ(Absents("exporter", {&exportation}), QStringList({"contenu", "messages"}));
  EXPECT_EQ(Absents("preferences", {&preferences}), QStringList());
  EXPECT_EQ(Absents("rechercher", {&recettes, &menus, &trucs}), QStringList());
  EXPECT_EQ(Absents("visualisateur", {&image}), QStringList());
  EXPECT_EQ(Absents("nettoyage", {&nettoyage}), QStringList());
  EXPECT_EQ(Absents("vider", {&suppression}), QStringList());
  EXPECT_EQ(Absents("reinitialiser", {&reinitialisation}), QStringList());
}

TEST_F(SujetsDAide, F1DUnControleDefileASonParagraphe) {
  SurChaqueOnglet([](QWidget& fenetre, const QStringList& visites, const QString& sujet) {
    for (const QString& nom : visites) {
      auto* controle = fenetre.findChild<QWidget*>(nom);
      if (nom.startsWith("cmdAide") || controle == nullptr || !controle->isEnabled()) {
        continue;
      }
      QTest::keyClick(controle, Qt::Key_F1);
      EXPECT_EQ(SujetAide(), sujet);
      EXPECT_EQ(Adresse().fragment(), nom) << sujet.toStdString();
      const auto& page = Trouve<QTextBrowser>(*FenetreAide(), "txtPage");
      ASSERT_EQ(page.extraSelections().size(), 1) << nom.toStdString();
      QTextCursor debut = page.extraSelections().first().cursor;
      debut.setPosition(debut.selectionStart());
      EXPECT_TRUE(page.viewport()->rect().contains(page.cursorRect(debut))) << nom.toStdString();
    }
  });
}

TEST_F(SujetsDAide, LesFromagesEtLesVinsOntUneLigneDansLaBandeDuLogo) {
  OuvreGarni();
  for (const LigneEssai& ligne : ToutesLesFenetres()) {
    Sujets(ligne);
    const std::string_view nom = ligne.nom;
    const bool avecLigne = nom == "frmFromages" || nom == "frmVins";
    EXPECT_EQ(Le(ligne.nom).findChildren<QWidget*>("lblLigneLogo").size(),
              avecLigne ? ligne.onglets() : 0)
        << ligne.nom;
  }
}

}  // namespace
}  // namespace gastrelle::essai
