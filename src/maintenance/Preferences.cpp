#include "maintenance/Preferences.h"

#include "data/ProceduresFichiers.h"
#include "data/Texte1252.h"

namespace gastrelle {
namespace {

void Ecrit(Module1& module) {
  if (module.Place(Donnees::GLPREF) == nullptr) {
    Ouvre(module, Donnees::GLPREF);
  } else if (!FichierExiste(module, Nom(Donnees::GLPREF))) {
    // The open file would still take the write, but nobody would find it again.
    throw ErreurExecution(Panne::fichierIntrouvable);
  }
  module.prefs.EcritCourant(1);
}

}  // namespace

bool EnregistrePreferences(Module1& module, const RecPreferences& choisies) {
  module.prefs.courant() = choisies;
  try {
    Ecrit(module);
  } catch (const ErreurExecution&) {
    module.Place(Donnees::GLPREF).reset();
    module.services.messages.Informe(
        "Erreur E/S disque. Les modifications n'ont pas été prises en compte."_1252,
        Icone::critique);
    return false;
  }
  module.prefs[0] = module.prefs.courant();
  return true;
}

}  // namespace gastrelle
