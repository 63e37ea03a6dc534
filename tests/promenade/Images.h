// Pictures of the program, for whoever wants to look at it.
#pragma once

#include <QString>

namespace gastrelle::essai {

/// True if the environment names a folder for them (PROMENADE_IMAGES).
bool ImagesVoulues();
/// Draws the windows that are on the screen, one over the other, into `nom`.png of that folder.
/// One that can't be written is left out.
void PrendImage(const QString& nom);

}  // namespace gastrelle::essai
