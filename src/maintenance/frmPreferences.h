// The dialog of the three preferences.
#pragma once

#include <vector>

#include <QDialog>
#include <QGridLayout>
#include <QRadioButton>

#include "data/Module1.h"

namespace gastrelle {

class frmPreferences final : public QDialog {
 public:
  frmPreferences(Module1& module, QWidget* parent);

 private:
  void ComposeGrille(QGridLayout& grille);
  void AjouteBoutons(QGridLayout& grille);
  void Enregistre();

  Module1& module_;
  /// Of each preference, the option that stands for a value other than 0.
  std::vector<QRadioButton*> secondes_;
};

}  // namespace gastrelle
