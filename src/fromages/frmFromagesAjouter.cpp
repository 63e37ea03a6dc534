#include "fromages/frmFromagesAjouter.h"

#include "controles/Touches.h"
#include "data/ProceduresFichiers.h"
#include "fromages/frmFromages.h"
#include "fromages/frmFromagesListe.h"

namespace gastrelle {

frmFromagesAjouter::frmFromagesAjouter(frmFromages& hote)
    : frmFromagesSaisie(hote, QStringLiteral("Ajouter")) {
  QPushButton* valide =
      Bouton(QStringLiteral("cmdValideAjouter"), QStringLiteral("&Valider"),
             QStringLiteral("valider"), QStringLiteral("Valider la saisie"), this);
  QPushButton* efface =
      Bouton(QStringLiteral("cmdEffacerAjouter"), QStringLiteral("Effa&cer"),
             QStringLiteral("effacer"), QStringLiteral("Effacer toutes les saisies"), this);
  boutons().addWidget(valide);
  boutons().addWidget(efface);
  boutons().addWidget(BoutonAide(QStringLiteral("cmdAideAjouter"), this));
  connect(valide, &QPushButton::clicked, this, [this] { Valide(); });
  connect(efface, &QPushButton::clicked, this, [this] { Efface(); });
}

void frmFromagesAjouter::Entre() {
  txtFromage->PoseTexte({});
  txtRegion->PoseTexte({});
  txtNotes->PoseTexte({});
  MontreCodes(0, 0, 0);
  DonneFocus(txtFromage);
}

void frmFromagesAjouter::Valide() {
  Module1& module = hote().module();
  txtFromage->RogneTexte();
  if (EstVide(*txtFromage)) {
    module.services.messages.Bip();
    DonneFocus(txtFromage);
    return;
  }
  module.services.pointeur.Sablier();
  // The same name may be added twice: only a change looks for it.
  Garde(module, [&] {
    const FromageSaisi saisi = Saisi();
    const std::int32_t numero = AjouteFromage(module, saisi);
    hote().liste().ComboFromages->Ajoute(EntreeListe{saisi.nom, numero});
    hote().MontreFromage(numero);
  });
}

void frmFromagesAjouter::Efface() {
  if (hote().ConfirmeEffacement({txtFromage, txtRegion, txtNotes})) {
    Entre();
  } else {
    DonneFocus(txtFromage);
  }
}

}  // namespace gastrelle
