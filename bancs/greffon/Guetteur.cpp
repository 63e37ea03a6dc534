#include "greffon/Guetteur.h"

#include <unistd.h>

#include <QEvent>
#include <QGuiApplication>
#include <QWindow>

namespace gastrelle::bancs {

Guetteur::Guetteur() {
  QCoreApplication::instance()->installEventFilter(this);
  connect(&battement_, &QTimer::timeout, this, &Guetteur::Bat);
}

bool Guetteur::eventFilter(QObject* objet, QEvent* evenement) {
  if (objet == &battement_) {
    return false;
  }
  ++evenements_;
  if (evenement->type() == QEvent::Paint) {
    peinte_ = peinte_ || exposee_;
  } else if (evenement->type() == QEvent::Expose && !exposee_) {
    const auto* fenetre = qobject_cast<QWindow*>(objet);
    exposee_ = fenetre != nullptr && fenetre->isExposed();
    if (exposee_) {
      statut_ = fenetre->modality() == Qt::NonModal ? 0 : modale;
      battement_.start(0);
    }
  }
  return false;
}

void Guetteur::Bat() {
  constexpr int assez = 3;
  calmes_ = peinte_ && evenements_ == evenementsAvant_ ? calmes_ + 1 : 0;
  evenementsAvant_ = evenements_;
  if (calmes_ == assez) {
    ::_exit(statut_);
  }
}

QObject* GreffonGuetteur::create(const QString& nom, const QString& /*precision*/) {
  return nom.compare(QStringLiteral("guetteur"), Qt::CaseInsensitive) == 0 ? new Guetteur : nullptr;
}

}  // namespace gastrelle::bancs
