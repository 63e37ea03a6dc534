#include <algorithm>
#include <csignal>
#include <fcntl.h>
#include <sys/resource.h>
#include <unistd.h>

#include "plateforme/Contraintes.h"

namespace gastrelle {

void ChangeSignalEnErreur() {
  // A function, not SIG_IGN: what is ignored stays so in the programs that are opened.
  static_cast<void>(std::signal(SIGXFSZ, [](int) {}));
}

void GarnitEntreesSorties() {
  int numero = 0;
  while (numero >= 0 && numero <= STDERR_FILENO) {
    numero = ::open("/dev/null", O_RDWR);
  }
  if (numero >= 0) {
    ::close(numero);
  }
}

int FichiersPermis(int assez) {
  constexpr rlim_t confortable = 256;
  rlimit limite{};
  if (::getrlimit(RLIMIT_NOFILE, &limite) != 0) {
    return assez;
  }
  if (limite.rlim_cur < confortable) {
    limite.rlim_cur = std::min(confortable, limite.rlim_max);
    ::setrlimit(RLIMIT_NOFILE, &limite);
  }
  int libres = 0;
  for (rlim_t numero = 0; numero < limite.rlim_cur && libres < assez; ++numero) {
    libres += ::fcntl(static_cast<int>(numero), F_GETFD) < 0 ? 1 : 0;
  }
  return libres;
}

}  // namespace gastrelle
