#include <stdexcept>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

#include "doublures/Entrees.h"

namespace gastrelle::essai {
namespace {

void Exige(bool reussi, const std::filesystem::path& chemin) {
  if (!reussi) {
    throw std::runtime_error("impossible de poser " + chemin.string());
  }
}

void PoseTube(const std::filesystem::path& chemin) {
  Exige(::mkfifo(chemin.c_str(), 0666) == 0, chemin);
}

void PosePrise(const std::filesystem::path& chemin) {
  sockaddr_un adresse{};
  adresse.sun_family = AF_UNIX;
  Exige(chemin.string().size() < sizeof(adresse.sun_path), chemin);
  chemin.string().copy(adresse.sun_path, sizeof(adresse.sun_path) - 1);
  const int prise = ::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
  const bool posee =
      ::bind(prise, reinterpret_cast<const sockaddr*>(&adresse), sizeof(adresse)) == 0;
  ::close(prise);
  Exige(posee, chemin);
}

void PosePeripherique(const std::filesystem::path& chemin) {
  std::filesystem::create_symlink("/dev/zero", chemin);
}

}  // namespace

const std::array<Entree, 3>& EntreesSpeciales() {
  static const std::array<Entree, 3> entrees{
      {{"tube", PoseTube}, {"prise", PosePrise}, {"peripherique", PosePeripherique}}};
  return entrees;
}

}  // namespace gastrelle::essai
