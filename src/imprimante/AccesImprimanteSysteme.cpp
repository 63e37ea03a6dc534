#include "imprimante/AccesImprimanteSysteme.h"

#include <utility>

#include <QLibrary>

#include "imprimante/EntreeModule.h"

namespace gastrelle {

AccesImprimanteSysteme::AccesImprimanteSysteme(QString dossier) : dossier_(std::move(dossier)) {}

std::unique_ptr<Imprimante> AccesImprimanteSysteme::ParDefaut() {
  QLibrary module(dossier_ + QLatin1Char('/') + QLatin1String(nomModuleImprimante));
  const auto entree = reinterpret_cast<EntreeImprimante>(module.resolve(nomEntreeImprimante));
  return std::unique_ptr<Imprimante>(entree == nullptr ? nullptr : entree());
}

}  // namespace gastrelle
