#include <cerrno>
#include <cstddef>
#include <fcntl.h>
#include <optional>
#include <string>
#include <sys/file.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <utility>

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

/// A folder, whatever path leads to it.
struct Identite {
  dev_t disque = 0;
  ino_t numero = 0;

  bool operator==(const Identite&) const = default;
};

/// None if the system doesn't tell: `resultat` is its answer.
std::optional<Identite> Lue(int resultat, const struct stat& etat) {
  return resultat == 0 ? std::optional(Identite{etat.st_dev, etat.st_ino}) : std::nullopt;
}

std::optional<Identite> IdentiteSous(const std::filesystem::path& chemin) {
  struct stat etat {};
  const int resultat = ::stat(chemin.c_str(), &etat);
  return Lue(resultat, etat);
}

/// Of the open folder; of the path's, where the user may not open it.
std::optional<Identite> IdentiteDe(const Descripteur& ouvert, const std::filesystem::path& chemin) {
  if (ouvert.numero() < 0) {
    return IdentiteSous(chemin);
  }
  struct stat etat {};
  const int resultat = ::fstat(ouvert.numero(), &etat);
  return Lue(resultat, etat);
}

/// A name made of the folder's identity, which the system keeps for the process: it asks for no
/// right and no file, but holds on this machine only.
Prise ReserveNom(const Descripteur& prise, const Identite& identite) {
  const std::string nom =
      "gastrelle-" + std::to_string(identite.disque) + "-" + std::to_string(identite.numero);
  sockaddr_un adresse{};
  adresse.sun_family = AF_UNIX;
  nom.copy(adresse.sun_path + 1, nom.size());  // behind a null byte: a name, no file
  const auto longueur = static_cast<socklen_t>(offsetof(sockaddr_un, sun_path) + 1 + nom.size());
  return PriseDe(::bind(prise.numero(), reinterpret_cast<const sockaddr*>(&adresse), longueur),
                 EADDRINUSE);
}

class VerrousDossier final : public Instance {
 public:
  explicit VerrousDossier(std::filesystem::path chemin)
      : chemin_(std::move(chemin)),
        dossier_(::open(chemin_.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC)),
        nom_(::socket(AF_UNIX, SOCK_DGRAM | SOCK_CLOEXEC, 0)) {}

  /// Takes the locks, always in the same order: of two programs that come at once, one gets both.
  /// They count if the folder still lies there. It may have been opened, then deleted and made anew
  /// by somebody else: locks on what is gone keep nobody away.
  [[nodiscard]] bool Obtient() {
    const std::optional<Identite> identite = IdentiteDe(dossier_, chemin_);
    if (!identite) {
      return false;
    }
    const Prise surDossier = VerrouilleDossier(dossier_);
    const Prise surNom =
        surDossier == Prise::refusee ? Prise::refusee : ReserveNom(nom_, *identite);
    return surNom != Prise::refusee && (surDossier == Prise::obtenue || surNom == Prise::obtenue) &&
           IdentiteSous(chemin_) == identite;
  }

 private:
  std::filesystem::path chemin_;
  Descripteur dossier_;
  Descripteur nom_;
};

}  // namespace

std::unique_ptr<Instance> Instance::Prend(const std::filesystem::path& dossier) {
  auto verrous = std::make_unique<VerrousDossier>(dossier);
  return verrous->Obtient() ? std::move(verrous) : nullptr;
}

}  // namespace gastrelle
