#include <canberra.h>
#include <dlfcn.h>

#include "plateforme/Son.h"

namespace gastrelle {
namespace {

/// The sound library, taken at the first sound: the program starts without it and its own
/// libraries, and runs where it isn't installed.
struct Canberra {
  decltype(&ca_context_create) cree = nullptr;
  decltype(&ca_context_destroy) detruit = nullptr;
  decltype(&ca_context_play) joue = nullptr;

  static const Canberra& Prend() {
    static const Canberra prise = [] {
      Canberra canberra;
      if (void* bibliotheque = ::dlopen("libcanberra.so.0", RTLD_NOW | RTLD_LOCAL)) {
        canberra.cree =
            reinterpret_cast<decltype(cree)>(::dlsym(bibliotheque, "ca_context_create"));
        canberra.detruit =
            reinterpret_cast<decltype(detruit)>(::dlsym(bibliotheque, "ca_context_destroy"));
        canberra.joue = reinterpret_cast<decltype(joue)>(::dlsym(bibliotheque, "ca_context_play"));
      }
      return canberra;
    }();
    return prise;
  }

  [[nodiscard]] bool prete() const {
    return cree != nullptr && detruit != nullptr && joue != nullptr;
  }
};

}  // namespace

SonSysteme::~SonSysteme() {
  if (contexte_ != nullptr) {
    Canberra::Prend().detruit(static_cast<ca_context*>(contexte_));
  }
}

void SonSysteme::Joue(const std::filesystem::path& fichier) {
  const Canberra& canberra = Canberra::Prend();
  if (!canberra.prete()) {
    return;
  }
  if (contexte_ == nullptr) {
    ca_context* contexte = nullptr;
    if (canberra.cree(&contexte) != CA_SUCCESS) {
      return;
    }
    contexte_ = contexte;
  }
  // A sound that can't be played is no reason to trouble the user: the answer is left aside.
  canberra.joue(static_cast<ca_context*>(contexte_), 0, CA_PROP_MEDIA_FILENAME, fichier.c_str(),
                CA_PROP_EVENT_DESCRIPTION, "Gastrelle", nullptr);
}

}  // namespace gastrelle
