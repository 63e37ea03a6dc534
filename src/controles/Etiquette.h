// A line of text that ends in "…" where its place is too narrow for it: heading, caption or value.
#pragma once

#include <QLabel>

namespace gastrelle {

/// A text that is cut shows whole as a tooltip, unless the label has a tooltip of its own. `text()`
/// stays the whole text.
class Etiquette final : public QLabel {
 public:
  explicit Etiquette(const QString& texte, QWidget* parent = nullptr);

  /// True if the place is too narrow for the text.
  [[nodiscard]] bool EstAbregee() const;

  /// A few letters are enough.
  [[nodiscard]] QSize minimumSizeHint() const override;

 protected:
  bool event(QEvent* evenement) override;
  void paintEvent(QPaintEvent* evenement) override;

 private:
  /// Where the text stands, inside frame and margin.
  [[nodiscard]] QRect PlaceTexte() const;
  /// An access key is marked in a caption only.
  [[nodiscard]] int Marques() const { return buddy() == nullptr ? 0 : Qt::TextShowMnemonic; }
};

}  // namespace gastrelle
