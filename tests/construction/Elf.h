// What a built program or library says about where its libraries are.
#pragma once

#include <cstddef>
#include <filesystem>
#include <limits>
#include <optional>
#include <string>
#include <vector>

namespace gastrelle::essai {

/// The first bytes of a file, all if it has no more.
std::string OctetsDe(const std::filesystem::path& fichier,
                     std::size_t auPlus = std::numeric_limits<std::size_t>::max());

/// True for the bytes of a program or a library (not of an object file) of this machine's kind.
bool EstChargeable(const std::string& octets);

/// True if they name folders of their own in which to look for libraries.
bool NommeDesDossiers(const std::string& octets);

/// The names of the libraries that they can't start without.
std::vector<std::string> BibliothequesDe(const std::string& octets);

/// Where the dynamic section keeps an entry of that tag, as an index into the bytes.
std::optional<std::size_t> Entree(const std::string& octets, long etiquette);

}  // namespace gastrelle::essai
