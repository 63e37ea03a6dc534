#include "shell/EtatsCadre.h"

#include <algorithm>

namespace gastrelle {
namespace {

struct LigneEtats {
  std::int16_t premier;  // codes from `premier` to `dernier` share the pattern
  std::int16_t dernier;
  const char* motif;
};

constexpr std::array<LigneEtats, 27> lignes{{
    //         print cut copy paste select find send buttons image
    {11, 11, "+-+-++++="}, {12, 13, "-+++=----"}, {14, 15, "---------"},   {21, 21, "+-+-+-++-"},
    {22, 23, "-++++----"}, {24, 24, "---------"}, {25, 25, "+-----++-"},   {31, 31, "+-+-++=+-"},
    {32, 33, "-++++-=--"}, {34, 34, "------=--"}, {41, 41, "+-+-+-++-"},   {42, 43, "-++++----"},
    {44, 44, "---------"}, {45, 45, "+-----++-"}, {46, 46, "+++++----"},   {47, 47, "+-----++-"},
    {51, 51, "------++="}, {52, 53, "--------="}, {61, 61, "+-+-++++-"},   {62, 63, "-++++----"},
    {64, 64, "---------"}, {71, 71, "+-+-+-++-"}, {72, 73, "-++++----"},   {74, 74, "--------="},
    {75, 75, "+-----++-"}, {90, 90, "+++++----"}, {100, 100, "+++++----"},
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
    return l.premier <= code && code <= l.dernier;
  });
  return Lu(ligne == lignes.end() ? "=========" : ligne->motif);
}

Motif MotifDeSortie(EntreeVue vue) {
  // The menus window never touches the entry that sends.
  return Lu(vue == EntreeVue::menus ? "------=--" : "---------");
}

}  // namespace gastrelle
