// The dialog that makes the backup copy, the last one that the program shows.
#pragma once

#include <QDialog>
#include <QLabel>
#include <QPushButton>

#include "data/Module1.h"

namespace gastrelle {

class frmSauvegarde final : public QDialog {
 public:
  explicit frmSauvegarde(Module1& module, QWidget* parent = nullptr);

  /// Nothing leaves the dialog before the copy is over.
  void reject() override;

 protected:
  /// The first showing starts the copy.
  void showEvent(QShowEvent* evenement) override;

 private:
  enum class Etape { attente, enCours, finie };

  void Copie();

  Module1& module_;
  QLabel* lblTache_;
  QPushButton* cmdOk_;
  Etape etape_ = Etape::attente;
};

}  // namespace gastrelle
