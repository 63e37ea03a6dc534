// What the tabs "Ajouter" and "Modifier" of the favourites' window have in common: the name of a
// category, or all that a favourite consists of.
#pragma once

#include <array>
#include <vector>

#include <QRadioButton>

#include "controles/ComboListe.h"
#include "favoris/frmFavorisFiche.h"

namespace gastrelle {

class frmFavorisListe;

/// The controls of a page by their names, and the words in which the two pages differ.
struct DescriptionSaisieFavori {
  const char* suffixe;  ///< of the boxes' names
  const char* options;  ///< the pair, without the index
  const char16_t* optionFavori;
  std::array<const char16_t*, 2> infobullesOptions;
  const char16_t* infobulleCategorie;  ///< of the category's new name
  const char* categories;
  std::array<const char16_t*, 8> infobulles;  ///< of the favourite's fields, category first
};

class frmFavorisSaisie : public frmFavorisFiche {
 protected:
  frmFavorisSaisie(const PlaceOnglet& place, frmFavorisListe& laListe,
                   const DescriptionSaisieFavori& description);

  /// The controls that a favourite has and a category hasn't: where its category is chosen, then
  /// its texts.
  [[nodiscard]] std::vector<QWidget*> PourFavori() const;
  /// The boxes of a favourite's texts, its name first.
  [[nodiscard]] std::vector<QWidget*> Textuelles() const;
  /// Trims the new name of a category in its box. False: it is empty (`siVide` is what is said
  /// then) or reads like an entry of `existantes`, but for the one at `sauf`, and was refused.
  [[nodiscard]] bool AccepteNomCategorie(std::string_view siVide, const ComboListe& existantes,
                                         int sauf = -1);
  /// The favourite as it stands in the boxes, in a category; all but the name, which is trimmed
  /// already, are trimmed there.
  [[nodiscard]] FavoriSaisi Saisie(std::int32_t categorie);

  frmFavorisListe& liste;
  std::array<QRadioButton*, 2> options;
  LigneTexte* nomCategorie;
  ComboListe* categories;  ///< where the favourite's own is chosen
  LigneTexte* nom;
};

}  // namespace gastrelle
