#include "shell/ImageAssociee.h"

#include "data/ProceduresFichiers.h"
#include "data/Texte1252.h"

namespace gastrelle {

void OuvreImageAssociee(Module1& module, const std::string& chemin) {
  constexpr std::int16_t listeDesRecettes = 11;
  if (module.contexteActif != listeDesRecettes) {
    return;
  }
  if (!ImageExiste(module, chemin)) {
    module.services.messages.Informe("Fichier" + std::string(CRLF) + chemin + std::string(CRLF) +
                                         std::string("non trouvé."_1252),
                                     Icone::critique);
  } else if (module.services.association.Ouvrir(CheminSysteme(module, chemin)) ==
             Ouverture::aucuneAssociation) {
    module.services.messages.Informe("Aucune association n'est définie pour afficher l'image"_1252,
                                     Icone::information);
  }
}

}  // namespace gastrelle
