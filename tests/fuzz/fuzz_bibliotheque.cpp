// The entry of the fuzzer: whatever the files of the folder hold, the program goes its way or says
// why it can't.

#include <cstddef>
#include <cstdint>

#include "fuzz/Parcours.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* octets, std::size_t longueur) {
  // NOLINTNEXTLINE(cppcoreguidelines-pro-type-reinterpret-cast): bytes are bytes
  gastrelle::essai::Parcourt({reinterpret_cast<const char*>(octets), longueur});
  return 0;
}
