#include "promenade/Promenade.h"

#include <QCoreApplication>

#include "promenade/Marche.h"
#include "promenade/Parcours.h"

namespace gastrelle::essai {

QObject* GreffonPromenade::create(const QString& nom, const QString& /*precision*/) {
  if (nom.compare(QStringLiteral("promenade"), Qt::CaseInsensitive) != 0) {
    return nullptr;
  }
  // The system's own file dialog has no controls with names.
  QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
  return new Marche(ToutLeTrajet());
}

}  // namespace gastrelle::essai
