// Where the system wants a program's data that belongs to its user.
#pragma once

#include <filesystem>

namespace gastrelle {

/// The folder that holds a folder for each program; it may not be there yet. Empty where programs
/// keep their data beside themselves, or if the system doesn't tell.
/// On Linux the first of the XDG base directories for data.
std::filesystem::path DonneesUtilisateur();

}  // namespace gastrelle
