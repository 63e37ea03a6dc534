#include "fiches/frmFiches.h"

#include "data/ProceduresFichiers.h"
#include "fiches/frmFichesAjouter.h"
#include "fiches/frmFichesListe.h"
#include "fiches/frmFichesModifier.h"
#include "fiches/frmFichesSupprimer.h"

namespace gastrelle {

frmFiches::frmFiches(Module1& module, Cadre& cadre, const DescriptionFiches& description)
    : FenetreOnglets(module, cadre, description.fenetre),
      description_(description),
      catalogue_(module, description.fichiers),
      liste_(new frmFichesListe(*this)),
      ajouter_(new frmFichesAjouter(*this)),
      modifier_(new frmFichesModifier(*this)),
      supprimer_(new frmFichesSupprimer(*this)) {
  ExigeFichierOuFin(module, description.fichiers.fiches);
  liste_->Charge();
  liste_->combo->Choisit(0);
}

Vue frmFiches::VueCourante() const {
  return ongletCourant() == ongletListe
             ? description_.vue(liste_->combo->Texte(), liste_->texte->Texte())
             : Vue{};
}

std::string frmFiches::Annonce() {
  return std::to_string(catalogue_.Nombre()) + std::string(CRLF) +
         std::string(description_.annonce);
}

}  // namespace gastrelle
