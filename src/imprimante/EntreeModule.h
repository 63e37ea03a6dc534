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
/// The number rises with each change of what the two sides say to each other: a program that is
/// still running when its module is replaced by another one's has no printer then.
inline constexpr const char* nomEntreeImprimante = "NouvelleImprimante1";

/// The default printer, which the caller owns, or null.
using EntreeImprimante = Imprimante* (*)();

}  // namespace gastrelle
