// The frame's place and size, kept in the settings store under the application title, section
// "Settings": "MainLeft", "MainTop", "MainWidth", "MainHeight", in twips, as text.
#pragma once

#include <QList>
#include <QMargins>
#include <QRect>
#include <QWidget>

namespace gastrelle {

/// What screens can show of a place that is wished for. Both are the position of a window with its
/// border and its size without it, in logical pixels. What fits stays as it is. What is too large
/// is cut, and what hangs out below or to the right is moved: the frame has its status bar there, a
/// page its buttons. A place that no screen shows goes to the first one. `bordure`: what the window
/// system draws around the window. `ecrans`: the part of each screen that windows may use, at least
/// one.
QRect PlaceVisible(const QRect& souhait, const QMargins& bordure, const QList<QRect>& ecrans);

/// The place of a frame from one run to the next. What the user leaves as it was shown stays what
/// was wished for, so that a small screen doesn't shrink the frame for good.
class GeometrieCadre {
 public:
  /// Reads the settings and puts the frame there, as far as the screens allow. A setting that is
  /// missing or isn't a number takes its default: 0, 0, 12000 and 9000 twips.
  explicit GeometrieCadre(QWidget& cadre);

  /// To be called when the frame is on the screen: once its border is known, it may need less room
  /// or more than what was reckoned with.
  void Ajuste();
  /// Writes the settings.
  void Retient() const;

 private:
  void Place(const QRect& place);

  QWidget& cadre_;
  const QRect souhait_;
  QRect montree_;
  bool ajustee_ = false;
};

}  // namespace gastrelle
