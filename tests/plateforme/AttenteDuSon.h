// How long a sound holds up the program.
#pragma once

#include <chrono>
#include <filesystem>

#include "plateforme/Son.h"

namespace gastrelle::essai {

/// Far more than a sound takes to begin, far less than a pipe takes that nobody writes to.
inline constexpr std::chrono::seconds patience{5};

/// How long the program is held up by a sound.
inline std::chrono::steady_clock::duration Attente(Son& son, const std::filesystem::path& fichier) {
  const auto debut = std::chrono::steady_clock::now();
  son.Joue(fichier);
  return std::chrono::steady_clock::now() - debut;
}

}  // namespace gastrelle::essai
