// The catalogue of favourites: the categories and the addresses, each in one category, with a text
// for its postal address and one for its notes. A pool is written before the record that points
// into it, a record before the header that counts it. A failure throws ErreurExecution, and what
// was written before it stays. Texts are Windows-1252.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "data/Collation.h"
#include "data/Module1.h"

namespace gastrelle {

/// What the boxes take, in characters: all that the record keeps.
inline constexpr int limiteAdressePostale = 512;
inline constexpr int limiteTelephone = 32;
inline constexpr int limiteAdresseReseau = 256;  ///< e-mail or web site

/// Numbers of the last category and of the last favourite that can't be deleted: those of the
/// factory.
inline constexpr std::int32_t derniereCategorieProtegee = DernierProtege(Donnees::GLFV1);
inline constexpr std::int32_t dernierFavoriProtege = DernierProtege(Donnees::GLFV2);

/// The favourites' file must still be there (the user is told when it isn't).
void ExigeFavoris(Module1& module);

/// All live categories, through the working record. The scan stops at the header's count, or
/// quietly at the last record, and repairs nothing.
Liste ListeCategories(Module1& module);

/// All live favourites, through the working record; the header's count is then put right. The file
/// must still be there.
Liste ListeFavoris(Module1& module);

/// The live favourites of a category. The working record stays what it is: it is the favourite on
/// display. Nothing is repaired and no file asked for.
Liste FavorisDeLaCategorie(Module1& module, std::int32_t categorie);

/// The texts of a favourite beside its name.
struct TextesFavori {
  std::string adresse;
  std::string telephone;
  std::string fax;
  std::string email;
  std::string siteWeb;
  std::string notes;
};

struct FavoriLu {
  std::string categorie;
  TextesFavori textes;
};

/// Reads a favourite and its category, deleted or not, into the working records, then its two
/// texts, each up to what its box takes. E-mail and web site are then trimmed in the working record
/// too. The three files must still be there.
FavoriLu LitFavori(Module1& module, std::int32_t numero);

/// Puts a new category behind the last one. The file must still be there.
void AjouteCategorie(Module1& module, std::string_view nom);

/// Writes a category anew, under another name. The file must still be there.
void RenommeCategorie(Module1& module, std::int32_t numero, std::string_view nom);

/// Deletes a category and, before it, its favourites one after the other, each counted off at once;
/// their texts stay in the pool. Only favourites are visited whose number is no higher than the
/// length of the wines' file holds records as long as a favourite's, to the nearest and at the half
/// to the even number. The two files of the favourites must still be there.
void SupprimeCategorie(Module1& module, std::int32_t numero);

/// What the user entered for a favourite, trimmed.
struct FavoriSaisi {
  std::string nom;
  std::int32_t categorie = 0;  ///< its record number
  TextesFavori textes;
};

/// Puts a new favourite behind the last one. Where a file isn't there any more, the user is told
/// and the program ends; the pool is asked for by a text alone. Returns its number.
std::int32_t AjouteFavori(Module1& module, const FavoriSaisi& saisi);

/// Writes a favourite anew at its number. The working record must hold it as it was read: the old
/// references of its texts are taken from there. Files that aren't there as in `AjouteFavori`.
void ChangeFavori(Module1& module, std::int32_t numero, const FavoriSaisi& saisi);

/// Deletes a favourite; its texts stay in the pool. The file must still be there.
void SupprimeFavori(Module1& module, std::int32_t numero);

}  // namespace gastrelle
