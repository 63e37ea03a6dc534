// The factory catalogues as they are read from their sources: texts already Windows-1252, in French
// typography, with CR LF line breaks; references between entries resolved to record numbers.
#pragma once

#include <array>
#include <cstdint>
#include <filesystem>
#include <string>
#include <vector>

#include "usine/Journal.h"

namespace gastrelle::usine {

struct Recette {
  std::string titre;
  std::int32_t idFamille;
  std::string texte;
  std::string image;  ///< in the short form of the picture pool
};

struct Vin {
  std::string nom;
  std::int32_t idRegion;
  std::string texte;
};

struct Fromage {
  std::string nom;
  std::string region;
  std::int16_t lait;
  std::int16_t premierMois;
  std::int16_t dernierMois;
  std::string texte;
};

struct Fiche {
  std::string titre;
  std::string texte;
};

struct Favori {
  std::string nom;
  std::int16_t idCategorie;
  std::string adresse;
  std::string telephone;
  std::string fax;
  std::string email;
  std::string siteWeb;
  std::string notes;
};

inline constexpr std::size_t nombreTerroirs = 9;
using Annee = std::array<std::int16_t, nombreTerroirs>;

struct Catalogues {
  std::vector<std::string> familles;
  std::vector<Recette> recettes;
  std::vector<Fromage> fromages;
  std::vector<Fiche> menus;
  std::vector<std::string> regions;
  std::vector<Vin> vins;
  std::vector<Annee> millesimes;  ///< from 1928 on
  std::vector<Fiche> trucs;
  std::vector<std::string> categories;
  std::vector<Favori> favoris;
};

/// Reads all sources in `dossier`. Whatever breaks a rule is told to `journal`; with an empty
/// journal the result keeps all of them. `images` is the folder of the rendered pictures.
Catalogues LitCatalogues(const std::filesystem::path& dossier, const std::filesystem::path& images,
                         Journal& journal);

}  // namespace gastrelle::usine
