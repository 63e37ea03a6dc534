// Where the help's window stands when it is first opened: it fits the screen and leaves the program
// in sight.
#pragma once

#include <QPoint>
#include <QRect>
#include <QSize>

namespace gastrelle {

/// The window's size on a screen with that much room, in logical pixels.
QSize TailleAide(const QRect& ecran);

/// The upper left corner of a window of that size, all of it on the screen: beside the program's
/// window, or where it covers least of it. Sizes and places are those of windows with their frames.
QPoint CoinAide(const QRect& ecran, const QSize& taille, const QRect& programme);

}  // namespace gastrelle
