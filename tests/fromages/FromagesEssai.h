// Cheeses for the tests, and what stands on file of them.
#pragma once

#include <string>
#include <string_view>

#include "data/Texte1252.h"
#include "doublures/Bibliotheque.h"
#include "doublures/Entetes.h"
#include "fromages/CatalogueFromages.h"

namespace gastrelle::essai {

inline RecFromage Fromage(std::string_view nom, std::string_view region = "", std::int16_t lait = 0,
                          std::int16_t premierMois = 0, std::int16_t dernierMois = 0) {
  RecFromage fromage;
  fromage.nomFromage = nom;
  fromage.regionFromage = region;
  fromage.lait = lait;
  fromage.premierMois = premierMois;
  fromage.dernierMois = dernierMois;
  return fromage;
}

/// Record `numero` of the cheeses, as on file.
inline RecFromage FicheFromage(const Bibliotheque& b, std::size_t numero) {
  return Enregistrement<RecFromage>(b.dossier, "GLF1.DAT", numero);
}

/// The name on file, trimmed.
inline std::string NomFromage(const Bibliotheque& b, std::size_t numero) {
  return std::string(Rogne(FicheFromage(b, numero).nomFromage.brut()));
}

}  // namespace gastrelle::essai
