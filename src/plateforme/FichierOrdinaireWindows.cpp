#include <fcntl.h>
#include <io.h>
#include <windows.h>

#include "plateforme/FichierOrdinaire.h"

namespace gastrelle {

int OuvreFichierOrdinaire(const std::filesystem::path& chemin) {
  const int numero = ::_wopen(chemin.c_str(), _O_RDONLY | _O_BINARY | _O_NOINHERIT);
  if (numero < 0) {
    return -1;
  }
  const auto poignee = reinterpret_cast<HANDLE>(::_get_osfhandle(numero));
  if (::GetFileType(poignee) != FILE_TYPE_DISK) {
    ::_close(numero);
    return -1;
  }
  return numero;
}

}  // namespace gastrelle
