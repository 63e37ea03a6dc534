// The commands of the system that the program is measured against.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace gastrelle::bancs {

/// Runs a command, its name first, and waits for its end; what it prints goes into a file. Returns
/// its status. Throws std::runtime_error when it can't be started or doesn't end by itself.
int Execute(const std::vector<std::string>& commande,
            const std::filesystem::path& sortie = "/dev/null");

}  // namespace gastrelle::bancs
