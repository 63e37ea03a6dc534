#include <cerrno>
#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

#include "plateforme/Instance.h"

namespace gastrelle {
namespace {

class VerrouDossier final : public Instance {
 public:
  explicit VerrouDossier(int descripteur) : descripteur_(descripteur) {}
  VerrouDossier(const VerrouDossier&) = delete;
  VerrouDossier& operator=(const VerrouDossier&) = delete;
  ~VerrouDossier() override {
    if (descripteur_ >= 0) {
      ::close(descripteur_);
    }
  }

 private:
  int descripteur_;
};

}  // namespace

std::unique_ptr<Instance> Instance::Prend(const std::filesystem::path& dossier) {
  const int descripteur = ::open(dossier.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
  if (descripteur >= 0 && ::flock(descripteur, LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK) {
    ::close(descripteur);
    return nullptr;
  }
  return std::make_unique<VerrouDossier>(descripteur);
}

}  // namespace gastrelle
