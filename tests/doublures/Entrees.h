// What else than a file may lie under a name of the folder.
#pragma once

#include <array>
#include <filesystem>
#include <functional>
#include <string>

namespace gastrelle::essai {

struct Entree {
  const char* nom;
  /// Lays it under a path where nothing is.
  std::function<void(const std::filesystem::path&)> pose;
};

/// A pipe that nobody writes to, a socket that nobody listens to, a device that never ends.
const std::array<Entree, 3>& EntreesSpeciales();

}  // namespace gastrelle::essai
