// The dialog that exports recipes: the families to choose from, then the writing of the document.
#pragma once

#include <cstdint>
#include <vector>

#include <QDialog>
#include <QPushButton>
#include <QTreeWidget>

#include "data/Module1.h"

namespace gastrelle {

class frmExport final : public QDialog {
 public:
  /// All families are chosen at first. A failure to list them ends the program.
  frmExport(Module1& module, QWidget* parent);

  /// Nothing leaves the dialog before the document is written.
  void reject() override;

 protected:
  /// The widths of the columns go with that of the list.
  bool eventFilter(QObject* vers, QEvent* evenement) override;

 private:
  QWidget* ComposeChoix();
  QWidget* ComposeEcriture();
  void Charge();
  void CocheTout(Qt::CheckState etat);
  void RegleBoutons();
  [[nodiscard]] std::vector<std::int32_t> FamillesCochees() const;
  void Exporte();
  void Ecrit();

  Module1& module_;
  QTreeWidget* ListView1_;
  QPushButton* cmdSelect_;
  QPushButton* cmdDeselect_;
  QPushButton* cmdExport_;
  QPushButton* cmdStop_;
  QWidget* Frame1_;
  QWidget* Frame2_;
  bool enCours_ = false;
};

}  // namespace gastrelle
