// The cheeses window on the factory's cheeses, with verbs for its tests.
#pragma once

#include "doublures/FenetreEssai.h"
#include "fromages/FromagesEssai.h"
#include "fromages/frmFromages.h"

namespace gastrelle::essai {

class FenetreFromages : public FenetreEssai<frmFromages> {
 protected:
  FenetreFromages() { b.GarnitFromages(); }

  /// Opens on "Abondance" (124), the first of the list, with all its fields; "Fromage 002" follows.
  void OuvreSurAbondance(int surOnglet = 1) {
    b.AjouteFromage(Fromage("Abondance", "Savoie", 1, 4, 9), "Dix octets");
    Ouvre(surOnglet);
  }

  QComboBox& fromages() { return Le<QComboBox>("ComboFromages"); }
  QString TexteDe(const char* nom) { return Texte(Le(nom)); }
  /// The fields of a page in the order of its rows, the codes by their texts.
  QStringList Champs(const char* nom, const QString& suffixe, const QString& lait = "txtLait",
                     const QString& mois = "txt%1Mois") {
    QStringList textes{TexteDe(nom)};
    for (const QString& champ :
         {"txtRegion" + suffixe, lait + suffixe, mois.arg("Premier") + suffixe,
          mois.arg("Dernier") + suffixe, "txtNotes" + suffixe}) {
      textes << TexteDe(champ.toUtf8());
    }
    return textes;
  }
};

}  // namespace gastrelle::essai
