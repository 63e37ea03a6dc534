// The dialog that tells how much space the recipe files could do without, and cleans them.
#pragma once

#include <QDialog>
#include <QPushButton>

#include "controles/Cadre.h"
#include "controles/LigneTexte.h"
#include "data/Module1.h"

namespace gastrelle {

class FrmProprietes final : public QDialog {
 public:
  /// Measures the files; a failure ends the program.
  FrmProprietes(Module1& module, Cadre& cadre, QWidget* parent);

 private:
  QLayout* ComposeMesures();
  QLayout* ComposeBoutons();
  LigneTexte* Boite(const char* nom);
  void Mesure();
  void Nettoie();

  Module1& module_;
  Cadre& cadre_;
  LigneTexte* txtDossier_;
  LigneTexte* txtNombre_;
  LigneTexte* txtTaille_;
  LigneTexte* txtNecessaire_;
  LigneTexte* txtGain_;
  QPushButton* cmdNettoyer_;
  QPushButton* cmdAide_;
  QPushButton* cmdFermer_;
};

}  // namespace gastrelle
