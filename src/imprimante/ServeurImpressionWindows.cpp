#include "imprimante/ServeurImpression.h"

namespace gastrelle {

bool ServeurRepond() {
  return true;  // the printers are the system's own, which answers at once
}

void RefuseMotDePasse() {}

}  // namespace gastrelle
