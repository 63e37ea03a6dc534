#include "fiches/frmFiches.h"

#include "data/ProceduresFichiers.h"
#include "fiches/frmFichesListe.h"

namespace gastrelle {

frmFiches::frmFiches(Module1& module, Cadre& cadre, const DescriptionFiches& description)
    : FenetreOnglets(module, cadre, description.fenetre),
      description_(description),
      catalogue_(module, description.fichiers),
      liste_(static_cast<frmFichesListe&>(Page(ongletListe))) {
  ExigeFichierOuFin(module, description.fichiers.fiches);
  liste_.Charge();
  liste_.combo->Choisit(0);
}

std::string frmFiches::Annonce() {
  return std::to_string(catalogue_.Nombre()) + std::string(CRLF) +
         std::string(description_.annonce);
}

}  // namespace gastrelle
