// The folders that memcheck is led through: the seeds of the fuzzer, then what chance makes of
// them, the same on every machine.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace gastrelle::essai {

/// So many inputs, as `Parcourt` takes them: each seed as it stands, then seeds with up to eight
/// things changed.
std::vector<std::string> DossiersEssayes(std::size_t nombre);

}  // namespace gastrelle::essai
