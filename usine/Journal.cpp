#include "usine/Journal.h"

#include <ostream>

namespace gastrelle::usine {

std::string Lieu::EnTexte() const {
  return ligne == 0 ? fichier : fichier + ":" + std::to_string(ligne);
}

void Journal::Refuse(Lieu lieu, std::string entree, std::string raison) {
  refus_.push_back({std::move(lieu), std::move(entree), std::move(raison)});
}

void Journal::Ecrit(std::ostream& sortie) const {
  for (const Refus& refus : refus_) {
    sortie << refus.lieu.EnTexte() << ": " << refus.entree << ": " << refus.raison << '\n';
  }
}

}  // namespace gastrelle::usine
