// What is done alike to the text boxes of one line and of several.
#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>

#include "controles/LigneTexte.h"
#include "controles/ZoneTexte.h"
#include "data/Texte1252.h"

namespace gastrelle {

/// Takes the blanks off both ends of a box's text: the cursor goes to its start.
template <class Boite>
void RogneTexte(Boite& boite) {
  boite.RemplaceTexte(std::string(Rogne(boite.Texte())));
}

/// Shows the text of record `numero` (0: there is none). What was typed over the same text of the
/// same record can be called back by undoing, never what was typed over another one.
template <class Boite>
void ReprendTexte(Boite& boite, std::string_view texte, std::int32_t numero) {
  if (boite.reprise().EstLaMeme(texte, numero)) {
    boite.RemplaceTexte(texte);
  } else {
    boite.PoseTexte(texte);
  }
}

/// True if a text box (of one line or several) holds nothing.
[[nodiscard]] bool EstVide(const QWidget& boite);

/// Empties text boxes (of one line or several). What they held can be called back by undoing.
void VideBoites(std::span<QWidget* const> boites);

}  // namespace gastrelle
