#include "controles/ChoixImage.h"

#include <QDir>
#include <QFileDialog>

#include "controles/Reglages.h"
#include "data/ProceduresFichiers.h"

namespace gastrelle {

std::optional<std::string> ChoisitImage(Module1& module, QWidget* parent) {
  const ReglagesDesDialogues reglages;
  QFileDialog dialogue(parent, QStringLiteral("Rechercher une image"),
                       QString::fromStdString(CheminSysteme(module, module.chemins.De("IMAGE"))));
  dialogue.setObjectName(QStringLiteral("CommonDialog1"));
  dialogue.setFileMode(QFileDialog::ExistingFile);
  // What follows each caption is matched without regard to case, in the system's dialogs too.
  dialogue.setOption(QFileDialog::HideNameFilterDetails);
  dialogue.setNameFilters({QStringLiteral("(*.JPG) JPEG-Fichiers (*.JPG *.jpg)"),
                           QStringLiteral("(*.GIF) Compuserve GIF (*.GIF *.gif)"),
                           QStringLiteral("(*.BMP) Bitmap Windows (*.BMP *.bmp)"),
                           QStringLiteral("(*.WMF) Méta-fichier Windows (*.WMF *.wmf)"),
                           QStringLiteral("(*.EMF) Méta-fichier étendu Windows (*.EMF *.emf)"),
                           QStringLiteral("Tous fichiers (*.*) (*)")});
  if (dialogue.exec() != QDialog::Accepted || dialogue.selectedFiles().isEmpty()) {
    return std::nullopt;
  }
  const QString choisi = QDir::toNativeSeparators(dialogue.selectedFiles().constFirst());
  std::string chemin = CheminProgramme(module, choisi.toStdString());
  if (CheminSysteme(module, chemin) != choisi.toStdString()) {
    module.services.messages.Bip();  // the files can't hold the name as it is
  }
  return chemin;
}

}  // namespace gastrelle
