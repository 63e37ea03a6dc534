// Menus and tips for the tests, and what stands on file of them: one set of tests over both.
#pragma once

#include <ostream>
#include <string>

#include <gtest/gtest.h>

#include "data/Texte1252.h"
#include "doublures/Bibliotheque.h"
#include "doublures/Entetes.h"
#include "fiches/CatalogueFiches.h"

namespace gastrelle::essai {

struct CatalogueEssai {
  const char* nom;
  Donnees fiches;
  Donnees textes;
  FichiersFiches fichiers;
  std::int32_t dernierProtege;
};

inline void PrintTo(const CatalogueEssai& c, std::ostream* sortie) {
  *sortie << c.nom;
}

inline constexpr CatalogueEssai lesMenus{"Menus", Donnees::GLM1, Donnees::GLM2, fichiersMenus, 16};
inline constexpr CatalogueEssai lesTrucs{"Trucs", Donnees::GLT1, Donnees::GLT2, fichiersTrucs, 168};

/// Record `numero`, as on file.
inline RecFiche Fiche(const Bibliotheque& b, const CatalogueEssai& c, std::int32_t numero) {
  return Enregistrement<RecFiche>(b.dossier, Nom(c.fiches), static_cast<std::size_t>(numero));
}

inline std::string TitreFiche(const Bibliotheque& b, const CatalogueEssai& c, std::int32_t numero) {
  return std::string(Rogne(Fiche(b, c, numero).titre.brut()));
}

/// All bytes of the pool.
inline std::string Textes(const Bibliotheque& b, const CatalogueEssai& c) {
  return b.dossier.Lit(Nom(c.textes));
}

/// The header's count, on file.
inline std::int16_t Compte(const Bibliotheque& b, const CatalogueEssai& c) {
  return Fiche(b, c, 1).actif;
}

/// The lines of the journal for the writing of a record and of a text.
inline std::string EcritFiche(const CatalogueEssai& c, std::int32_t numero) {
  return "écrit " + Nom(c.fiches) + " " + std::to_string((numero - 1) * 138) + "+138";
}
inline std::string EcritTexte(const CatalogueEssai& c, int decalage, int longueur) {
  return "écrit " + Nom(c.textes) + " " + std::to_string(decalage) + "+" + std::to_string(longueur);
}

/// Clears a record's live flag, on file.
inline void SupprimeSurFichier(const Bibliotheque& b, Donnees fiches, std::int32_t numero) {
  std::string octets = b.dossier.Lit(NomFabrique(fiches));
  octets.replace(static_cast<std::size_t>(numero - 1) * 138, 2, 2, '\0');
  b.dossier.Ecrit(NomFabrique(fiches), octets);
}

}  // namespace gastrelle::essai
