// The entry of the fuzzer of pictures: whatever a file holds, it is read within its bounds or not
// at all.

#include <cstddef>
#include <cstdint>

#include "fuzz/ImageTiree.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* octets, std::size_t longueur) {
  // NOLINTNEXTLINE(cppcoreguidelines-pro-type-reinterpret-cast): bytes are bytes
  gastrelle::essai::LitImageTiree({reinterpret_cast<const char*>(octets), longueur});
  return 0;
}
