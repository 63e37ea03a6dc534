// The cleaning of the recipe files: they are rebuilt without the space of what was deleted or
// replaced.
#pragma once

#include <cstdint>
#include <string_view>

#include "data/Module1.h"

namespace gastrelle {

/// Where the files are copied before they are rebuilt; it goes at the end.
inline constexpr std::string_view dossierNettoyage = "TEMP";

/// Copies the four files, rebuilds each one beside itself, puts the new ones in the place of the
/// old ones and opens them. Families and recipes get new numbers, in the order of the old ones; no
/// window may be open that knows numbers. A recipe whose family isn't there any more goes to the
/// first one. Returns the number of live recipes.
///
/// Throws at the first failure, what was done before staying: as long as the copies stand, every
/// recipe is in them. A folder of copies that holds something is such a failure, before anything is
/// changed.
std::int16_t NettoieRecettes(Module1& module);

}  // namespace gastrelle
