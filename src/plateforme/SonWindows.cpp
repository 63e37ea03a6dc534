#include <system_error>
#include <windows.h>
// After the header that it builds on.
#include <mmsystem.h>

#include "plateforme/Son.h"

namespace gastrelle {

SonSysteme::~SonSysteme() = default;

void SonSysteme::Joue(const std::filesystem::path& fichier) {
  std::error_code sansMot;
  if (std::filesystem::is_regular_file(fichier, sansMot)) {
    // A sound that can't be played is no reason to trouble the user: the answer is left aside.
    static_cast<void>(
        ::PlaySoundW(fichier.c_str(), nullptr, SND_FILENAME | SND_ASYNC | SND_NODEFAULT));
  }
}

}  // namespace gastrelle
