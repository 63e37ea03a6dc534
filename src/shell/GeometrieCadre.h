// The frame's place and size, kept in the settings store under the application title, section
// "Settings": "MainLeft", "MainTop", "MainWidth", "MainHeight", in twips, as text.
#pragma once

#include <QRect>
#include <QWidget>

namespace gastrelle {

/// In logical pixels. What is missing or isn't a number takes its default (0, 0, 12000 and 9000
/// twips).
QRect LitGeometrie();
void EcritGeometrie(const QRect& geometrie);

/// Puts a window there, or where it can be seen when the screen of then is gone.
void Place(QWidget& fenetre, const QRect& geometrie);

}  // namespace gastrelle
