// What is done alike to the text boxes of one line and of several.
#pragma once

#include <span>
#include <string>

#include "controles/LigneTexte.h"
#include "controles/ZoneTexte.h"
#include "data/Texte1252.h"

namespace gastrelle {

/// Takes the blanks off both ends of a box's text, which is set anew: the cursor goes to its start.
template <class Boite>
void RogneTexte(Boite& boite) {
  boite.PoseTexte(std::string(Rogne(boite.Texte())));
}

/// True if a text box (of one line or several) holds nothing.
[[nodiscard]] bool EstVide(const QWidget& boite);

/// Empties text boxes (of one line or several).
void VideBoites(std::span<QWidget* const> boites);

}  // namespace gastrelle
