#include "plateforme/ErreurExecution.h"

#include <array>
#include <cerrno>

namespace gastrelle {
namespace {

struct TextePanne {
  Panne panne;
  const char* texte;  // Windows-1252: E9 is e acute, E8 e grave, E0 a grave
};

constexpr std::array<TextePanne, 11> textes{{
    {Panne::depassement, "D\xE9passement de capacit\xE9"},
    {Panne::memoireInsuffisante, "M\xE9moire insuffisante"},
    {Panne::appelIncorrect, "Argument ou appel de proc\xE9\x64ure incorrect"},
    {Panne::fichierFerme, "Nom ou num\xE9ro de fichier incorrect"},
    {Panne::fichierIntrouvable, "Fichier introuvable"},
    {Panne::entreeSortie, "Erreur d'entr\xE9\x65/sortie"},
    {Panne::disquePlein, "Disque plein"},
    {Panne::numeroEnregistrement, "Num\xE9ro d'enregistrement incorrect"},
    {Panne::permissionRefusee, "Permission refus\xE9\x65"},
    {Panne::accesFichier, "Erreur d'acc\xE8s au fichier"},
    {Panne::cheminIntrouvable, "Chemin d'acc\xE8s introuvable"},
}};

struct CodeSysteme {
  int code;
  Panne panne;
};

constexpr std::array<CodeSysteme, 11> codes{{
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

}  // namespace

const char* ErreurExecution::what() const noexcept {
  for (const TextePanne& ligne : textes) {
    if (ligne.panne == panne_) {
      return ligne.texte;
    }
  }
  return "";
}

std::string ErreurExecution::Rapport() const {
  return "Erreur d'ex\xE9\x63ution '" + std::to_string(numero()) + "' : " + what();
}

Panne PanneDuSysteme(int codeErrno) noexcept {
  for (const CodeSysteme& ligne : codes) {
    if (ligne.code == codeErrno) {
      return ligne.panne;
    }
  }
  return Panne::accesFichier;
}

}  // namespace gastrelle
