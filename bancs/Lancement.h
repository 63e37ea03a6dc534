// How a benchmark of windows starts: without a screen, on a small library of its own.
#pragma once

#include <cstdio>
#include <exception>

#include "doublures/Bibliotheque.h"
#include "shell/Application.h"

namespace gastrelle::bancs {

/// Runs `mesure` on a library under the program's application. Returns its status, or 2 if it
/// failed.
template <class Mesure>
int Lance(int argc, char** argv, Mesure mesure) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  qputenv("QT_LOGGING_RULES", "default.warning=false");
  try {
    essai::Bibliotheque bibliotheque;
    qputenv("XDG_RUNTIME_DIR", bibliotheque.dossier.chemin().c_str());
    qputenv("XDG_CONFIG_HOME", bibliotheque.dossier.chemin().c_str());
    const Application application(argc, argv, bibliotheque.messages, bibliotheque.pointeur,
                                  bibliotheque.processus);
    return mesure(bibliotheque);
  } catch (const std::exception& erreur) {
    std::fprintf(stderr, "%s\n", erreur.what());
    return 2;
  }
}

}  // namespace gastrelle::bancs
