// The dialog that tells the program's version and offers its links.
#pragma once

#include <QDialog>
#include <QGridLayout>
#include <QLabel>

#include "controles/Adresses.h"
#include "data/Module1.h"

namespace gastrelle {

class frmAbout final : public QDialog {
 public:
  frmAbout(Module1& module, QWidget* parent);

 private:
  QLabel* Etiquette(const char* nom, const QString& texte);
  QLayout* Entete();
  QLayout* RangeeLiens();
  QLayout* RangeeBoutons();
  void AjouteLien(QGridLayout& grille, const char* nomLegende, const QString& legende,
                  const char* nom, Lien lien);
  void StartSysInfo();

  Module1& module_;
};

}  // namespace gastrelle
