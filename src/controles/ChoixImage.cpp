#include "controles/ChoixImage.h"

#include <QDir>
#include <QFileDialog>

#include "controles/Conversion.h"

namespace gastrelle {

std::optional<std::string> ChoisitImage(Module1& module, QWidget* parent) {
  QFileDialog dialogue(parent, QStringLiteral("Rechercher une image"),
                       VersQt(module.chemins.De("IMAGE")));
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
  bool perte = false;
  const QString chemin =
      Acceptable(QDir::toNativeSeparators(dialogue.selectedFiles().constFirst()), perte);
  if (perte) {
    module.services.messages.Bip();
  }
  return DepuisQt(chemin);
}

}  // namespace gastrelle
