#include "controles/Repeint.h"

#include <QCoreApplication>

namespace gastrelle {

void Repeint::operator()() {
  constexpr int cadence = 50;  // milliseconds
  if (depuis_.hasExpired(cadence)) {
    Maintenant();
    depuis_.start();
  }
}

void Repeint::Maintenant() {
  QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
}

void EcouleSaisies() {
  QCoreApplication::processEvents();
}

}  // namespace gastrelle
