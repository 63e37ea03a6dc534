#include "data/Reserve.h"

#include <algorithm>

#include "data/FichierEnregistrements.h"

namespace gastrelle {

std::string Reserve::Lit(std::int32_t position, std::int32_t longueur, std::int32_t limite) {
  if (position == 0) {
    return {};
  }
  if (position < 0) {
    throw ErreurExecution(Panne::numeroEnregistrement);
  }
  if (longueur < 0) {
    throw ErreurExecution(Panne::appelIncorrect);
  }
  // A length from a damaged record may be anything: no more is asked for than the file holds.
  const std::int64_t debut = std::int64_t{position} - 1;
  const std::int64_t reste = std::max<std::int64_t>(0, Longueur() - debut);
  const auto lus = std::min<std::int64_t>({longueur, limite, reste});
  if (lus > plafond) {
    throw ErreurExecution(Panne::memoireInsuffisante);
  }
  std::string texte(static_cast<std::size_t>(lus), ' ');
  texte.resize(Ouvert(place_).Lit(debut, texte));
  return texte;
}

std::size_t Reserve::LitDans(std::int32_t position, std::span<char> place) {
  if (position < 1) {
    throw ErreurExecution(Panne::numeroEnregistrement);
  }
  return Ouvert(place_).Lit(std::int64_t{position} - 1, place);
}

void Reserve::Ajoute(ReferenceTexte reference, std::string_view texte) {
  Ecrit(reference, Longueur() + 1, texte);
}

void Reserve::Remplace(ReferenceTexte reference, std::string_view texte) {
  if (texte.empty()) {
    reference.Efface();
  } else if (static_cast<std::int64_t>(texte.size()) > reference.longueur) {
    Ajoute(reference, texte);
  } else {
    Ecrit(reference, reference.position, texte);
  }
}

void Reserve::Ecrit(ReferenceTexte reference, std::int64_t position, std::string_view texte) {
  reference.position = Tenu<std::int32_t>(position);
  reference.longueur = Tenu<std::int32_t>(static_cast<std::int64_t>(texte.size()));
  if (position < 1) {
    throw ErreurExecution(Panne::numeroEnregistrement);
  }
  Ouvert(place_).Ecrit(position - 1, texte);
}

std::int64_t Reserve::Longueur() {
  return Ouvert(place_).Longueur();
}

}  // namespace gastrelle
