// A page that scrolls where its place is smaller than what it needs, so that nothing on it is
// crushed.
#pragma once

#include <functional>

#include <QScrollArea>

namespace gastrelle {

/// Without a frame, and out of the keyboard's way. The control that takes the focus comes into
/// sight, unless the mouse gave it: nothing moves under a pressed button. The wheel belongs to the
/// box or list under the pointer as long as that has anything to scroll.
class Defilement final : public QScrollArea {
 public:
  /// Takes the page over.
  Defilement(QWidget* page, QWidget* parent);
  Defilement(const Defilement&) = delete;
  Defilement& operator=(const Defilement&) = delete;
  ~Defilement() override;

  /// Runs with the size of the place, in pixels, whenever that or what the page needs changes,
  /// before the page is laid out in it.
  std::function<void(const QSize& taille)> surTaille;

 protected:
  bool eventFilter(QObject* objet, QEvent* evenement) override;
  void resizeEvent(QResizeEvent* evenement) override;
  void wheelEvent(QWheelEvent* evenement) override;
  void keyPressEvent(QKeyEvent* touche) override;
  bool focusNextPrevChild(bool suivant) override;

 private:
  void SuitFocus(const QWidget* quitte, const QWidget* recoit);
};

}  // namespace gastrelle
