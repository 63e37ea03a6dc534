#include <fstream>
#include <iterator>
#include <string>
#include <system_error>
#include <windows.h>
// After the header that it builds on.
#include <mmsystem.h>

#include "plateforme/Son.h"

namespace gastrelle {
namespace {

/// The sound that is being played: the system reads it for as long as it lasts.
std::string& EnCours() {
  static std::string octets;
  return octets;
}

void Tait() {
  static_cast<void>(::PlaySoundW(nullptr, nullptr, 0));
}

}  // namespace

SonSysteme::~SonSysteme() {
  if (!EnCours().empty()) {
    Tait();
  }
}

void SonSysteme::Joue(const std::filesystem::path& fichier) {
  constexpr std::uintmax_t auPlus = 1'000'000;
  std::error_code sansMot;
  if (!std::filesystem::is_regular_file(fichier, sansMot) ||
      std::filesystem::file_size(fichier, sansMot) > auPlus) {
    return;
  }
  // Its bytes, not its name: a name without an extension might be taken for another one.
  Tait();
  std::ifstream lecture(fichier, std::ios::binary);
  EnCours().assign(std::istreambuf_iterator<char>(lecture), {});
  // A sound that can't be played is no reason to trouble the user: the answer is left aside.
  static_cast<void>(::PlaySoundW(reinterpret_cast<LPCWSTR>(EnCours().data()), nullptr,
                                 SND_MEMORY | SND_ASYNC | SND_NODEFAULT));
}

}  // namespace gastrelle
