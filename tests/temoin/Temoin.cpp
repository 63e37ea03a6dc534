#include "temoin/Temoin.h"

#include <cstdio>

#include <QCoreApplication>
#include <QEvent>
#include <QMessageBox>

namespace gastrelle::essai {

Temoin::Temoin() {
  QCoreApplication::instance()->installEventFilter(this);
}

bool Temoin::eventFilter(QObject* objet, QEvent* evenement) {
  const auto* boite = qobject_cast<QMessageBox*>(objet);
  if (boite != nullptr && evenement->type() == QEvent::Show) {
    std::printf("message: %s\n",
                qPrintable(boite->text().split(u'\n').join(QStringLiteral(" | "))));
    std::fflush(stdout);
  }
  return false;
}

QObject* GreffonTemoin::create(const QString& nom, const QString& /*precision*/) {
  return nom.compare(QStringLiteral("temoin"), Qt::CaseInsensitive) == 0 ? new Temoin : nullptr;
}

}  // namespace gastrelle::essai
