#include "Memoire.h"

#include <fstream>
#include <malloc.h>
#include <stdexcept>

namespace gastrelle::bancs {

double Memoire(const std::string& mesure) {
  constexpr double kiloParMega = 1024;
  std::ifstream etat("/proc/self/status");
  for (std::string mot; etat >> mot;) {
    if (mot == mesure + ":") {
      double kilos = 0;
      etat >> kilos;
      return kilos / kiloParMega;
    }
  }
  throw std::runtime_error("pas de mesure " + mesure);
}

double OublieMaximum() {
  ::malloc_trim(0);
  std::ofstream("/proc/self/clear_refs") << 5;
  return Memoire("VmRSS");
}

}  // namespace gastrelle::bancs
