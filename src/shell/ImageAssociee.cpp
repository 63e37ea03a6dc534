#include "shell/ImageAssociee.h"

#include "data/Contextes.h"
#include "data/ProceduresFichiers.h"
#include "data/Texte1252.h"

namespace gastrelle {

void OuvreImageAssociee(Module1& module, const std::string& chemin) {
  if (module.contexteActif != Contexte(EntreeVue::recettes, ongletListe)) {
    return;
  }
  if (!ImageExiste(module, chemin)) {
    module.services.messages.Informe("Fichier" + std::string(CRLF) + chemin + std::string(CRLF) +
                                         std::string("non trouvé."_1252),
                                     Icone::critique);
  } else if (module.services.association.Ouvre(CheminSysteme(module, chemin)) ==
             Ouverture::aucuneAssociation) {
    module.services.messages.Informe("Aucune association n'est définie pour afficher l'image"_1252,
                                     Icone::information);
  }
}

}  // namespace gastrelle
