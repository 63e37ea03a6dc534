// The way into the module that prints: a library of its own in the program's folder, so that the
// start neither loads nor waits for anything of printing.
#pragma once

#include "plateforme/Imprimante.h"

namespace gastrelle {

/// Of the module's file.
#ifdef _WIN32
inline constexpr const char* nomModuleImprimante = "imprimante.dll";
#else
inline constexpr const char* nomModuleImprimante = "imprimante.so";
#endif
inline constexpr const char* nomEntreeImprimante = "NouvelleImprimante";

/// The default printer, which the caller owns, or null.
using EntreeImprimante = Imprimante* (*)();

}  // namespace gastrelle
