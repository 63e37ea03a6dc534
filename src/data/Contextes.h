// The codes of `contexteActif`: which window is active, and which tab of it is on display.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

namespace gastrelle {

/// The nine entries of the view menu that open a window, in menu order.
enum class EntreeVue : std::uint8_t {
  recettes,
  fromages,
  menus,
  vins,
  millesimes,
  termesTrucsAstuces,
  favoris,
  mesNotes,
  mesCourses,
};

inline constexpr std::size_t nombreVues = 9;

/// No window is active.
inline constexpr std::int16_t sansContexte = 0;
/// How many codes a window may use.
inline constexpr int contextesParFenetre = 10;
/// The tab on which the record of a whole window is chosen.
inline constexpr int ongletListe = 1;

/// The code of a window on one of its tabs, counted from 1; a window without tabs is on tab 0.
constexpr std::int16_t Contexte(EntreeVue vue, int onglet = 0) {
  constexpr std::array<std::int16_t, nombreVues> bases{10, 20, 30, 40, 50, 60, 70, 90, 100};
  return static_cast<std::int16_t>(bases[static_cast<std::size_t>(vue)] + onglet);
}

/// True if that code is one of the window's.
constexpr bool EstContexteDe(std::int16_t code, EntreeVue vue) {
  return Contexte(vue) <= code && code < Contexte(vue, contextesParFenetre);
}

}  // namespace gastrelle
