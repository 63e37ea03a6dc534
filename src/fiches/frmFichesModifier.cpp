#include "fiches/frmFichesModifier.h"

#include "controles/Touches.h"
#include "data/ProceduresFichiers.h"
#include "fiches/frmFiches.h"
#include "fiches/frmFichesListe.h"

namespace gastrelle {

frmFichesModifier::frmFichesModifier(frmFiches& hote)
    : frmFichesSaisie(hote, hote.description().modifier) {
  QPushButton* cmdValideModifier =
      Bouton(QStringLiteral("cmdValideModifier"), QStringLiteral("&Valider"),
             QStringLiteral("valider"), QStringLiteral("Valider les saisies"), this);
  QPushButton* cmdEffacerModifier =
      Bouton(QStringLiteral("cmdEffacerModifier"), QStringLiteral("Ré&initialiser"),
             QStringLiteral("reinitialiser"), QStringLiteral("Réinitialiser"), this);
  boutons().addWidget(cmdValideModifier);
  boutons().addWidget(cmdEffacerModifier);
  boutons().addWidget(BoutonAide(QStringLiteral("cmdAideModifier"), this));
  connect(cmdValideModifier, &QPushButton::clicked, this, [this] { Valide(); });
  connect(cmdEffacerModifier, &QPushButton::clicked, this, [this] { Reprend(); });
}

void frmFichesModifier::Entre() {
  Reprend();
  DonneFocus(&titre());
}

void frmFichesModifier::Valide() {
  Module1& module = hote().module();
  ComboListe& combo = *hote().liste().combo;
  const std::string nouveau = TitreRogne();
  if (nouveau.empty()) {
    hote().Refuse(hote().description().sansTitreModifier, nullptr);
    titre().PoseTexte(Rogne(combo.Texte()));
    DonneFocus(&titre());
    return;
  }
  module.services.pointeur.Sablier();
  const std::string sonTexte = TexteRogne();
  Garde(module, [&] {
    const std::int32_t numero = combo.Donnee();
    hote().catalogue().Change(numero, nouveau, sonTexte);
    hote().liste().Recharge();
    const int indice = combo.IndiceDe(numero);
    hote().ChoisitOnglet(FenetreOnglets::ongletListe);
    combo.Choisit(indice);
  });
}

}  // namespace gastrelle
