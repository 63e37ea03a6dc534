// The view of every list, open on its page or dropped down from its box: typing ahead, and the
// whole title of an entry that is too long for its row.
#pragma once

#include <QListView>

#include "controles/ModeleListe.h"
#include "controles/RechercheListe.h"

namespace gastrelle {

class VueListe : public QListView {
 public:
  explicit VueListe(QWidget* parent);

  /// From now on the view shows these entries.
  void Suit(ModeleListe& modele);
  /// The width that the row of the longest title asks for, in pixels; the list isn't empty.
  [[nodiscard]] int LargeurUtile() const;

  /// The row of an entry as it can be seen: a title that is longer ends in "…".
  [[nodiscard]] QRect visualRect(const QModelIndex& entree) const override;
  void keyboardSearch(const QString& tape) override;

 protected:
  void updateGeometries() override;
  bool event(QEvent* evenement) override;
  bool viewportEvent(QEvent* evenement) override;

 private:
  /// What the tooltip says at a point of the viewport: a title that is cut short, else nothing.
  [[nodiscard]] QString TitreAbrege(const QPoint& ou) const;

  ModeleListe* modele_ = nullptr;
  RechercheListe recherche_;
};

}  // namespace gastrelle
