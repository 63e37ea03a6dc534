#include "maintenance/Sauvegarde.h"

#include <string>

#include "data/ProceduresFichiers.h"

namespace gastrelle {

bool CopieSecurite(Module1& module) {
  AccesFichiers& disque = module.services.disque;
  const std::string dossier(dossierSauvegarde);
  try {
    for (auto& fichier : module.fichiers) {
      fichier.reset();
    }
    if (!DossierExiste(module, dossier)) {
      disque.CreeDossier(dossier);
    }
    for (const Donnees fichier : fichiersRecettes) {
      disque.Copie(Nom(fichier), NomDeSauvegarde(fichier));
    }
    return true;
  } catch (const ErreurExecution&) {
    return false;
  }
}

}  // namespace gastrelle
