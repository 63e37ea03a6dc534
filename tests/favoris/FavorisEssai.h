// Favourites and categories for the tests, and what stands on file of them.
#pragma once

#include <string>
#include <string_view>

#include "data/Texte1252.h"
#include "doublures/Bibliotheque.h"
#include "doublures/Entetes.h"
#include "favoris/CatalogueFavoris.h"

namespace gastrelle::essai {

inline RecFavori Favori(std::string_view nom, std::int16_t categorie = 2) {
  RecFavori favori;
  favori.nomFavori = nom;
  favori.idCategorie = categorie;
  return favori;
}

/// "Affineur" (16) of the category "Artisans" (5), the first of their lists: all eight fields are
/// filled, the address of ten bytes at position 10 of the pool, the notes of twelve at 20, which
/// end it. "Favori 002" of "Catégorie 002" follows.
inline void AjouteAffineur(Bibliotheque& b) {
  RecFavori favori = Favori("Affineur", static_cast<std::int16_t>(b.AjouteCategorie("Artisans")));
  favori.telephone = "01 02 03 04 05";
  favori.fax = "01 02 03 04 06";
  favori.email = "affineur@exemple.fr";
  favori.siteWeb = "https://exemple.fr";
  b.AjouteFavori(favori, "1 rue Haut", "Douze octets");
}

/// Record `numero` of the favourites, as on file.
inline RecFavori FicheFavori(const Bibliotheque& b, std::size_t numero) {
  return Enregistrement<RecFavori>(b.dossier, "GLFV2.DAT", numero);
}

/// Record `numero` of the categories, as on file.
inline RecFamille FicheCategorie(const Bibliotheque& b, std::size_t numero) {
  return Enregistrement<RecFamille>(b.dossier, "GLFV1.DAT", numero);
}

/// The names on file, trimmed.
inline std::string NomFavori(const Bibliotheque& b, std::size_t numero) {
  return std::string(Rogne(FicheFavori(b, numero).nomFavori.brut()));
}
inline std::string NomCategorie(const Bibliotheque& b, std::size_t numero) {
  return std::string(Rogne(FicheCategorie(b, numero).nomFamille.brut()));
}

/// Makes the wines' file so long that a category's deletion visits favourites up to number
/// `dernier`.
inline void PoseBorneDesVins(const Bibliotheque& b, std::int64_t dernier) {
  std::filesystem::resize_file(
      b.dossier.chemin() / "GLV2.DAT",
      static_cast<std::uintmax_t>(dernier * longueurEnregistrement<RecFavori>));
}

}  // namespace gastrelle::essai
