// Titles and texts of recipes as a cook would write them, drawn by lot from a seed: the same on
// every machine.
#pragma once

#include <cstdint>
#include <random>
#include <string>

namespace gastrelle::bancs {

class Titres {
 public:
  explicit Titres(std::uint32_t graine) : hasard_(graine) {}

  /// Windows-1252, 8 to 90 bytes.
  std::string Titre();
  /// Windows-1252, some lines with CR LF between them.
  std::string Texte();

 private:
  std::size_t Tire(std::size_t parmi) { return hasard_() % parmi; }

  std::mt19937 hasard_;
};

}  // namespace gastrelle::bancs
