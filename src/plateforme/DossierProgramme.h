// Where the program itself lies.
#pragma once

#include <filesystem>

namespace gastrelle {

/// The folder of the running program, links resolved; empty if the system doesn't tell.
std::filesystem::path DossierDuProgramme();

}  // namespace gastrelle
