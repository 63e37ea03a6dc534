// The system's printer, whose module is loaded when something is printed for the first time.
#pragma once

#include <QString>

#include "plateforme/Imprimante.h"

namespace gastrelle {

class AccesImprimanteSysteme final : public AccesImprimante {
 public:
  /// `dossier`: where the module lies. Without it there is no printer.
  explicit AccesImprimanteSysteme(QString dossier);

  std::unique_ptr<Imprimante> ParDefaut() override;

 private:
  QString dossier_;
};

}  // namespace gastrelle
