// One of the program's drawings, alone on a page.
#pragma once

#include <QLabel>

namespace gastrelle {

/// Shrinks with its place, proportions kept, and never grows above its own size.
class Dessin final : public QLabel {
 public:
  /// `dessin`: name of a picture; `cote`: its longer side, in pixels of the page.
  Dessin(const QString& nom, const QString& dessin, int cote, QWidget* parent);

  [[nodiscard]] QSize minimumSizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* evenement) override;
};

}  // namespace gastrelle
