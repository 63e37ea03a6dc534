// The keys that several controls share: the help key, who sends it and what it opens; the keys that
// belong to lists; the key that validates a page; those that change the size of letters.
#pragma once

#include <functional>

#include <QKeySequence>
#include <QList>

class QKeyEvent;
class QWidget;

namespace gastrelle {

/// Property of a control, page or window: the topic that the help key opens for it and for whatever
/// lies inside it.
inline constexpr const char* proprieteSujet = "sujetAide";

/// Sends the key F1 to the control in focus, or to the active window.
void EnvoieF1();

/// True if none of Ctrl, Alt and Meta is held: the key types a letter or works a control.
[[nodiscard]] bool EstTouchePlaine(const QKeyEvent& touche);
/// True for Return and for the keypad's Enter, alone.
[[nodiscard]] bool EstEntree(const QKeyEvent& touche);
/// True for Alt+Up and Alt+Down.
[[nodiscard]] bool EstAltFleche(const QKeyEvent& touche);

/// From now on the keys run `action` wherever the focus is in `zone`, unless a control there wants
/// them for itself. `repete`: again and again while they are held down.
void PoseRaccourci(QWidget& zone, const QList<QKeySequence>& touches, bool repete,
                   const std::function<void()>& action);

/// The keys that enlarge, reduce and reset letters, wherever the focus is in `zone`. `action` gets
/// the step: 1, -1, or 0 for the size that one began with.
void PoseTouchesTaille(QWidget& zone, const std::function<void(int pas)>& action);

}  // namespace gastrelle
