// Writes the nineteen factory copies from the catalogues.
#pragma once

#include "plateforme/AccesFichiers.h"
#include "usine/Catalogues.h"

namespace gastrelle::usine {

/// Writes every `GL*.stp` into the folder behind `disque`, replacing what is there. The same
/// catalogues always give the same bytes. Throws ErreurExecution on a failure.
void EcritFabrique(AccesFichiers& disque, const Catalogues& catalogues);

}  // namespace gastrelle::usine
