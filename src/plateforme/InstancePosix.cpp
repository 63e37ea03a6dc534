#include <algorithm>
#include <array>
#include <cerrno>
#include <cstddef>
#include <fcntl.h>
#include <string>
#include <sys/file.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>

#include "plateforme/DescripteurPosix.h"
#include "plateforme/Instance.h"

namespace gastrelle {
namespace {

enum class Prise {
  obtenue,
  refusee,     ///< another program has the lock
  impossible,  ///< the system has none to give
};

/// What an attempt came to; `ailleurs` is the system's word for a lock that another one has.
Prise PriseDe(int resultat, int ailleurs) {
  if (resultat == 0) {
    return Prise::obtenue;
  }
  return errno == ailleurs ? Prise::refusee : Prise::impossible;
}

/// A lock on the folder itself, which everybody sees who sees the folder. There is none for those
/// who may enter the folder but not list it, nor on some file systems.
Prise VerrouilleDossier(const Descripteur& dossier) {
  return PriseDe(::flock(dossier.numero(), LOCK_EX | LOCK_NB), EWOULDBLOCK);
}

/// A name made of the folder's identity, which the system keeps for the process: it asks for no
/// right and no file, but holds on this machine only.
Prise ReserveNom(const Descripteur& prise, const std::filesystem::path& dossier) {
  struct stat identite {};
  if (::stat(dossier.c_str(), &identite) != 0) {
    return Prise::impossible;
  }
  const std::string nom =
      "gastrelle-" + std::to_string(identite.st_dev) + "-" + std::to_string(identite.st_ino);
  sockaddr_un adresse{};
  adresse.sun_family = AF_UNIX;
  nom.copy(adresse.sun_path + 1, nom.size());  // behind a null byte: a name, no file
  const auto longueur = static_cast<socklen_t>(offsetof(sockaddr_un, sun_path) + 1 + nom.size());
  return PriseDe(::bind(prise.numero(), reinterpret_cast<const sockaddr*>(&adresse), longueur),
                 EADDRINUSE);
}

class VerrousDossier final : public Instance {
 public:
  explicit VerrousDossier(const std::filesystem::path& dossier)
      : dossier_(::open(dossier.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC)),
        nom_(::socket(AF_UNIX, SOCK_DGRAM | SOCK_CLOEXEC, 0)),
        prises_{VerrouilleDossier(dossier_), ReserveNom(nom_, dossier)} {}

  [[nodiscard]] bool Seul() const {
    const auto compte = [this](Prise prise) {
      return std::count(prises_.begin(), prises_.end(), prise);
    };
    return compte(Prise::refusee) == 0 && compte(Prise::obtenue) > 0;
  }

 private:
  Descripteur dossier_;
  Descripteur nom_;
  std::array<Prise, 2> prises_;
};

}  // namespace

std::unique_ptr<Instance> Instance::Prend(const std::filesystem::path& dossier) {
  auto verrous = std::make_unique<VerrousDossier>(dossier);
  return verrous->Seul() ? std::move(verrous) : nullptr;
}

}  // namespace gastrelle
