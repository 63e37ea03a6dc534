#include "fiches/frmFichesAjouter.h"

#include "controles/Focus.h"
#include "data/ProceduresFichiers.h"
#include "fiches/frmFichesListe.h"

namespace gastrelle {

frmFichesAjouter::frmFichesAjouter(const PlaceOnglet& place, frmFichesListe& laListe)
    : frmFichesSaisie(place, laListe, &DescriptionFiches::ajouter) {
  boutons().Valide("cmdValideAjouter", u"Valider les saisies",
                   [this] { Opere(module(), [this] { Valide(); }); });
  boutons().Efface("cmdEffacerAjouter", [this] { Efface(); });
  boutons().Aide("cmdAideAjouter");
}

void frmFichesAjouter::Entre() {
  VideBoites({{titre, texte}});
  DonneFocus(titre);
}

void frmFichesAjouter::Valide() {
  RogneTexte(*titre);
  if (EstVide(*titre)) {
    hote().Refuse(description.sansTitreAjouter, titre);
    return;
  }
  RogneTexte(*texte);
  const std::string nouveau = titre->Texte();
  const std::int32_t numero = AjouteFiche(module(), description.fichiers, nouveau, texte->Texte());
  liste.combo->Ajoute({nouveau, numero});
  hote().MontreEnregistrement(numero);
}

void frmFichesAjouter::Efface() {
  hote().EffaceSaisies({titre, texte});
  DonneFocus(titre);
}

}  // namespace gastrelle
