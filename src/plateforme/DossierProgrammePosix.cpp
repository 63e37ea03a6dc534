#include <system_error>

#include "plateforme/DossierProgramme.h"

namespace gastrelle {

std::filesystem::path DossierDuProgramme() {
  std::error_code sansMot;
  return std::filesystem::read_symlink("/proc/self/exe", sansMot).parent_path();
}

}  // namespace gastrelle
