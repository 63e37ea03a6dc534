// What every change of a catalogue does to its files: a new record goes behind the last one and is
// counted, a deleted one loses its live flag alone. Records are never moved, their slots never used
// again. Everything here throws ErreurExecution on a failure.
#pragma once

#include <cstdint>
#include <string_view>

#include "data/FichierEnregistrements.h"
#include "data/Reserve.h"

namespace gastrelle {

/// Puts the working record behind the last one, then counts it. Returns its number.
template <class T>
std::int32_t AjouteCourant(FichierEnregistrements<T>& fichier) {
  const std::int32_t numero = fichier.ProchainNumero();
  fichier.EcritCourant(numero);
  fichier.Compte(+1);
  return numero;
}

/// Clears the live flag of a record, all its other bytes staying as they are. The working record
/// then holds it; the header isn't touched.
template <class T>
void Efface(FichierEnregistrements<T>& fichier, std::int32_t numero) {
  fichier.LitCourant(numero);
  fichier.courant().actif = supprime;
  fichier.EcritCourant(numero);
}

/// Clears a record's live flag, then counts it off.
template <class T>
void SupprimeEnregistrement(FichierEnregistrements<T>& fichier, std::int32_t numero) {
  Efface(fichier, numero);
  fichier.Compte(-1);
}

/// Puts a text at the end of its pool, whatever the record referred to before. An empty text clears
/// the reference and leaves the pool as it is.
inline void AjouteTexte(Reserve& reserve, ReferenceTexte reference, std::string_view texte) {
  if (texte.empty()) {
    reference.Efface();
  } else {
    reserve.Ajoute(reference, texte);
  }
}

}  // namespace gastrelle
