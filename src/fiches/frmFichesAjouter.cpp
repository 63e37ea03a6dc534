#include "fiches/frmFichesAjouter.h"

#include "controles/Focus.h"
#include "data/ProceduresFichiers.h"
#include "fiches/frmFichesListe.h"

namespace gastrelle {

frmFichesAjouter::frmFichesAjouter(const PlaceOnglet& place, frmFichesListe& liste)
    : frmFichesSaisie(place, liste, &DescriptionFiches::ajouter) {
  boutons().Valide("cmdValideAjouter", u"Valider les saisies",
                   [this] { Opere(module(), [this] { Valide(); }); });
  boutons().Efface("cmdEffacerAjouter", [this] { Efface(); });
  boutons().Aide("cmdAideAjouter");
}

void frmFichesAjouter::Entre() {
  Vide();
  DonneFocus(&titre());
}

void frmFichesAjouter::Valide() {
  const std::string nouveau = TitreRogne();
  if (nouveau.empty()) {
    hote().Refuse(description().sansTitreAjouter, &titre());
    return;
  }
  const std::int32_t numero = AjouteFiche(module(), description().fichiers, nouveau, TexteRogne());
  liste().combo->Ajoute({nouveau, numero});
  hote().MontreEnregistrement(numero);
}

void frmFichesAjouter::Efface() {
  if (hote().ConfirmeEffacement({&titre(), &texte()})) {
    Vide();
  }
  DonneFocus(&titre());
}

}  // namespace gastrelle
