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
  /// The copy starts once the dialog is seen, or soon after where nobody can see it.
  void showEvent(QShowEvent* evenement) override;
  void paintEvent(QPaintEvent* evenement) override;

 private:
  enum class Etape { attente, enCours, finie };

  void CopieDans(int millisecondes);
  void Copie();
  void Conclut(bool reussie);

  Module1& module_;
  QLabel* lblTache_;
  QPushButton* cmdOk_;
  Etape etape_ = Etape::attente;
};

}  // namespace gastrelle
