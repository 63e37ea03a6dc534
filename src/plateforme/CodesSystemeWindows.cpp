#include <array>
#include <windows.h>

#include "plateforme/CodesSysteme.h"

namespace gastrelle {
namespace {

constexpr int quotaDepasse = 1295;  // ERROR_DISK_QUOTA_EXCEEDED, which not every header has

}  // namespace

std::span<const CodeSysteme> CodesDuSysteme() {
  static constexpr std::array<CodeSysteme, 20> codes{{
      {ERROR_FILE_NOT_FOUND, Panne::fichierIntrouvable},
      {ERROR_PATH_NOT_FOUND, Panne::fichierIntrouvable},
      {ERROR_INVALID_DRIVE, Panne::fichierIntrouvable},
      {ERROR_DIRECTORY, Panne::cheminIntrouvable},
      {ERROR_CRC, Panne::entreeSortie},
      {ERROR_SEEK, Panne::entreeSortie},
      {ERROR_READ_FAULT, Panne::entreeSortie},
      {ERROR_WRITE_FAULT, Panne::entreeSortie},
      {ERROR_IO_DEVICE, Panne::entreeSortie},
      {ERROR_NOT_ENOUGH_MEMORY, Panne::memoireInsuffisante},
      {ERROR_OUTOFMEMORY, Panne::memoireInsuffisante},
      {ERROR_DISK_FULL, Panne::disquePlein},
      {ERROR_HANDLE_DISK_FULL, Panne::disquePlein},
      {quotaDepasse, Panne::disquePlein},
      {ERROR_FILE_TOO_LARGE, Panne::disquePlein},
      {ERROR_ACCESS_DENIED, Panne::permissionRefusee},
      {ERROR_WRITE_PROTECT, Panne::permissionRefusee},
      {ERROR_SHARING_VIOLATION, Panne::permissionRefusee},
      {ERROR_LOCK_VIOLATION, Panne::permissionRefusee},
      {ERROR_INVALID_PARAMETER, Panne::appelIncorrect},
  }};
  return codes;
}

}  // namespace gastrelle
