#include "plateforme/BibliothequePosix.h"

#include <array>
#include <string>

namespace gastrelle {
namespace {

/// Debian and its kin keep libraries by architecture, others by the width of addresses.
constexpr std::array<const char*, 6> dossiersDuSysteme{"/usr/lib/" ARCHITECTURE "/",
                                                       "/lib/" ARCHITECTURE "/",
                                                       "/usr/lib64/",
                                                       "/lib64/",
                                                       "/usr/lib/",
                                                       "/lib/"};

}  // namespace

BibliothequeSysteme::BibliothequeSysteme(const char* nom) {
  for (const char* dossier : dossiersDuSysteme) {
    if (poignee_ == nullptr) {
      poignee_ = ::dlopen((std::string(dossier) + nom).c_str(), RTLD_NOW | RTLD_LOCAL);
    }
  }
}

}  // namespace gastrelle
