#include "shell/BarreStatut.h"

#include <QApplication>
#include <QKeyEvent>

namespace gastrelle {
namespace {

QLabel* Panneau(const QString& nom, const QString& texte, const QString& infobulle,
                QWidget* parent) {
  auto* panneau = new QLabel(texte, parent);
  panneau->setObjectName(nom);
  panneau->setToolTip(infobulle);
  panneau->setFrameStyle(QFrame::StyledPanel | QFrame::Sunken);
  panneau->setContentsMargins(6, 0, 6, 0);
  return panneau;
}

}  // namespace

BarreStatut::BarreStatut(Clavier& clavier, QWidget* parent)
    : QStatusBar(parent),
      clavier_(clavier),
      majuscules_(Panneau(QStringLiteral("StatusBar1.Maj"), QStringLiteral("Maj"),
                          QStringLiteral("Verrouillage des majuscules"), this)),
      numerique_(Panneau(QStringLiteral("StatusBar1.Num"), QStringLiteral("Num"),
                         QStringLiteral("Verrouillage du pavé numérique"), this)) {
  setObjectName(QStringLiteral("StatusBar1"));
  setAccessibleName(QStringLiteral("Barre de statuts"));
  addPermanentWidget(majuscules_);
  addPermanentWidget(numerique_);
  Montre({});
  qApp->installEventFilter(this);
}

void BarreStatut::Rafraichit() {
  if (const auto verrous = clavier_.Lit()) {
    Montre(*verrous);
  }
}

void BarreStatut::Montre(Verrous verrous) {
  const auto montre = [](QLabel& panneau, bool mis) {
    panneau.setEnabled(mis);
    panneau.setAccessibleDescription(
        panneau.toolTip() + (mis ? QStringLiteral(" : activé") : QStringLiteral(" : désactivé")));
  };
  montre(*majuscules_, verrous.majuscules);
  montre(*numerique_, verrous.numerique);
}

bool BarreStatut::eventFilter(QObject* objet, QEvent* evenement) {
  const QEvent::Type type = evenement->type();
  if (type == QEvent::KeyPress || type == QEvent::KeyRelease) {
    const int touche = static_cast<QKeyEvent*>(evenement)->key();
    if (touche == Qt::Key_CapsLock || touche == Qt::Key_NumLock) {
      Rafraichit();
    }
  } else if (type == QEvent::ApplicationActivate) {
    Rafraichit();
  }
  return QStatusBar::eventFilter(objet, evenement);
}

}  // namespace gastrelle
