// The entries of every list and combo box: a text, and the record number as item data
// (Qt::UserRole). One model for the sorted lists and for those that keep the order of insertion.
#pragma once

#include <optional>

#include <QAbstractListModel>

#include "data/Collation.h"

namespace gastrelle {

enum class Ordre { alphabetique, insertion };

class ModeleListe final : public QAbstractListModel {
 public:
  explicit ModeleListe(Ordre ordre, QObject* parent = nullptr)
      : QAbstractListModel(parent), ordre_(ordre) {}

  [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
  [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;

  [[nodiscard]] const Liste& entrees() const { return entrees_; }

  /// An entry that always stands first, whatever the order; it goes with the next Vide.
  void Epingle(std::string_view texte);
  /// Adds entries to those that are there, at the places that the order gives them, in one go.
  void Ajoute(Liste nouvelles);
  /// Adds one entry, after its equals. Returns its index.
  int Ajoute(const EntreeListe& entree);
  void Vide();

  /// Index of the first entry that bears this item data, from the first one on.
  [[nodiscard]] std::optional<int> IndiceDe(std::int32_t numero) const;

 private:
  Ordre ordre_;
  Liste entrees_;
  std::size_t epinglees_ = 0;
};

}  // namespace gastrelle
