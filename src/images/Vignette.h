// A picture beside a text, where its page is large enough: its proportions kept, read once the text
// is on the screen, larger at a click.
#pragma once

#include <functional>

#include <QImage>
#include <QWidget>

namespace gastrelle {

class Vignette final : public QWidget {
 public:
  /// `page`: the widget whose size decides whether there is room.
  Vignette(const QString& nom, const QString& lisible, QWidget* page);

  /// Runs on a click on the picture.
  std::function<void()> surClic;

  /// Shows the picture of a file; an empty path: none. A file that holds no picture shows none, and
  /// its place goes back to the text.
  void Montre(const QString& fichier);

  [[nodiscard]] QSize sizeHint() const override;

 protected:
  bool eventFilter(QObject* objet, QEvent* evenement) override;
  void paintEvent(QPaintEvent* evenement) override;
  void mouseMoveEvent(QMouseEvent* evenement) override;
  void mousePressEvent(QMouseEvent* evenement) override;
  void mouseReleaseEvent(QMouseEvent* evenement) override;

 private:
  void Lit();
  void RegleVue();
  [[nodiscard]] QRect Cadre() const;

  QWidget* page_;
  QString fichier_;
  QImage image_;
  bool aLire_ = false;
};

}  // namespace gastrelle
