#include <cstdint>
#include <fcntl.h>
#include <io.h>

#include "plateforme/CheminWindows.h"
#include "plateforme/FichierOrdinaire.h"
#include "plateforme/PoigneeWindows.h"

namespace gastrelle {

int OuvreFichierOrdinaire(const std::filesystem::path& chemin) {
  Poignee ouvert(::CreateFileW(PourLeSysteme(chemin).c_str(), GENERIC_READ,
                               FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr,
                               OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr));
  if (!ouvert.ouverte() || ::GetFileType(ouvert.poignee()) != FILE_TYPE_DISK) {
    return -1;
  }
  const int numero = ::_open_osfhandle(reinterpret_cast<std::intptr_t>(ouvert.poignee()),
                                       _O_RDONLY | _O_BINARY | _O_NOINHERIT);
  if (numero >= 0) {
    ouvert.Lache();  // closing the number closes it
  }
  return numero;
}

}  // namespace gastrelle
