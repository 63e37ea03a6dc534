#include "promenade/Images.h"

#include <QApplication>
#include <QDir>
#include <QList>
#include <QPainter>
#include <QPixmap>
#include <QRect>
#include <QWidget>

#include "promenade/Gestes.h"

namespace gastrelle::essai {
namespace {

/// The frame below the help, the help below a dialog.
QList<QWidget*> FenetresDEnBas() {
  QList<QWidget*> fenetres;
  for (const char* nom : {"frmMain", "frmAide"}) {
    if (QWidget* fenetre = FenetreVue(QLatin1String(nom))) {
      fenetres << fenetre;
    }
  }
  if (QWidget* dialogue = DialogueVu()) {
    fenetres << dialogue;
  }
  if (QWidget* deroulee = QApplication::activePopupWidget()) {
    fenetres << deroulee;
  }
  return fenetres;
}

}  // namespace

bool ImagesVoulues() {
  return !qEnvironmentVariableIsEmpty("PROMENADE_IMAGES");
}

void PrendImage(const QString& nom) {
  const QList<QWidget*> fenetres = FenetresDEnBas();
  QRect place;
  for (const QWidget* fenetre : fenetres) {
    place |= fenetre->geometry();
  }
  QPixmap image(place.size());
  image.fill(Qt::darkGray);
  {
    QPainter pinceau(&image);
    for (QWidget* fenetre : fenetres) {
      pinceau.drawPixmap(fenetre->geometry().topLeft() - place.topLeft(), fenetre->grab());
    }
  }
  const QDir dossier(qEnvironmentVariable("PROMENADE_IMAGES"));
  static_cast<void>(dossier.mkpath(QStringLiteral(".")));
  static_cast<void>(image.save(dossier.filePath(nom + QStringLiteral(".png"))));
}

}  // namespace gastrelle::essai
