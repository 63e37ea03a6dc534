// The size of letters in which texts are read and written: one for all sheets, kept in the settings
// store beside the frame's geometry ("TailleLecture", in points).
#pragma once

#include <QEvent>
#include <QWidget>

namespace gastrelle {

/// In points: the one that the user has chosen, or a little more than the system's.
double TailleLecture();

/// Larger (or smaller, if negative) by so many points, and remembered. Every widget is then sent
/// `TailleChangee()`.
void AgranditLecture(int points);
/// Back to a little more than the system's; the choice is forgotten.
void RetablitLecture();

/// The event that tells of a new size.
QEvent::Type TailleChangee();

/// The keys that enlarge, reduce and reset, wherever the focus is in a window.
void BrancheTouchesLecture(QWidget& fenetre);

}  // namespace gastrelle
