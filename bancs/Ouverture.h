// The opening of a window on large files of the machine's own disk, its first painting included.
#pragma once

#include <memory>
#include <stdexcept>

#include <QApplication>

#include "data/Main.h"
#include "doublures/Bibliotheque.h"
#include "doublures/CadreEssai.h"
#include "plateforme/Disque.h"

namespace gastrelle::bancs {

/// Throws where a benchmark would measure something else than what it says.
inline void Exige(bool condition, const char* sinon) {
  if (!condition) {
    throw std::runtime_error(sinon);
  }
}

/// The program's state over a library's folder, without the journal that the doubles keep of the
/// disk.
class SurLeDisque {
 public:
  explicit SurLeDisque(essai::Bibliotheque& b)
      : disque_(b.dossier.chemin()), module_(ServicesDe(b), b.module->chemins) {
    Main(module_, false, [] {});
  }

  [[nodiscard]] Module1& module() { return module_; }

 private:
  Services ServicesDe(essai::Bibliotheque& b) {
    const Services siens = b.module->services;
    return {disque_,           siens.messages, siens.pointeur,  siens.horloge,
            siens.association, siens.son,      siens.processus, siens.imprimante};
  }

  Disque disque_;
  Module1 module_;
};

/// Makes a window and shows it, as far as what its user then sees.
template <class Fenetre>
std::unique_ptr<Fenetre> OuvreEtPeint(Module1& module, essai::CadreEssai& cadre) {
  auto fenetre = std::make_unique<Fenetre>(module, cadre);
  fenetre->show();
  fenetre->Active();
  QApplication::processEvents();
  return fenetre;
}

}  // namespace gastrelle::bancs
