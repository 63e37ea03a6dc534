#include <string>
#include <windows.h>

#include "plateforme/DossierProgramme.h"

namespace gastrelle {

std::filesystem::path DossierDuProgramme() {
  constexpr DWORD plusLong = 32'768;  // no path is longer
  std::wstring chemin(plusLong, L'\0');
  chemin.resize(::GetModuleFileNameW(nullptr, chemin.data(), plusLong));
  return std::filesystem::path(chemin).parent_path();
}

}  // namespace gastrelle
