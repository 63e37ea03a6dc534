#include "construction/Elf.h"

#include <algorithm>
#include <cstring>
#include <elf.h>
#include <fstream>

namespace gastrelle::essai {
namespace {

/// A structure of the file, or nothing where it doesn't hold one.
template <class T>
std::optional<T> Structure(const std::string& octets, std::size_t ou) {
  T structure;
  if (ou > octets.size() || octets.size() - ou < sizeof structure) {
    return std::nullopt;
  }
  std::memcpy(&structure, octets.data() + ou, sizeof structure);
  return structure;
}

/// Where the dynamic section keeps the entries of that tag.
std::vector<std::size_t> PlacesDe(const std::string& octets, long etiquette) {
  std::vector<std::size_t> places;
  const auto tete = Structure<Elf64_Ehdr>(octets, 0);
  for (std::size_t i = 0; tete && i < tete->e_phnum; ++i) {
    const auto segment = Structure<Elf64_Phdr>(octets, tete->e_phoff + i * tete->e_phentsize);
    if (!segment || segment->p_type != PT_DYNAMIC) {
      continue;
    }
    for (std::size_t ou = segment->p_offset; ou < segment->p_offset + segment->p_filesz;
         ou += sizeof(Elf64_Dyn)) {
      const auto entree = Structure<Elf64_Dyn>(octets, ou);
      if (entree && entree->d_tag == etiquette) {
        places.push_back(ou);
      }
    }
  }
  return places;
}

}  // namespace

std::string OctetsDe(const std::filesystem::path& fichier, std::size_t auPlus) {
  std::string octets(std::min<std::size_t>(std::filesystem::file_size(fichier), auPlus), '\0');
  std::ifstream entree(fichier, std::ios::binary);
  entree.read(octets.data(), static_cast<std::streamsize>(octets.size()));
  return octets;
}

bool EstChargeable(const std::string& octets) {
  const auto tete = Structure<Elf64_Ehdr>(octets, 0);
  return tete && std::memcmp(tete->e_ident, ELFMAG, SELFMAG) == 0 &&
         tete->e_ident[EI_CLASS] == ELFCLASS64 &&
         (tete->e_type == ET_EXEC || tete->e_type == ET_DYN);
}

std::optional<std::size_t> Entree(const std::string& octets, long etiquette) {
  const std::vector<std::size_t> toutes = PlacesDe(octets, etiquette);
  return toutes.empty() ? std::nullopt : std::optional(toutes.front());
}

std::vector<std::string> BibliothequesDe(const std::string& octets) {
  std::vector<std::string> noms;
  const auto table = Entree(octets, DT_STRTAB);
  for (const std::size_t ou : PlacesDe(octets, DT_NEEDED)) {
    // A library's strings are loaded where they stand in the file.
    const std::size_t nom = Structure<Elf64_Dyn>(octets, table.value())->d_un.d_ptr +
                            Structure<Elf64_Dyn>(octets, ou)->d_un.d_val;
    noms.emplace_back(octets.c_str() + nom);
  }
  return noms;
}

bool NommeDesDossiers(const std::string& octets) {
  return Entree(octets, DT_RPATH).has_value() || Entree(octets, DT_RUNPATH).has_value();
}

}  // namespace gastrelle::essai
