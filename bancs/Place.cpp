#include "Place.h"

#include <cstdio>
#include <cstdlib>
#include <system_error>

namespace gastrelle::bancs {

void PoseDossierTemporaire(const std::filesystem::path& dossier) {
  static_cast<void>(::setenv("TMPDIR", dossier.c_str(), 1));
}

bool APlace(const std::filesystem::path& dossier, std::int64_t octets, const std::string& mesure) {
  constexpr int part = 8;  // of it, to spare
  std::error_code erreur;
  const std::filesystem::space_info place = std::filesystem::space(dossier, erreur);
  if (!erreur && place.available >= static_cast<std::uintmax_t>(octets + octets / part)) {
    return true;
  }
  std::printf("%s : pas mesuré, il n'y a pas la place dans %s\n", mesure.c_str(), dossier.c_str());
  static_cast<void>(std::fflush(stdout));
  return false;
}

}  // namespace gastrelle::bancs
