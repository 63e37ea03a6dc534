#include "shell/SuiviFenetres.h"

#include <QEvent>
#include <QTimer>

#include "shell/ContourFenetre.h"

namespace gastrelle {
namespace {

FenetreEnfant* Contenu(QWidget* fenetre) {
  const auto* enfant = qobject_cast<QMdiSubWindow*>(fenetre);
  return enfant == nullptr ? nullptr : dynamic_cast<FenetreEnfant*>(enfant->widget());
}

}  // namespace

SuiviFenetres::SuiviFenetres(QMdiArea& enfants) : enfants_(enfants) {
  connect(&enfants_, &QMdiArea::subWindowActivated, this, [this](QMdiSubWindow* fenetre) {
    if (fenetre != nullptr) {
      DonneLaMain(fenetre);
    }
  });
}

void SuiviFenetres::Suit(QMdiSubWindow& fenetre) {
  fenetre.installEventFilter(this);
  connect(&fenetre, &QObject::destroyed, this, [this] { Regarde(); });
  // A minimised window that is restored takes up its place as the active one again.
  connect(&fenetre, &QMdiSubWindow::windowStateChanged, this,
          [this, suivie = &fenetre](Qt::WindowStates avant, Qt::WindowStates apres) {
            const bool avantReduite = (avant & Qt::WindowMinimized) != 0;
            const bool reduite = (apres & Qt::WindowMinimized) != 0;
            FenetreEnfant* contenu = Contenu(suivie);
            if (contenu == nullptr || reduite == avantReduite) {
              return;
            }
            if (reduite) {
              contenu->QuandReduite();
            } else if (suivie == derniere_) {
              Reprend();
            }
          });
}

FenetreEnfant* SuiviFenetres::active() const {
  return Contenu(derniere_);
}

bool SuiviFenetres::eventFilter(QObject* objet, QEvent* evenement) {
  const bool vueOuCachee = evenement->type() == QEvent::Hide || evenement->type() == QEvent::Show;
  if (vueOuCachee && !evenement->spontaneous() && !regardPrevu_) {
    // Maximising hides the window and shows it again: look once all is over.
    regardPrevu_ = true;
    QTimer::singleShot(0, this, [this] {
      regardPrevu_ = false;
      Regarde();
    });
  }
  return QObject::eventFilter(objet, evenement);
}

void SuiviFenetres::Regarde() {
  if (derniere_ != nullptr && derniere_->isVisible()) {
    return;
  }
  if (!enfants_.isVisible()) {
    return;
  }
  QList<QMdiSubWindow*> fenetres = enfants_.subWindowList(QMdiArea::ActivationHistoryOrder);
  QMdiSubWindow* visible = nullptr;
  for (QMdiSubWindow* fenetre : fenetres) {
    if (fenetre->isVisible()) {
      visible = fenetre;
    }
  }
  enfants_.setActiveSubWindow(visible);  // left alone, the hidden one stays the active one
  DonneLaMain(visible);
}

void SuiviFenetres::DonneLaMain(QMdiSubWindow* vers) {
  if (vers == derniere_) {
    return;
  }
  FenetreEnfant* quittee = active();
  const bool encoreVisible = derniere_ != nullptr && derniere_->isVisible();
  derniere_ = vers;
  if (quittee != nullptr && encoreVisible) {
    quittee->Desactive();
  }
  Reprend();
}

void SuiviFenetres::Reprend() {
  if (auto* contour = dynamic_cast<ContourFenetre*>(derniere_.data())) {
    contour->RendClavier();
  }
  if (FenetreEnfant* prise = active()) {
    prise->Active();
  }
}

}  // namespace gastrelle
