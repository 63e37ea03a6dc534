// Keeping the preferences that the user has chosen.
#pragma once

#include "data/Module1.h"

namespace gastrelle {

/// Writes the preferences and puts them in force. When the file can't be written, or has gone, the
/// user is told, the old ones stay in force, and the next call opens the file again.
bool EnregistrePreferences(Module1& module, const RecPreferences& choisies);

}  // namespace gastrelle
