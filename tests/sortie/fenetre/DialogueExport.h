// The export dialog as the real frame's entry opens it, on three families of which the second one
// is deleted.
#pragma once

#include <string>
#include <vector>

#include <QTest>
#include <QTreeWidget>

#include "doublures/CadreVrai.h"

namespace gastrelle::essai {

class DialogueExport : public CadreVrai {
 protected:
  /// Potages (2), Zestes (4) and Abats (5), with three recipes.
  void OuvreTrois() {
    b.AjouteFamille("Perdue");
    b.AjouteFamille(" Zestes ");
    b.AjouteFamille("Abats");
    b.AjouteRecette(5, "Rognons", "Au madère."_1252);
    b.AjouteRecette(4, "Citron");
    Ouvre();
    RecFamille famille;
    b.module->bufFamille.Lit(3, famille);
    famille.actif = supprime;
    b.module->bufFamille.Ecrit(3, famille);
    b.module->bufFamille.Compte(-1);
    b.disque.OublieJournal();
  }

  /// Opens the dialog by its entry and looks at it while it is there.
  void AvecExport(const std::function<void(QDialog&)>& regarde) {
    AvecDialogue([&] { Choisit("mnuFileExport"); },
                 [&](QDialog& dialogue) {
                   EXPECT_EQ(dialogue.objectName(), "frmExport");
                   QApplication::processEvents();
                   regarde(dialogue);
                 });
  }
  /// The same, and a click on its button that exports.
  void Exporte(const std::function<void(QDialog&)>& avant = [](QDialog&) {}) {
    AvecExport([&](QDialog& dialogue) {
      avant(dialogue);
      Clique(Trouve(dialogue, "cmdExport"));
      EXPECT_FALSE(dialogue.isVisible());
    });
  }

  static QTreeWidget& Liste(const QDialog& dialogue) {
    return Trouve<QTreeWidget>(dialogue, "ListView1");
  }
  /// What can be pressed of the buttons, "+" or "-": select all, deselect all, export.
  static std::string Boutons(const QDialog& dialogue) {
    std::string motif;
    for (const char* nom : {"cmdSelect", "cmdDeselect", "cmdExport"}) {
      motif += Trouve(dialogue, nom).isEnabled() ? '+' : '-';
    }
    return motif;
  }
  /// The ticks, "x" or ".", in the order of the list.
  static std::string Coches(const QDialog& dialogue) {
    std::string coches;
    for (int i = 0; i < Liste(dialogue).topLevelItemCount(); ++i) {
      coches += Liste(dialogue).topLevelItem(i)->checkState(0) == Qt::Checked ? 'x' : '.';
    }
    return coches;
  }
  /// A click of the mouse on an entry's box.
  static void CliqueCase(const QDialog& dialogue, int rang) {
    QTreeWidget& liste = Liste(dialogue);
    QStyleOptionViewItem entree;
    entree.initFrom(&liste);
    entree.rect = liste.visualItemRect(liste.topLevelItem(rang));
    entree.rect.setWidth(liste.columnWidth(0));
    entree.features = QStyleOptionViewItem::HasCheckIndicator;
    const QRect place =
        liste.style()->subElementRect(QStyle::SE_ItemViewItemCheckIndicator, &entree, &liste);
    QTest::mouseClick(liste.viewport(), Qt::LeftButton, {}, place.center());
  }

  [[nodiscard]] std::string Document() const { return b.dossier.Lit("export.doc"); }
};

/// The heading of the document, on the double's day.
inline std::string Entete() {
  return "Gastrelle 2005 Export des recettes au 21/11/2026\r\n\r\n\r\n";
}

}  // namespace gastrelle::essai
