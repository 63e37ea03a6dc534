// The real frame on a small library, with verbs for its tests.
#pragma once

#include <memory>

#include <QAction>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenu>
#include <QSettings>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "controles/Conversion.h"
#include "doublures/ApplicationEssai.h"
#include "doublures/Bibliotheque.h"
#include "doublures/Ecran.h"
#include "shell/frmMain.h"

namespace gastrelle::essai {

class ClavierEssai final : public Clavier {
 public:
  [[nodiscard]] std::optional<Verrous> Lit() override { return verrous; }

  std::optional<Verrous> verrous;
};

class CadreVrai : public testing::Test {
 protected:
  CadreVrai() { QSettings(QSettings::UserScope, VersQt(titreApplication)).clear(); }
  ~CadreVrai() override { EcouteMessages(nullptr); }

  void Ouvre(RecPreferences preferences = sansSauvegarde) {
    b.Demarre();
    b.module->prefs[0] = preferences;
    OublieFin();
    EcouteMessages(&b.messages);
    cadre = std::make_unique<frmMain>(*b.module, clavier);
    cadre->show();
    QApplication::setActiveWindow(cadre.get());
    QApplication::processEvents();
    b.disque.OublieJournal();
  }

  /// The same on a library where every window has its catalogue.
  void OuvreGarni(RecPreferences preferences = sansSauvegarde) {
    b.Garnit();
    Ouvre(preferences);
  }

  template <class Controle = QWidget>
  Controle& Le(const char* nom) {
    return Trouve<Controle>(*cadre, nom);
  }
  QAction& Entree(const char* nom) { return Trouve<QAction>(*cadre, nom); }
  /// True if an entry or a submenu can be chosen.
  bool Permis(const char* nom) {
    const auto* menu = cadre->findChild<QMenu*>(QString::fromLatin1(nom));
    return menu != nullptr ? menu->isEnabled() : Entree(nom).isEnabled();
  }
  QWidget& BoutonBarre(const char* cle) { return Le((std::string("tbToolBar.") + cle).c_str()); }
  /// Chooses an entry as a click would; one that is disabled, or in a disabled menu, fails the
  /// test.
  void Choisit(const char* nom) {
    ASSERT_TRUE(Entree(nom).isEnabled()) << nom;
    for (QObject* menu : Entree(nom).associatedObjects()) {
      for (; qobject_cast<QMenu*>(menu) != nullptr; menu = menu->parent()) {
        ASSERT_TRUE(static_cast<QMenu*>(menu)->isEnabled()) << nom;
      }
    }
    Entree(nom).trigger();
    QApplication::processEvents();
  }
  /// What the frame allows, "+" or "-" for printing, cutting, copying, pasting, selecting all,
  /// searching, the entry that sends, the buttons that send, the picture. A "?" is an entry and a
  /// button that differ.
  std::string Motif() {
    const auto etat = [&](const char* entree, const char* cle) {
      const bool permis = entree != nullptr ? Permis(entree) : BoutonBarre(cle).isEnabled();
      const bool autre = cle != nullptr ? BoutonBarre(cle).isEnabled() : permis;
      return permis != autre ? '?' : permis ? '+' : '-';
    };
    const char ttx = etat(nullptr, "Ttx");
    return {etat("mnuFilePrint", "Print"),   etat("mnuEditCut", "Couper"),
            etat("mnuEditCopy", "Copier"),   etat("mnuEditPaste", "Coller"),
            etat("mnuEditSelect", nullptr),  etat("mnuEditRechercher", "Find"),
            etat("mnuEditEnvoyer", nullptr), ttx == etat(nullptr, "Notepad") ? ttx : '?',
            etat("mnuViewImage", nullptr)};
  }
  /// The frame around a child window.
  QMdiSubWindow& Sous(const char* nom) { return *static_cast<QMdiSubWindow*>(Le(nom).parent()); }
  QMdiArea& enfants() { return Le<QMdiArea>("MDIClient"); }
  QMdiSubWindow& recettes() { return Sous("frmRecettes"); }

  static constexpr RecPreferences sansSauvegarde{0, 0, 1};

  Bibliotheque b;
  ClavierEssai clavier;
  std::unique_ptr<frmMain> cadre;
};

}  // namespace gastrelle::essai
