#include "plateforme/ErreurExecution.h"

#include <array>

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

}  // namespace gastrelle
