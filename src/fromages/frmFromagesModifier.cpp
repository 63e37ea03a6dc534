#include "fromages/frmFromagesModifier.h"

#include "controles/Focus.h"
#include "data/ProceduresFichiers.h"
#include "fromages/frmFromagesListe.h"

namespace gastrelle {

frmFromagesModifier::frmFromagesModifier(const PlaceOnglet& place, frmFromagesListe& liste)
    : frmFromagesSaisie(place, QStringLiteral("Modifier")), liste_(liste) {
  boutons().Valide("cmdValiderModifier", u"Valider la saisie", [this] { Valide(); });
  boutons().Reinitialise("cmdEffacerModifier", [this] { Entre(); });
  boutons().Aide("cmdAideModifier");
}

void frmFromagesModifier::Entre() {
  const RecFromage& courant = module().bufFromage.courant();
  const std::int32_t numero = liste_.ComboFromages->currentData().toInt();
  ReprendTexte(*txtFromage, liste_.fromage.nom, numero);
  ReprendTexte(*txtRegion, liste_.fromage.region, numero);
  MontreCodes(courant.lait, courant.premierMois, courant.dernierMois);
  ReprendTexte(*txtNotes, liste_.fromage.notes, numero);
  DonneFocus(txtFromage);
}

void frmFromagesModifier::Valide() {
  RogneTexte(*txtFromage);
  const std::string nom = txtFromage->Texte();
  if (nom.empty()) {
    hote().Refuse("Il faut donner un nom au fromage."_1252, nullptr);
    txtFromage->RemplaceTexte(liste_.ComboFromages->Texte());
    DonneFocus(txtFromage);
    return;
  }
  Opere(module(), [&] {
    if (NomDejaDonne(nom)) {
      hote().Refuse("Ce fromage existe déjà."_1252, txtFromage);
      return;
    }
    const std::int32_t numero = liste_.ComboFromages->NumeroChoisi();
    ChangeFromage(module(), numero, Saisie());
    liste_.Recharge();
    hote().MontreEnregistrement(numero);
  });
}

bool frmFromagesModifier::NomDejaDonne(const std::string& nom) {
  // A name that differs in case only is stored, even if another cheese bears it too.
  return Majuscules(nom) != Majuscules(liste_.ComboFromages->Texte()) &&
         liste_.ComboFromages->ContientTexte(nom);
}

}  // namespace gastrelle
