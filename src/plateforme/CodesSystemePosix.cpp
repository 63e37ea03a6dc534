#include <array>
#include <cerrno>

#include "plateforme/CodesSysteme.h"

namespace gastrelle {

std::span<const CodeSysteme> CodesDuSysteme() {
  static constexpr std::array<CodeSysteme, 11> codes{{
      {ENOENT, Panne::fichierIntrouvable},
      {EIO, Panne::entreeSortie},
      {ENOMEM, Panne::memoireInsuffisante},
      {ENOSPC, Panne::disquePlein},
      {EDQUOT, Panne::disquePlein},
      {EFBIG, Panne::disquePlein},
      {EACCES, Panne::permissionRefusee},
      {EPERM, Panne::permissionRefusee},
      {EROFS, Panne::permissionRefusee},
      {ENOTDIR, Panne::cheminIntrouvable},
      {EINVAL, Panne::appelIncorrect},
  }};
  return codes;
}

}  // namespace gastrelle
