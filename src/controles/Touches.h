// The help key: who sends it, and what it opens.
#pragma once

namespace gastrelle {

/// Property of a control, page or window: the topic that the help key opens for it and for whatever
/// lies inside it.
inline constexpr const char* proprieteSujet = "sujetAide";

/// Sends the key F1 to the control in focus, or to the active window.
void EnvoieF1();

}  // namespace gastrelle
