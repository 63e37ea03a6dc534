#include <fcntl.h>
#include <sys/stat.h>

#include "plateforme/DescripteurPosix.h"
#include "plateforme/FichierOrdinaire.h"

namespace gastrelle {

int OuvreFichierOrdinaire(const std::filesystem::path& chemin) {
  Descripteur ouvert(::open(chemin.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY));
  struct stat etat {};
  const bool ordinaire = ::fstat(ouvert.numero(), &etat) == 0 && S_ISREG(etat.st_mode);
  return ordinaire ? ouvert.Lache() : -1;
}

}  // namespace gastrelle
