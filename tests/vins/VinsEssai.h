// Wines and regions for the tests, and what stands on file of them.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "data/Texte1252.h"
#include "doublures/Bibliotheque.h"
#include "doublures/Entetes.h"
#include "vins/CatalogueVins.h"
#include "vins/Cave.h"
#include "vins/RapportCave.h"

namespace gastrelle::essai {

inline RecVin Vin(std::string_view nom, std::int32_t region = 2) {
  RecVin vin;
  vin.nomVin = nom;
  vin.idRegion = region;
  return vin;
}

/// The same with bottles, in the order of the colours.
inline RecVin VinEnCave(std::string_view nom, const Bouteilles& bouteilles,
                        std::int32_t region = 2) {
  RecVin vin = Vin(nom, region);
  for (std::size_t i = 0; i < couleursVin.size(); ++i) {
    vin.*couleursVin[i].nombre = bouteilles[i];
  }
  return vin;
}

/// All lines of the report on these wines.
inline std::vector<std::string> LignesDuRapport(Module1& module, const Liste& vins) {
  const RapportCave rapport(module, vins);
  std::vector<std::string> lignes;
  for (int i = 0; i < rapport.nombre(); ++i) {
    lignes.push_back(rapport.Ligne(i));
  }
  return lignes;
}

/// Record `numero` of the wines, as on file.
inline RecVin FicheVin(const Bibliotheque& b, std::size_t numero) {
  return Enregistrement<RecVin>(b.dossier, "GLV2.DAT", numero);
}

/// Record `numero` of the regions, as on file.
inline RecRegion FicheRegion(const Bibliotheque& b, std::size_t numero) {
  return Enregistrement<RecRegion>(b.dossier, "GLV1.DAT", numero);
}

/// The names on file, trimmed.
inline std::string NomVin(const Bibliotheque& b, std::size_t numero) {
  return std::string(Rogne(FicheVin(b, numero).nomVin.brut()));
}
inline std::string NomRegion(const Bibliotheque& b, std::size_t numero) {
  return std::string(Rogne(FicheRegion(b, numero).nomRegion.brut()));
}

}  // namespace gastrelle::essai
