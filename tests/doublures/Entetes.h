// Headers of the catalogues on file: their count, and what else they hold.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "doublures/Bibliotheque.h"

namespace gastrelle::essai {

/// The bytes of a header with another count.
inline std::string AvecCompte(std::string octets, std::int16_t compte) {
  octets[0] = static_cast<char>(compte & 0xFF);
  octets[1] = static_cast<char>(compte >> 8);
  return octets;
}

/// Sets a count in the header, on file.
inline void PoseCompte(const Bibliotheque& b, std::string_view nom, std::int16_t compte) {
  b.dossier.Ecrit(nom, AvecCompte(b.dossier.Lit(nom), compte));
}

/// All bytes of record 1, as on file.
template <class T>
std::string Entete(const Bibliotheque& b, std::string_view nom) {
  return b.dossier.Lit(nom).substr(0, longueurEnregistrement<T>);
}

/// Fills the fields of a header that nobody reads, so that it shows whether they are kept.
template <class T>
void GarnitEntete(const Bibliotheque& b, std::string_view nom) {
  std::string octets = b.dossier.Lit(nom);
  T entete;
  Decode(entete, octets.data());
  const std::size_t lus = sizeof entete.actif + NomOuSignature(entete).brut().size();
  for (std::size_t i = lus; i < longueurEnregistrement<T>; ++i) {
    octets[i] = static_cast<char>(i);
  }
  b.dossier.Ecrit(nom, octets);
}

}  // namespace gastrelle::essai
