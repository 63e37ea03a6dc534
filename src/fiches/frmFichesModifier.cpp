#include "fiches/frmFichesModifier.h"

#include "controles/Focus.h"
#include "data/ProceduresFichiers.h"
#include "fiches/frmFichesListe.h"

namespace gastrelle {

frmFichesModifier::frmFichesModifier(const PlaceOnglet& place, frmFichesListe& liste)
    : frmFichesSaisie(place, liste, &DescriptionFiches::modifier) {
  boutons().Valide("cmdValideModifier", u"Valider les saisies", [this] { Valide(); });
  boutons().Reinitialise("cmdEffacerModifier", [this] { Reprend(); });
  boutons().Aide("cmdAideModifier");
}

void frmFichesModifier::Entre() {
  Reprend();
  DonneFocus(&titre());
}

void frmFichesModifier::Valide() {
  const std::string nouveau = TitreRogne();
  if (nouveau.empty()) {
    hote().Refuse(description().sansTitreModifier, nullptr);
    titre().PoseTexte(liste().Titre());
    DonneFocus(&titre());
    return;
  }
  Opere(module(), [&] {
    const std::int32_t numero = liste().combo->Donnee();
    ChangeFiche(module(), description().fichiers, numero, nouveau, TexteRogne());
    liste().Recharge();
    hote().MontreEnregistrement(numero);
  });
}

}  // namespace gastrelle
