#include "shell/EtatsCadre.h"

#include <algorithm>

namespace gastrelle {
namespace {

constexpr const char* non = nullptr;

/// The patterns of the windows, in the order of their entries, by tab; a window without tabs has
/// its own at 0. A pattern: print, cut, copy, paste, select, find, send, buttons that send, image.
constexpr std::array<std::array<const char*, contextesParFenetre>, nombreVues> motifs{{
    {non, "+-+-++++=", "-+++=----", "-+++=----", "---------", "---------"},
    {non, "+-+-+-++-", "-++++----", "-++++----", "---------", "+-----++-"},
    {non, "+-+-++=+-", "-++++-=--", "-++++-=--", "------=--"},
    {non, "+-+-+-++-", "-++++----", "-++++----", "---------", "+-----++-", "+++++----",
     "+-----++-"},
    {non, "------++=", "--------=", "--------="},
    {non, "+-+-++++-", "-++++----", "-++++----", "---------"},
    {non, "+-+-+-++-", "-++++----", "-++++----", "--------=", "+-----++-"},
    {"+++++----"},
    {"+++++----"},
}};

Motif Lu(const char* texte) {
  Motif motif{};
  std::transform(texte, texte + nombreColonnes, motif.begin(),
                 [](char c) { return static_cast<Etat>(c); });
  return motif;
}

}  // namespace

Motif MotifDuContexte(std::int16_t code) {
  const char* motif = nullptr;
  for (std::size_t i = 0; i < nombreVues; ++i) {
    const auto vue = static_cast<EntreeVue>(i);
    if (EstContexteDe(code, vue)) {
      motif = motifs[i].at(static_cast<std::size_t>(code - Contexte(vue)));
    }
  }
  return Lu(motif == nullptr ? "=========" : motif);
}

Motif MotifDeSortie(EntreeVue vue) {
  // The menus window never touches the entry that sends.
  return Lu(vue == EntreeVue::menus ? "------=--" : "---------");
}

}  // namespace gastrelle
