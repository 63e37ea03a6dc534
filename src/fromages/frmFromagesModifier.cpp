#include "fromages/frmFromagesModifier.h"

#include "controles/Touches.h"
#include "data/ProceduresFichiers.h"
#include "fromages/frmFromages.h"
#include "fromages/frmFromagesListe.h"

namespace gastrelle {

frmFromagesModifier::frmFromagesModifier(frmFromages& hote)
    : frmFromagesSaisie(hote, QStringLiteral("Modifier")) {
  QPushButton* valide =
      Bouton(QStringLiteral("cmdValiderModifier"), QStringLiteral("&Valider"),
             QStringLiteral("valider"), QStringLiteral("Valider la saisie"), this);
  QPushButton* reinitialise =
      Bouton(QStringLiteral("cmdEffacerModifier"), QStringLiteral("Ré&initialiser"),
             QStringLiteral("reinitialiser"), QStringLiteral("Réinitialiser"), this);
  boutons().addWidget(valide);
  boutons().addWidget(reinitialise);
  boutons().addWidget(BoutonAide(QStringLiteral("cmdAideModifier"), this));
  connect(valide, &QPushButton::clicked, this, [this] { Valide(); });
  connect(reinitialise, &QPushButton::clicked, this, [this] { Entre(); });
}

void frmFromagesModifier::Entre() {
  const frmFromagesListe& liste = hote().liste();
  const RecFromage& fromage = hote().module().bufFromage.courant();
  txtFromage->PoseTexte(liste.Nom());
  txtRegion->PoseTexte(liste.txtRegion->Texte());
  MontreCodes(fromage.lait, fromage.premierMois, fromage.dernierMois);
  txtNotes->PoseTexte(liste.txtNotes->Texte());
  DonneFocus(txtFromage);
}

void frmFromagesModifier::Valide() {
  txtFromage->RogneTexte();
  const std::string nom = txtFromage->Texte();
  if (nom.empty()) {
    hote().Refuse("Il faut donner un nom au fromage."_1252, nullptr);
    txtFromage->PoseTexte(hote().liste().Nom());
    DonneFocus(txtFromage);
    return;
  }
  hote().module().services.pointeur.Sablier();
  if (NomDejaDonne(nom)) {
    hote().Refuse("Ce fromage existe déjà."_1252, txtFromage);
    return;
  }
  Enregistre();
}

bool frmFromagesModifier::NomDejaDonne(const std::string& nom) {
  // A name that differs in case only is stored, even if another cheese bears it too.
  const frmFromagesListe& liste = hote().liste();
  return Majuscules(nom) != Majuscules(liste.Nom()) && liste.ComboFromages->ContientTexte(nom);
}

void frmFromagesModifier::Enregistre() {
  Module1& module = hote().module();
  const FromageSaisi saisi = Saisi();
  Garde(module, [&] {
    const std::int32_t numero = hote().liste().ComboFromages->Donnee();
    ChangeFromage(module, numero, saisi);
    hote().RechargeFromages();
    hote().MontreFromage(numero);
  });
}

}  // namespace gastrelle
