// The memory of the process.
#pragma once

#include <string>

namespace gastrelle::bancs {

/// A figure of the process, in MB: "VmRSS" what it has in memory, "VmHWM" the most it has had.
/// Throws std::runtime_error for one that the system doesn't tell.
[[nodiscard]] double Memoire(const std::string& mesure);

/// What was freed goes back to the system, where it would hide what is taken now; the most that the
/// process has had becomes what it has. Returns that, in MB.
double OublieMaximum();

}  // namespace gastrelle::bancs
