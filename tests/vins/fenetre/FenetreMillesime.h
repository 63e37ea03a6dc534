// The window of the vintage chart on the years from 1928 to 2022, with verbs for its tests. Today
// is in November 2026.
#pragma once

#include <QAbstractButton>
#include <QPlainTextEdit>
#include <QScrollBar>
#include <QTableView>

#include "doublures/FenetreEssai.h"
#include "doublures/LecteurEcran.h"
#include "vins/MillesimesEssai.h"
#include "vins/frmMillesime.h"

namespace gastrelle::essai {

/// The nine arrays of option buttons of a tab, in the order of the areas.
inline const std::array<const char*, 9> nomsOptions{
    "OptionBordeauxRouges",   "OptionBordeauxBlancs",        "OptionBourgognesRouges",
    "OptionBourgognesBlancs", "OptionCrusDesCotesDuRhone",   "OptionAlsace",
    "OptionPouillySancerre",  "OptionAnjouTouraineMuscadet", "OptionCrusDuBeaujolais"};

class FenetreMillesime : public FenetreEssai<frmMillesime> {
 protected:
  FenetreMillesime() { b.GarnitMillesimes(); }

  void Date(int annee, unsigned mois, unsigned jour) {
    b.horloge.date = std::chrono::year{annee} / static_cast<int>(mois) / static_cast<int>(jour);
  }
  void OuvreActive(int surOnglet = 1) {
    Ouvre(surOnglet);
    fenetre->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(fenetre.get()));
  }

  QTableView& grille() { return Le<QTableView>("MSFlexGrid2"); }
  QComboBox& crus() { return Le<QComboBox>("ComboCru"); }
  /// The texts of a row of the grid, counted from 1.
  QStringList Rangee(int rangee) {
    QStringList textes;
    for (int colonne = 0; colonne < grille().model()->columnCount(); ++colonne) {
      textes << grille().model()->index(rangee - 1, colonne).data().toString();
    }
    return textes;
  }
  /// The column of the one "x" of each row; 0: there is none, -1: there are several.
  std::vector<int> Marques() {
    std::vector<int> marques;
    for (int rangee = 1; rangee <= grille().model()->rowCount(); ++rangee) {
      const QStringList textes = Rangee(rangee);
      marques.push_back(textes.count("x") > 1 ? -1 : std::max(0, int(textes.indexOf("x"))));
    }
    return marques;
  }
  /// The years of the rows that are selected over their columns 1 to 5, and in no other.
  QStringList Selection() {
    QStringList annees;
    QModelIndexList choisies = grille().selectionModel()->selectedIndexes();
    std::sort(choisies.begin(), choisies.end());
    for (const QModelIndex& place : choisies) {
      annees << place.siblingAtColumn(0).data().toString();
      EXPECT_GE(place.column(), 1);
    }
    EXPECT_EQ(annees.size() % 5, 0);
    annees.removeDuplicates();
    EXPECT_EQ(choisies.size(), 5 * annees.size());
    return annees;
  }
  int RangeeDuHaut() { return grille().rowAt(0) + 1; }
  void CliqueAnnee(int annee, int colonne = 3) {
    const QModelIndex place = grille().model()->index(annee - 1928, colonne);
    grille().scrollTo(place);
    QTest::mouseClick(grille().viewport(), Qt::LeftButton, {}, grille().visualRect(place).center());
  }

  QAbstractButton& Option(std::size_t cru, int indice, const std::string& suffixe = {}) {
    const std::string nom = nomsOptions[cru] + suffixe + "(" + std::to_string(indice) + ")";
    return Le<QAbstractButton>(nom.c_str());
  }
  /// The index of the set button of each area, -1 for none.
  std::vector<int> Choisies(const std::string& suffixe = {}) {
    std::vector<int> choisies;
    for (std::size_t cru = 0; cru < nomsOptions.size(); ++cru) {
      int choisie = -1;
      for (int indice = 0; indice < 6; ++indice) {
        if (Option(cru, indice, suffixe).isChecked()) {
          EXPECT_EQ(choisie, -1) << nomsOptions[cru];
          choisie = indice;
        }
      }
      choisies.push_back(choisie);
    }
    return choisies;
  }
  QString TexteDe(const char* nom) { return Texte(Le(nom)); }
  /// The name of the control that has the focus.
  QString Focus() { return fenetre->focusWidget()->objectName(); }
};

}  // namespace gastrelle::essai
