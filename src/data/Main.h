// The start of the program, before any window exists.
#pragma once

#include <functional>

#include "data/Module1.h"

namespace gastrelle {

/// Refuses a second instance and a floppy disk, restores missing files from their factory copies,
/// opens all files and verifies their headers, loads the aisle texts and the preferences, makes the
/// picture folder, then calls `montreCadre`. A refusal ends the process with status 1.
/// Throws ErreurExecution when the picture folder can't be made.
void Main(Module1& module, bool dejaEnCours, const std::function<void()>& montreCadre);

/// Reads the preferences, or creates their file with zeros. A failure leaves the file closed and
/// the defaults in force, without a word.
void ChargePreferences(Module1& module);

}  // namespace gastrelle
