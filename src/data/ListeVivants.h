// How every list of a catalogue is built: a scan of its records, the live ones becoming entries.
#pragma once

#include "data/Collation.h"
#include "data/FichierEnregistrements.h"
#include "data/Texte1252.h"

namespace gastrelle {

/// Keeps every record.
inline constexpr auto tous = [](const auto&) { return true; };

/// Adds to `liste`, in record order, an entry (trimmed name, record number) for each live record
/// that `garde` keeps. The records are read into `dans`, which ends up holding the last one read.
/// Returns the number of live records seen, kept or not. Throws on a failure.
template <class T, class Filtre = decltype(tous)>
std::int16_t AjouteVivants(FichierEnregistrements<T>& fichier, T& dans, Liste& liste,
                           const Filtre& garde = tous) {
  return fichier.ParcourtVivants(dans, [&](std::int32_t numero) {
    if (garde(dans)) {
      liste.push_back({std::string(Rogne(NomOuSignature(dans).brut())), numero});
    }
  });
}

/// The list of the live records that `garde` keeps, as AjouteVivants builds it; the header's count
/// is then put right.
template <class T, class Filtre = decltype(tous)>
Liste ListeReparee(FichierEnregistrements<T>& fichier, T& dans, const Filtre& garde = tous) {
  Liste liste;
  fichier.RepareCompte(AjouteVivants(fichier, dans, liste, garde));
  return liste;
}

}  // namespace gastrelle
