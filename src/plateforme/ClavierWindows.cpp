#include <windows.h>

#include "plateforme/Clavier.h"

namespace gastrelle {
namespace {

bool EstMis(int touche) {
  return (static_cast<unsigned>(::GetKeyState(touche)) & 1U) != 0;
}

}  // namespace

std::optional<Verrous> ClavierSysteme::Lit() {
  return Verrous{EstMis(VK_CAPITAL), EstMis(VK_NUMLOCK)};
}

}  // namespace gastrelle
