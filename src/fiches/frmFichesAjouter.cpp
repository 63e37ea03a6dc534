#include "fiches/frmFichesAjouter.h"

#include "controles/Touches.h"
#include "data/ProceduresFichiers.h"
#include "fiches/frmFiches.h"
#include "fiches/frmFichesListe.h"

namespace gastrelle {

frmFichesAjouter::frmFichesAjouter(frmFiches& hote)
    : frmFichesSaisie(hote, hote.description().ajouter) {
  QPushButton* cmdValideAjouter =
      Bouton(QStringLiteral("cmdValideAjouter"), QStringLiteral("&Valider"),
             QStringLiteral("valider"), QStringLiteral("Valider les saisies"), this);
  QPushButton* cmdEffacerAjouter =
      Bouton(QStringLiteral("cmdEffacerAjouter"), QStringLiteral("Effa&cer"),
             QStringLiteral("effacer"), QStringLiteral("Effacer toutes les saisies"), this);
  boutons().addWidget(cmdValideAjouter);
  boutons().addWidget(cmdEffacerAjouter);
  boutons().addWidget(BoutonAide(QStringLiteral("cmdAideAjouter"), this));
  connect(cmdValideAjouter, &QPushButton::clicked, this, [this] { Valide(); });
  connect(cmdEffacerAjouter, &QPushButton::clicked, this, [this] { Efface(); });
}

void frmFichesAjouter::Entre() {
  Vide();
  DonneFocus(&titre());
}

void frmFichesAjouter::Valide() {
  Module1& module = hote().module();
  module.services.pointeur.Sablier();
  const std::string nouveau = TitreRogne();
  if (nouveau.empty()) {
    hote().Refuse(hote().description().sansTitreAjouter, &titre());
    return;
  }
  const std::string sonTexte = TexteRogne();
  Garde(module, [&] {
    const std::int32_t numero = hote().catalogue().Ajoute(nouveau, sonTexte);
    ComboListe& combo = *hote().liste().combo;
    combo.Ajoute({nouveau, numero});
    hote().ChoisitOnglet(FenetreOnglets::ongletListe);
    combo.ChoisitDonnee(numero);
  });
}

void frmFichesAjouter::Efface() {
  if (hote().ConfirmeEffacement({&titre(), &texte()})) {
    Vide();
  }
  DonneFocus(&titre());
}

}  // namespace gastrelle
