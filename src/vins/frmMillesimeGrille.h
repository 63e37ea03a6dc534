// The grid of the vintage chart: the years of one area against the grades.
#pragma once

#include <cstdint>
#include <functional>
#include <vector>

#include <QAbstractTableModel>
#include <QTableView>

#include "controles/RechercheListe.h"

namespace gastrelle {

/// Column 0 is the year, columns 1 to 5 the grades, of which one at most bears an "x". Whichever of
/// its cells is read aloud, a row says its year, the area and the grade.
class ModeleMillesimes final : public QAbstractTableModel {
 public:
  static constexpr int colonnes = 6;

  /// The grades of an area, from 0 to 5, one a year from 1928 on.
  void Pose(const QString& cru, std::vector<std::int16_t> degresLus);
  [[nodiscard]] const std::vector<std::int16_t>& degresPoses() const { return degres_; }

  [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
  [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
  [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
  [[nodiscard]] QVariant headerData(int colonne, Qt::Orientation sens, int role) const override;
  [[nodiscard]] Qt::ItemFlags flags(const QModelIndex& index) const override;

 private:
  QString cru_;
  std::vector<std::int16_t> degres_;
};

/// One year is selected at a time, over all columns of its grades. Rows are counted from 1, the
/// headings being row 0. Typed figures lead to their year, Home and End to the first and the last.
class GrilleMillesimes final : public QTableView {
 public:
  GrilleMillesimes(const QString& nom, QWidget* parent);

  /// Runs when the selection moves to another year, by the user or the program.
  std::function<void()> surSelection;

  /// Shows other years, without drawing in between; nothing is selected then.
  void Remplit(const QString& cru, std::vector<std::int16_t> degresLus);
  /// Selects a row and makes it the top one, as far as the rows behind it allow.
  void Selectionne(int rangee);
  /// Brings the selected row into sight, if it isn't.
  void MontreSelection();

  /// Of the headings and the years together.
  [[nodiscard]] int NombreRangees() const { return modele_.rowCount() + 1; }
  /// The selected row, 0 for none.
  [[nodiscard]] int RangeeChoisie() const { return currentIndex().row() + 1; }
  [[nodiscard]] const std::vector<std::int16_t>& degresPoses() const {
    return modele_.degresPoses();
  }

  void keyboardSearch(const QString& tape) override;
  /// As wide as its columns.
  [[nodiscard]] QSize sizeHint() const override;

 protected:
  void currentChanged(const QModelIndex& courant, const QModelIndex& precedent) override;
  QModelIndex moveCursor(CursorAction geste, Qt::KeyboardModifiers avec) override;
  void resizeEvent(QResizeEvent* evenement) override;
  void changeEvent(QEvent* evenement) override;

 private:
  void Dispose();
  /// The width that a column has where there is room, in pixels.
  [[nodiscard]] int LargeurNaturelle(int colonne) const;
  /// The width that a heading asks for, in pixels.
  [[nodiscard]] int LargeurEntete(int colonne) const;
  /// Where there is none, the columns of the grades share what is left: the years stay in sight.
  void RegleColonnes();

  ModeleMillesimes modele_;
  RechercheListe recherche_;
};

}  // namespace gastrelle
