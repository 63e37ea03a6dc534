#include "fromages/frmFromagesAjouter.h"

#include "controles/Focus.h"
#include "data/ProceduresFichiers.h"
#include "fromages/frmFromagesListe.h"

namespace gastrelle {

frmFromagesAjouter::frmFromagesAjouter(const PlaceOnglet& place, frmFromagesListe& liste)
    : frmFromagesSaisie(place, QStringLiteral("Ajouter")), liste_(liste) {
  boutons().Valide("cmdValideAjouter", u"Valider la saisie", [this] { Valide(); });
  boutons().Efface("cmdEffacerAjouter", [this] { Efface(); });
  boutons().Aide("cmdAideAjouter");
}

void frmFromagesAjouter::Entre() {
  VideBoites({{txtFromage, txtRegion, txtNotes}});
  MontreCodes(0, 0, 0);
  DonneFocus(txtFromage);
}

void frmFromagesAjouter::Valide() {
  RogneTexte(*txtFromage);
  if (EstVide(*txtFromage)) {
    module().services.messages.Bip();
    DonneFocus(txtFromage);
    return;
  }
  // The same name may be added twice: only a change looks for it.
  Opere(module(), [&] {
    const FromageSaisi saisi = Saisie();
    const std::int32_t numero = AjouteFromage(module(), saisi);
    liste_.ComboFromages->Ajoute(EntreeListe{saisi.nom, numero});
    hote().MontreEnregistrement(numero);
  });
}

void frmFromagesAjouter::Efface() {
  if (hote().EffaceSaisies({txtFromage, txtRegion, txtNotes})) {
    Entre();
  } else {
    DonneFocus(txtFromage);
  }
}

}  // namespace gastrelle
