// What a child window knows of the frame around it.
#pragma once

#include "data/Contextes.h"

namespace gastrelle {

class Cadre {
 public:
  Cadre() = default;
  Cadre(const Cadre&) = delete;
  Cadre& operator=(const Cadre&) = delete;
  virtual ~Cadre() = default;

  /// Sets `contexteActif` to a window's code and the menu entries and buttons to its pattern.
  virtual void PoseContexte(std::int16_t code) = 0;
  /// `contexteActif` back to 0, the pattern of a window that isn't active any more, its check mark
  /// taken off.
  virtual void QuitteContexte(EntreeVue vue) = 0;
  /// Sets the check mark of a window's entry.
  virtual void Coche(EntreeVue vue) = 0;
  /// Allows looking at the picture of the recipe on display, or not.
  virtual void PermetImage(bool permise) = 0;
  /// Shows the picture of the recipe on display in the program's own viewer.
  virtual void MontreImage() = 0;
  /// Unloads the windows in the order of the view menu, up to that of `derniere`.
  virtual void Decharge(EntreeVue derniere) = 0;
  /// Tells that the recipes aren't those any more that were there: once the dialog that is open has
  /// gone, their window is shown anew.
  virtual void AnnonceRecettesChangees() = 0;
};

}  // namespace gastrelle
