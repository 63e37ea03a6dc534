// A list box of lines that are made when they are looked at: a long text costs nothing until it is
// read.
#pragma once

#include <functional>
#include <string>

#include <QAbstractListModel>
#include <QTableView>

namespace gastrelle {

/// So many lines, and what writes one of them, counted from 0 (Windows-1252).
struct Lignes {
  int nombre = 0;
  std::function<std::string(int)> ligne{};
};

/// One line a row, all of the same height; a line that is cut shows whole as a tooltip.
class ListeLignes final : public QTableView {
 public:
  ListeLignes(const QString& nom, QWidget* parent);

  /// Other lines, none of them chosen.
  void Remplace(Lignes lignes);
  [[nodiscard]] const Lignes& lignes() const { return modele_.lignes; }
  /// Chooses a line from code. An index outside the list chooses nothing.
  void Choisit(int indice);

 protected:
  QModelIndex moveCursor(CursorAction geste, Qt::KeyboardModifiers touches) override;
  void changeEvent(QEvent* evenement) override;
  bool viewportEvent(QEvent* evenement) override;

 private:
  class Modele final : public QAbstractListModel {
   public:
    [[nodiscard]] int rowCount(const QModelIndex& parent) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;

    void Remplace(Lignes nouvelles);

    Lignes lignes;
  };

  void RegleHauteur();
  /// What the tooltip says at a point of the viewport: a line that is cut short, else nothing.
  [[nodiscard]] QString LigneAbregee(const QPoint& ou) const;

  Modele modele_;
};

}  // namespace gastrelle
