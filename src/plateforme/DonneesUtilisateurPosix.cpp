#include <cstdlib>
#include <pwd.h>
#include <unistd.h>

#include "plateforme/DonneesUtilisateur.h"

namespace gastrelle {
namespace {

/// A path that a variable of the environment gives; a relative one counts as none, since it would
/// name another folder at each start.
std::filesystem::path CheminDeVariable(const char* nom) {
  const char* valeur = std::getenv(nom);
  const std::filesystem::path chemin = valeur == nullptr ? "" : valeur;
  return chemin.is_absolute() ? chemin : std::filesystem::path();
}

std::filesystem::path DossierPrive() {
  std::filesystem::path chemin = CheminDeVariable("HOME");
  if (chemin.empty()) {
    const passwd* compte = ::getpwuid(::geteuid());
    chemin = compte == nullptr || compte->pw_dir == nullptr ? "" : compte->pw_dir;
  }
  return chemin.is_absolute() ? chemin : std::filesystem::path();
}

}  // namespace

std::filesystem::path DonneesUtilisateur() {
  std::filesystem::path chemin = CheminDeVariable("XDG_DATA_HOME");
  if (chemin.empty()) {
    chemin = DossierPrive();
    chemin = chemin.empty() ? chemin : chemin / ".local" / "share";
  }
  return chemin;
}

}  // namespace gastrelle
