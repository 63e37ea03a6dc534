// The maintenance dialogs as the real frame's entries open them.
#pragma once

#include <string>
#include <vector>

#include <QTest>

#include "doublures/AideVue.h"
#include "doublures/CadreVrai.h"
#include "doublures/Depart.h"
#include "doublures/ToutesFenetres.h"
#include "maintenance/MaintenanceEssai.h"

namespace gastrelle::essai {

class DialogueMaintenance : public CadreVrai {
 protected:
  /// The library of `GarnitDePertes`, its one picture being there.
  void OuvreAvecPertes(RecPreferences preferences = sansSauvegarde) {
    GarnitDePertes(b);
    std::filesystem::create_directory(b.dossier.chemin() / "IMAGE");
    b.dossier.Ecrit("IMAGE/tarte.png", "x");
    Ouvre(preferences);
  }

  /// All nine windows on a full library, with something to clean. What is typed in the notes and in
  /// the shopping list isn't on file yet.
  void OuvreLesNeuf(RecPreferences preferences = fenetresNormales) {
    b.Garnit();
    b.dossier.Ecrit("GLR3.stp", b.dossier.Lit("GLR3.stp") + "perdu");
    Ouvre(preferences);
    for (const LigneEssai& ligne : ToutesLesFenetres()) {
      Choisit(ligne.entree);
    }
    Tape(Le("txtSaisie"), "Encore une.");
    Tape(Le("txtDetail"), "Du pain.");
    b.disque.OublieJournal();
  }

  /// Opens a dialog by its entry and looks at it while it is there.
  void AvecMaintenance(const char* entree, const char* nom,
                       const std::function<void(QDialog&)>& regarde) {
    AvecDialogue([&] { Choisit(entree); },
                 [&](QDialog& dialogue) {
                   EXPECT_EQ(dialogue.objectName(), nom);
                   EXPECT_TRUE(dialogue.isModal());
                   EXPECT_EQ(dialogue.parentWidget(), cadre.get());
                   QApplication::processEvents();
                   regarde(dialogue);
                 });
    Attend();
  }

  static void Attend() {
    QApplication::processEvents();
    QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QApplication::processEvents();
  }

  /// The windows that are open, in the order of the view menu.
  std::string Ouvertes() {
    QStringList noms;
    for (const LigneEssai& ligne : ToutesLesFenetres()) {
      for (const QMdiSubWindow* fenetre : enfants().subWindowList()) {
        if (fenetre->widget()->objectName() == QLatin1String(ligne.nom)) {
          noms << ligne.nom;
        }
      }
    }
    return noms.join(u' ').toStdString();
  }
  static std::string ToutesOuvertes() {
    QStringList noms;
    for (const LigneEssai& ligne : ToutesLesFenetres()) {
      noms << ligne.nom;
    }
    return noms.join(u' ').toStdString();
  }

  /// The recipes are on the screen, maximised, on their first tab.
  void AttendRecettesMaximisees() {
    EXPECT_TRUE(recettes().isMaximized());
    EXPECT_TRUE(recettes().isVisible());
    EXPECT_EQ(enfants().activeSubWindow(), &recettes());
    EXPECT_EQ(b.module->contexteActif, 11);
    EXPECT_EQ(cadre->property("Tag").toString(), "");
    EXPECT_FALSE(b.pointeur.sablier);
  }
  /// Every window opens again from its entry.
  void AttendQueToutSeRouvre() {
    for (const LigneEssai& ligne : ToutesLesFenetres()) {
      Choisit(ligne.entree);
      EXPECT_EQ(b.module->contexteActif, ligne.premierContexte) << ligne.nom;
    }
    EXPECT_EQ(Ouvertes(), ToutesOuvertes());
    EXPECT_THAT(b.messages.vus, testing::IsEmpty());
    EXPECT_EQ(FinVue(), std::nullopt);
  }
  /// The frame isn't asked to go on after an end of the program that this process survives.
  void OublieLaMarque(QDialog& dialogue) {
    dialogue.hide();
    cadre->setProperty("Tag", QString());
  }

  /// The names that the Tab key goes through, from what has the keyboard.
  static std::string TourDuClavier(int visites) {
    QStringList tour;
    for (int i = 0; i < visites; ++i) {
      tour << QApplication::focusWidget()->objectName();
      Frappe(Qt::Key_Tab);
    }
    return tour.join(u' ').toStdString();
  }
  static QStringList TouchesDAcces(const QDialog& dialogue) {
    QStringList touches;
    for (const auto* bouton : dialogue.findChildren<QPushButton*>()) {
      if (bouton->isVisible()) {
        touches << bouton->shortcut().toString();
      }
    }
    return touches;
  }
  /// F1 on each of these controls leads to its own paragraph of the topic.
  void AttendAides(QDialog& dialogue, const char* sujet, std::initializer_list<const char*> noms) {
    b.module->fichierAide = DepuisUtf8(FICHIER_AIDE);
    for (const char* nom : noms) {
      Trouve(dialogue, nom).setFocus();
      Frappe(Qt::Key_F1);
      EXPECT_EQ(SujetAide(), sujet) << nom;
      EXPECT_EQ(Trouve<QTextBrowser>(*FenetreAide(), "txtPage").source().fragment(), nom);
      dialogue.activateWindow();
    }
  }

  static constexpr RecPreferences fenetresNormales{1, 0, 1};
};

/// A font twice as large, and the light palette's contrary, as long as it lives.
class GrandEtSombre {
 public:
  GrandEtSombre() {
    QFont grande = police_;
    grande.setPointSizeF(2 * police_.pointSizeF());
    QApplication::setFont(grande);
    QApplication::setPalette(QPalette(QColor(0x31, 0x31, 0x31)));
  }
  GrandEtSombre(const GrandEtSombre&) = delete;
  GrandEtSombre& operator=(const GrandEtSombre&) = delete;
  ~GrandEtSombre() {
    QApplication::setFont(police_);
    QApplication::setPalette(palette_);
  }

 private:
  const QFont police_ = QApplication::font();
  const QPalette palette_ = QApplication::palette();
};

}  // namespace gastrelle::essai
