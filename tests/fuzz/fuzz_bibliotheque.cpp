// The entry of the fuzzer: whatever the files of the folder hold, the program goes its way or says
// why it can't. The folder is in memory, many thousands of them a second.

#include <cstddef>
#include <cstdint>

#include "fuzz/Entree.h"
#include "fuzz/Parcours.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* octets, std::size_t longueur) {
  // NOLINTNEXTLINE(cppcoreguidelines-pro-type-reinterpret-cast): bytes are bytes
  const std::string_view entree(reinterpret_cast<const char*>(octets), longueur);
  if (!gastrelle::essai::VaSurDisque(entree)) {
    gastrelle::essai::Parcourt(entree);
  }
  return 0;
}
