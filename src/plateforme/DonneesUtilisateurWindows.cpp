#include "plateforme/DonneesUtilisateur.h"

namespace gastrelle {

std::filesystem::path DonneesUtilisateur() {
  return {};  // the program's folder is copied where its user wants it, and holds everything
}

}  // namespace gastrelle
