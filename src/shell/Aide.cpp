#include "shell/Aide.h"

#include <QApplication>
#include <QKeyEvent>
#include <QWindow>

#include "controles/Conversion.h"
#include "controles/Touches.h"
#include "data/ProceduresFichiers.h"
#include "plateforme/ErreurExecution.h"
#include "shell/FichierAide.h"
#include "shell/frmAide.h"

namespace gastrelle {
namespace {

/// What the help has on a control: the topic is its own, or that of the nearest widget around it
/// that has one; the paragraphs are the names met on the way.
struct Renvoi {
  QString sujet = QLatin1String(sujetAccueil);
  QStringList paragraphes;
};

Renvoi RenvoiDe(const QWidget* controle) {
  Renvoi renvoi;
  for (; controle != nullptr; controle = controle->parentWidget()) {
    renvoi.paragraphes << controle->objectName();
    const QString sujet = controle->property(proprieteSujet).toString();
    if (!sujet.isEmpty()) {
      renvoi.sujet = sujet;
      break;
    }
  }
  return renvoi;
}

/// The window of the program on which the user works: not a dialog over it.
const QWidget* FenetreDuProgramme() {
  const QWidget* fenetre = QApplication::activeWindow();
  while (fenetre != nullptr && fenetre->parentWidget() != nullptr) {
    fenetre = fenetre->parentWidget()->window();
  }
  return fenetre;
}

bool EstF1(const QEvent& evenement) {
  if (evenement.type() != QEvent::KeyPress) {
    return false;
  }
  const auto& touche = static_cast<const QKeyEvent&>(evenement);
  return touche.key() == Qt::Key_F1 && touche.modifiers() == Qt::NoModifier;
}

}  // namespace

Aide::Aide(Module1& module) : module_(module) {
  qApp->installEventFilter(this);
}

Aide::~Aide() = default;

bool Aide::Prepare() {
  if (fenetre_ != nullptr) {
    return true;
  }
  const auto dit = [this](std::string_view texte) {
    module_.services.messages.Informe(texte, Icone::aucune);
  };
  try {
    fichier_ =
        FichierAide::Ouvre(QString::fromStdString(CheminSysteme(module_, module_.fichierAide)));
  } catch (const ErreurExecution& erreur) {
    dit(erreur.what());
    return false;
  }
  if (fichier_ == nullptr) {
    dit("Fichier d'aide illisible ou incomplet");
    return false;
  }
  fenetre_ = std::make_unique<frmAide>(*fichier_);
  fenetre_->PlaceAupresDe(FenetreDuProgramme());
  return true;
}

void Aide::Ouvre(const QString& sujet, const QStringList& paragraphes) {
  if (module_.fichierAide.empty() || !Prepare()) {
    return;
  }
  QWidget* menu = QApplication::activePopupWidget();
  while (menu != nullptr && menu->close()) {
    menu = QApplication::activePopupWidget();
  }
  Rattache(QApplication::activeModalWidget());
  fenetre_->isMinimized() ? fenetre_->showNormal() : fenetre_->show();
  fenetre_->Montre(sujet, paragraphes);  // once shown: the page knows its width
  fenetre_->raise();
  fenetre_->activateWindow();
}

void Aide::Rattache(QWidget* dialogue) {
  dialogue_ = dialogue;
  fenetre_->winId();  // the native window, before it is shown
  fenetre_->windowHandle()->setTransientParent(
      dialogue == nullptr ? nullptr : dialogue->window()->windowHandle());
}

void Aide::Quitte() {
  dialogue_ = nullptr;
  fenetre_.reset();
  fichier_.reset();
}

bool Aide::eventFilter(QObject* objet, QEvent* evenement) {
  if (EstF1(*evenement)) {
    if (auto* controle = qobject_cast<QWidget*>(objet)) {
      if (!static_cast<QKeyEvent*>(evenement)->isAutoRepeat()) {
        const Renvoi renvoi = RenvoiDe(controle);
        Ouvre(renvoi.sujet, renvoi.paragraphes);
      }
      return true;
    }
  }
  if (evenement->type() == QEvent::Hide && dialogue_ != nullptr && objet == dialogue_) {
    Rattache(nullptr);
    // The dialog around the one that closes, if any, is known once the closing is over.
    QMetaObject::invokeMethod(
        this,
        [this] {
          if (fenetre_ != nullptr && fenetre_->isVisible()) {
            Rattache(QApplication::activeModalWidget());
          }
        },
        Qt::QueuedConnection);
  }
  return QObject::eventFilter(objet, evenement);
}

}  // namespace gastrelle
