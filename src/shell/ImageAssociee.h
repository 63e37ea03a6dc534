// Opening the picture of the recipe on display with the system's own viewer.
#pragma once

#include <string>

#include "data/Module1.h"

namespace gastrelle {

/// Does nothing outside the recipes' list tab. `chemin`: complete path, Windows-1252. Tells the
/// user when the file is gone, or when no application is associated with pictures.
void OuvreImageAssociee(Module1& module, const std::string& chemin);

}  // namespace gastrelle
