// How every list of a catalogue is built: a scan of its records, the live ones becoming entries.
#pragma once

#include "data/Collation.h"
#include "data/FichierEnregistrements.h"
#include "data/Texte1252.h"

namespace gastrelle {

/// Adds to `liste`, in record order, an entry (trimmed name, record number) for each live record
/// that `garde` keeps. The records are read into `dans`, which ends up holding the last one read.
/// Returns the number of live records seen, kept or not. Throws on a failure.
template <class T, class Garde>
std::int16_t AjouteVivants(FichierEnregistrements<T>& fichier, T& dans, Liste& liste,
                           Garde&& garde) {
  return fichier.ParcourtVivants(dans, [&](std::int32_t numero) {
    if (garde(dans)) {
      liste.push_back({std::string(Rogne(NomOuSignature(dans).brut())), numero});
    }
  });
}

template <class T>
std::int16_t AjouteVivants(FichierEnregistrements<T>& fichier, T& dans, Liste& liste) {
  return AjouteVivants(fichier, dans, liste, [](const T&) { return true; });
}

/// The list of the live records that `garde` keeps, as AjouteVivants builds it; the header's count
/// is then put right.
template <class T, class Garde>
Liste ListeReparee(FichierEnregistrements<T>& fichier, T& dans, Garde&& garde) {
  Liste liste;
  fichier.RepareCompte(AjouteVivants(fichier, dans, liste, garde));
  return liste;
}

template <class T>
Liste ListeReparee(FichierEnregistrements<T>& fichier, T& dans) {
  return ListeReparee(fichier, dans, [](const T&) { return true; });
}

}  // namespace gastrelle
