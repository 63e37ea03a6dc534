// What is peculiar to one of the windows of titled texts, as data.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <utility>

#include "data/Vues.h"
#include "fiches/CatalogueFiches.h"

namespace gastrelle {

/// The two controls of a page, a title (on the first page: the list of titles) over a text. The
/// texts are the screen's own.
struct DescriptionSaisie {
  const char* titre;  ///< objectName
  const char* texte;
  const char16_t* legendeTitre;
  const char16_t* legendeTexte;
  const char16_t* infobulleTitre = u"";
  const char16_t* infobulleTexte = u"";
};

/// What becomes of the button that deletes when the record on display is protected.
enum class BoutonProtege : std::uint8_t { inactif, cache };

struct DescriptionFiches {
  FichiersFiches fichiers;
  DescriptionSaisie liste;
  DescriptionSaisie ajouter;
  DescriptionSaisie modifier;
  DescriptionSaisie supprimer;
  std::string_view annonce;           ///< behind the count in the logo band, Windows-1252
  std::string_view sansTitreAjouter;  ///< refusals of an empty title
  std::string_view sansTitreModifier;
  std::string_view questionSupprimer;
  const char16_t* infobulleSupprimer;
  const char16_t* infobulleProtegee;
  BoutonProtege boutonProtege;
  Vue (*vue)(std::string titre, std::string texte);
};

/// The view of a window, from what it shows.
template <class VueFiche>
Vue VueDe(std::string titre, std::string texte) {
  return VueFiche{std::move(titre), std::move(texte)};
}

}  // namespace gastrelle
