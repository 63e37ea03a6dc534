#include <windows.h>

#include "plateforme/Contraintes.h"

namespace gastrelle {

void ChangeSignalEnErreur() {
  // No signals here. A drive without a disk would stop the program with a question of the system's.
  ::SetErrorMode(SEM_FAILCRITICALERRORS | SEM_NOOPENFILEERRORBOX);
}

void GarnitEntreesSorties() {
  // A file is no small number that the standard streams could be given by mistake.
}

int FichiersPermis(int assez) {
  return assez;  // the memory is the only limit
}

}  // namespace gastrelle
