#include <canberra.h>
#include <system_error>

#include "plateforme/BibliothequePosix.h"
#include "plateforme/Son.h"

namespace gastrelle {
namespace {

struct Canberra {
  Canberra() {
    bibliotheque.Prend(cree, "ca_context_create");
    bibliotheque.Prend(detruit, "ca_context_destroy");
    bibliotheque.Prend(joue, "ca_context_play");
  }

  /// Opened at the first sound.
  static const Canberra& Prend() {
    static const Canberra prise;
    return prise;
  }

  BibliothequeSysteme bibliotheque{"libcanberra.so.0"};
  decltype(&ca_context_create) cree = nullptr;
  decltype(&ca_context_destroy) detruit = nullptr;
  decltype(&ca_context_play) joue = nullptr;
};

}  // namespace

SonSysteme::~SonSysteme() {
  if (contexte_ == nullptr) {
    return;  // no sound was played: the library isn't even open
  }
  const Canberra& canberra = Canberra::Prend();
  if (canberra.detruit != nullptr) {
    canberra.detruit(static_cast<ca_context*>(contexte_));
  }
}

void SonSysteme::Joue(const std::filesystem::path& fichier) {
  std::error_code sansMot;
  if (!std::filesystem::is_regular_file(fichier, sansMot)) {
    return;  // the library would wait for what comes out of a pipe
  }
  const Canberra& canberra = Canberra::Prend();
  if (!canberra.bibliotheque.presente()) {
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
