#include "plateforme/CodesSysteme.h"

namespace gastrelle {

Panne PanneDuSysteme(int codeErrno) noexcept {
  for (const CodeSysteme& ligne : CodesDuSysteme()) {
    if (ligne.code == codeErrno) {
      return ligne.panne;
    }
  }
  return Panne::accesFichier;
}

}  // namespace gastrelle
