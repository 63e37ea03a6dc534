// The replacement of all recipes by others that come from the factory copies: one recipe alone, or
// the library as it was delivered.
#pragma once

#include "data/Module1.h"

namespace gastrelle {

/// The four factory copies of the recipes must be there: the user is told of the first that isn't,
/// and no other is asked for.
[[nodiscard]] bool ExisteOrigines(Module1& module);

/// Makes the four recipe files, which aren't there, brings them to the device and leaves them open.
/// Throws on a failure.
using FabriqueRecettes = void (*)(Module1& module);

/// The first family and the first recipe of the factory, with that recipe's text and every picture
/// path of the factory's.
void FabriqueUneRecette(Module1& module);

/// The whole factory copies, dated of today. Each one is on the device once it is copied; a power
/// cut can only take the date.
void FabriqueOrigines(Module1& module);

/// Closes the recipe files, puts them aside (".tmp"), has new ones made, then deletes the old ones
/// and their backup copy, what can't be deleted staying. No window may be open that reads them. A
/// failure before the new ones are whole ends the program, the old ones staying aside; if they
/// can't be put aside they keep their names.
void RemplaceRecettes(Module1& module, FabriqueRecettes fabrique);

}  // namespace gastrelle
