#include "data/Courses.h"

#include "data/ProceduresFichiers.h"
#include "data/Reserve.h"
#include "plateforme/ErreurExecution.h"

namespace gastrelle {

void ChargeCourses(Module1& module) {
  Reserve textes(module.Place(Donnees::GLMCN));
  std::size_t enTout = 0;
  for (std::size_t i = 0; i < nombreRayons; ++i) {
    LigneRayon& ligne = module.indexRayon[i];
    module.bufRayon.Lit(static_cast<std::int64_t>(i) + 1, ligne);
    module.texteRayon[i].clear();
    if (ligne.posTexte != 0) {
      module.texteRayon[i] = textes.Lit(ligne.posTexte, ligne.lgTexte);
      enTout += module.texteRayon[i].size();
    }
    if (enTout > std::size_t{Reserve::plafond}) {
      throw ErreurExecution(Panne::memoireInsuffisante);  // rows of a damaged directory overlap
    }
  }
}

void SauveCourses(Module1& module) {
  try {
    module.services.disque.Supprime(Nom(Donnees::GLMCN));
    Ouvre(module, Donnees::GLMCN);
    Reserve textes(module.Place(Donnees::GLMCN));
    Ouvert(module.Place(Donnees::GLMCN)).Ecrit(0, Signature(Donnees::GLMCN));
    for (std::size_t i = 0; i < nombreRayons; ++i) {
      LigneRayon& ligne = module.indexRayon[i];
      const ReferenceTexte reference{ligne.posTexte, ligne.lgTexte};
      if (module.texteRayon[i].empty()) {
        reference.Efface();
      } else {
        textes.Ajoute(reference, module.texteRayon[i]);
      }
      module.bufRayon.Ecrit(static_cast<std::int64_t>(i) + 1, ligne);
    }
  } catch (const ErreurExecution&) {
    return;  // the aisle texts that weren't written are lost, and the end of the program goes on
  }
}

}  // namespace gastrelle
