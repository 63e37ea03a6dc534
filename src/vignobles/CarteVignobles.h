// The map of the French vineyards: France with the regions of the factory's catalogue, each with
// its name.
#pragma once

#include <cstdint>
#include <functional>
#include <optional>

#include <QPixmap>
#include <QWidget>

#include "vignobles/CarteVignoblesNoms.h"

namespace gastrelle {

/// Names places by its own table: a region that the user renamed keeps its name on the map. As
/// large as its place allows, the country's proportions kept. All names show from 300 x 300 pixels
/// on, in the desktop's usual letters; in less room, those that fit, the one that is brought out
/// and the one under the pointer.
/// The mouse only: what the map chooses, the list of regions beside it gives to the keyboard.
class CarteVignobles final : public QWidget {
 public:
  explicit CarteVignobles(const QString& nom, QWidget* parent);

  /// Runs with the record number of the factory's region (from 2) that was clicked, area or name.
  std::function<void(std::int32_t numero)> surRegion;

  /// Brings one region out; 0 or a number that isn't on the map: none.
  void MetEnValeur(std::int32_t numero);

  [[nodiscard]] QSize sizeHint() const override;
  [[nodiscard]] QSize minimumSizeHint() const override;

 protected:
  bool event(QEvent* evenement) override;
  void changeEvent(QEvent* evenement) override;
  void leaveEvent(QEvent* evenement) override;
  void mouseMoveEvent(QMouseEvent* evenement) override;
  void mousePressEvent(QMouseEvent* evenement) override;
  void mouseReleaseEvent(QMouseEvent* evenement) override;
  void paintEvent(QPaintEvent* evenement) override;
  void resizeEvent(QResizeEvent* evenement) override;

 private:
  /// Where everything stands, found at the first need.
  const PlanCarte& plan();
  /// Of the names, at the size that the map has.
  [[nodiscard]] QFont police() const;
  /// The region whose area or name is there, 0 for none.
  std::int32_t NumeroSous(const QPointF& ou);
  void Pointe(std::int32_t numero);
  void Oublie();
  /// The map as it is while nothing is brought out.
  const QPixmap& Fond();

  std::int32_t enValeur_ = 0;
  std::int32_t pointe_ = 0;
  std::int32_t presse_ = 0;
  std::optional<PlanCarte> plan_;
  QPixmap fond_;
};

}  // namespace gastrelle
