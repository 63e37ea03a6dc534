// How the child windows are laid out in the frame.
#pragma once

#include <QMdiArea>

namespace gastrelle {

enum class Disposition { cascade, mosaiqueHorizontale, mosaiqueVerticale, icones };

/// Horizontal tiles lie one above the other, vertical ones side by side; a cascade goes from the
/// rearmost window to the foremost, all of one size and all inside the frame. Minimised windows
/// keep their place at the foot of the frame, where `icones` lines them up.
void Dispose(QMdiArea& enfants, Disposition disposition);

}  // namespace gastrelle
