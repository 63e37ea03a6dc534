// A chance that falls alike on every machine.
#pragma once

#include <cstddef>
#include <random>

namespace gastrelle::essai {

class Hasard {
 public:
  /// A number from 0 to `borne` - 1.
  std::size_t Sous(std::size_t borne) { return suite_() % borne; }
  char Octet() { return static_cast<char>(Sous(256)); }
  /// True once in `combien` times.
  bool UneFoisSur(std::size_t combien) { return Sous(combien) == 0; }

 private:
  // The library's distributions differ from one to the next, the generator doesn't.
  std::mt19937 suite_{2005};  // NOLINT(cert-msc32-c,cert-msc51-cpp): the same one is wanted
};

}  // namespace gastrelle::essai
