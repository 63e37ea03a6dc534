// The entry of the fuzzer on the disk of the machine: whatever lies in the folder that is no file,
// the program waits for nobody and harms nothing.

#include <cstddef>
#include <cstdint>
#include <string>

#include "fuzz/Entree.h"
#include "fuzz/Parcours.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* octets, std::size_t longueur) {
  // NOLINTNEXTLINE(cppcoreguidelines-pro-type-reinterpret-cast): bytes are bytes
  const std::string_view entree(reinterpret_cast<const char*>(octets), longueur);
  if (gastrelle::essai::VaSurDisque(entree)) {
    gastrelle::essai::Parcourt(entree);
  }
  return 0;
}
