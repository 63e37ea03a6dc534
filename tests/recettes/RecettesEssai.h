// What the tests do to the recipe files behind the program's back.
#pragma once

#include <cstdint>
#include <string>

#include "doublures/Bibliotheque.h"

namespace gastrelle::essai {

/// Clears a record's live flag in a factory copy; the count stays.
template <class T>
void EffaceSurFichier(const Bibliotheque& b, Donnees fichier, std::int32_t numero) {
  const std::string nom = NomFabrique(fichier);
  std::string octets = b.dossier.Lit(nom);
  octets.replace(static_cast<std::size_t>(numero - 1) * longueurEnregistrement<T>, 2, 2, '\0');
  b.dossier.Ecrit(nom, octets);
}
inline void EffaceFamille(const Bibliotheque& b, std::int32_t numero) {
  EffaceSurFichier<RecFamille>(b, Donnees::GLR1, numero);
}
inline void EffaceRecette(const Bibliotheque& b, std::int32_t numero) {
  EffaceSurFichier<RecRecette>(b, Donnees::GLR2, numero);
}

}  // namespace gastrelle::essai
