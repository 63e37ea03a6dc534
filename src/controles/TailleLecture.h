// The size of letters in which texts are read and written: one for all sheets, kept in the settings
// store beside the frame's geometry ("TailleLecture", in points).
#pragma once

#include <QEvent>
#include <QWidget>

namespace gastrelle {

/// In points: the one that the user has chosen, or a little more than the system's.
double TailleLecture();

/// Larger (or smaller, if negative) by so many points, and remembered; 0: back to a little more
/// than the system's, and the choice is forgotten. Every widget is then sent `TailleChangee()`.
void AgranditLecture(int points);

/// The event that tells of a new size.
QEvent::Type TailleChangee();

}  // namespace gastrelle
