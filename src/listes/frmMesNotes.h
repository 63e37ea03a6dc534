// The window of the notes: one free text, which it alone holds as long as the program has it
// loaded.
#pragma once

#include "controles/FenetreEnfant.h"
#include "controles/FeuilleTexte.h"

namespace gastrelle {

class frmMesNotes final : public FenetreEnfant {
 public:
  /// Reads the notes; where they can't be read, that is told, and the window opens without any.
  frmMesNotes(Module1& module, Cadre& cadre);

  [[nodiscard]] Vue VueCourante() const override;
  /// Writes the text without the blanks at both ends, unless the program is ending by a fatal
  /// error. The box stays as it is.
  void EnregistreSaisie() override;

 private:
  void ChargeNotes();

  FeuilleTexte* txtSaisie_;
};

}  // namespace gastrelle
