#include "plateforme/Processus.h"

namespace gastrelle {

void ProcessusSysteme::Finit(int statut) {
  std::_Exit(statut);
}

}  // namespace gastrelle
