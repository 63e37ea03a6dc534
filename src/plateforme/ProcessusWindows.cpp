#include <windows.h>

#include "plateforme/Processus.h"

namespace gastrelle {

void ProcessusSysteme::Finit(int statut) {
  // ExitProcess, and _Exit with it, would unload the libraries first.
  ::TerminateProcess(::GetCurrentProcess(), static_cast<UINT>(statut));
}

}  // namespace gastrelle
