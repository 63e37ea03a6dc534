// The wines window on the tab that counts the bottles of a wine, with verbs for its tests.
#pragma once

#include <array>

#include <QLineEdit>

#include "vins/fenetre/FenetreVins.h"

namespace gastrelle::essai {

inline constexpr int ongletMesVins = 6;
inline constexpr int ongletMaCave = 7;

class FenetreCave : public FenetreVins {
 protected:
  /// Opens on the bottles of "Abymes", six white and two red, in the window that has the keyboard.
  void OuvreCave() {
    OuvreSurAbymes(ongletMesVins);
    RendActive();
  }
  void RendActive() {
    fenetre->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(fenetre.get()));
    b.disque.OublieJournal();
  }

  QLineEdit& blanc() { return Le<QLineEdit>("txtSaisieBlanc"); }
  QLineEdit& rouge() { return Le<QLineEdit>("txtSaisieRouge"); }
  QWidget& notes() { return Le("txtNotesCave"); }
  void Valide() { Clique(Le("cmdValideCave")); }

  /// What the nine boxes show, in the order of the colours.
  QStringList Nombres() {
    QStringList nombres;
    for (const char* couleur :
         {"Blanc", "Rouge", "Rose", "Champagne", "VDN", "Jaune", "Paille", "Mousseux", "Gris"}) {
      nombres << TexteDe((std::string("txtSaisie") + couleur).c_str());
    }
    return nombres;
  }

  /// So many messages and no others, each with that text for its title.
  void AttendRefus(std::string_view saisi, std::size_t fois = 1) const {
    EXPECT_EQ(b.messages.vus,
              std::vector(fois, MessageVu{DepuisUtf8("Veuillez insérer un nombre entier (de 1 à "
                                                     "32767)"),
                                          Icone::aucune, std::string(saisi)}));
  }
  /// A box has the keyboard, its whole text selected.
  static void AttendChoisie(const QLineEdit& boite) {
    EXPECT_EQ(QApplication::focusWidget(), &boite);
    EXPECT_EQ(boite.selectedText(), boite.text());
  }
};

}  // namespace gastrelle::essai
