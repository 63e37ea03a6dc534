// Which menu entries and toolbar buttons a window and its tab allow: one table, keyed by the code
// of the context.
#pragma once

#include <array>
#include <cstdint>

#include "data/Contextes.h"

namespace gastrelle {

enum class Etat : char { actif = '+', inactif = '-', inchange = '=' };

/// The columns of the table. A column is a menu entry, a button, or an entry with its button.
enum class Colonne : std::uint8_t {
  imprimer,      ///< mnuFilePrint and "Print"
  couper,        ///< mnuEditCut and "Couper"
  copier,        ///< mnuEditCopy and "Copier"
  coller,        ///< mnuEditPaste and "Coller"
  selectionner,  ///< mnuEditSelect
  rechercher,    ///< mnuEditRechercher and "Find"
  envoyer,       ///< mnuEditEnvoyer
  boutonsEnvoi,  ///< "Ttx" and "Notepad"
  image,         ///< mnuViewImage
};

inline constexpr std::size_t nombreColonnes = 9;

using Motif = std::array<Etat, nombreColonnes>;

/// The pattern of a context; every column unchanged for a code that isn't in the table.
/// The picture of a recipe is told apart: in context 11 its column is left to the window.
Motif MotifDuContexte(std::int16_t code);

/// The pattern of a window that isn't active any more.
Motif MotifDeSortie(EntreeVue vue);

}  // namespace gastrelle
