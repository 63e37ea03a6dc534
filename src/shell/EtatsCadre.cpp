#include "shell/EtatsCadre.h"

#include <algorithm>

namespace gastrelle {
namespace {

struct LigneEtats {
  EntreeVue vue;
  int premier;  // the tabs from `premier` to `dernier` share the pattern; 0 without tabs
  int dernier;
  const char* motif;
};

using enum EntreeVue;

constexpr std::array<LigneEtats, 27> lignes{{
    //        print cut copy paste select find send buttons image
    {recettes, 1, 1, "+-+-++++="},
    {recettes, 2, 3, "-+++=----"},
    {recettes, 4, 5, "---------"},
    {fromages, 1, 1, "+-+-+-++-"},
    {fromages, 2, 3, "-++++----"},
    {fromages, 4, 4, "---------"},
    {fromages, 5, 5, "+-----++-"},
    {menus, 1, 1, "+-+-++=+-"},
    {menus, 2, 3, "-++++-=--"},
    {menus, 4, 4, "------=--"},
    {vins, 1, 1, "+-+-+-++-"},
    {vins, 2, 3, "-++++----"},
    {vins, 4, 4, "---------"},
    {vins, 5, 5, "+-----++-"},
    {vins, 6, 6, "+++++----"},
    {vins, 7, 7, "+-----++-"},
    {millesimes, 1, 1, "------++="},
    {millesimes, 2, 3, "--------="},
    {termesTrucsAstuces, 1, 1, "+-+-++++-"},
    {termesTrucsAstuces, 2, 3, "-++++----"},
    {termesTrucsAstuces, 4, 4, "---------"},
    {favoris, 1, 1, "+-+-+-++-"},
    {favoris, 2, 3, "-++++----"},
    {favoris, 4, 4, "--------="},
    {favoris, 5, 5, "+-----++-"},
    {mesNotes, 0, 0, "+++++----"},
    {mesCourses, 0, 0, "+++++----"},
}};

Motif Lu(const char* texte) {
  Motif motif{};
  std::transform(texte, texte + nombreColonnes, motif.begin(),
                 [](char c) { return static_cast<Etat>(c); });
  return motif;
}

}  // namespace

Motif MotifDuContexte(std::int16_t code) {
  const auto ligne = std::find_if(lignes.begin(), lignes.end(), [&](const LigneEtats& l) {
    return Contexte(l.vue, l.premier) <= code && code <= Contexte(l.vue, l.dernier);
  });
  return Lu(ligne == lignes.end() ? "=========" : ligne->motif);
}

Motif MotifDeSortie(EntreeVue vue) {
  // The menus window never touches the entry that sends.
  return Lu(vue == menus ? "------=--" : "---------");
}

}  // namespace gastrelle
