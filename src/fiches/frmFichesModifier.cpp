#include "fiches/frmFichesModifier.h"

#include "controles/Focus.h"
#include "data/ProceduresFichiers.h"
#include "fiches/frmFichesListe.h"

namespace gastrelle {

frmFichesModifier::frmFichesModifier(const PlaceOnglet& place, frmFichesListe& laListe)
    : frmFichesSaisie(place, laListe, &DescriptionFiches::modifier) {
  boutons().Valide("cmdValideModifier", u"Valider les saisies", [this] { Valide(); });
  boutons().Reinitialise("cmdEffacerModifier", [this] { Reprend(); });
  boutons().Aide("cmdAideModifier");
}

void frmFichesModifier::Entre() {
  Reprend();
  DonneFocus(titre);
}

void frmFichesModifier::Valide() {
  RogneTexte(*titre);
  if (EstVide(*titre)) {
    hote().Refuse(description.sansTitreModifier, nullptr);
    titre->RemplaceTexte(liste.combo->Texte());
    DonneFocus(titre);
    return;
  }
  Opere(module(), [&] {
    RogneTexte(*texte);
    const std::int32_t numero = liste.combo->NumeroChoisi();
    ChangeFiche(module(), description.fichiers, numero, titre->Texte(), texte->Texte());
    liste.Recharge();
    hote().MontreEnregistrement(numero);
  });
}

}  // namespace gastrelle
