#include "fiches/frmFichesSupprimer.h"

#include "controles/Touches.h"
#include "data/ProceduresFichiers.h"
#include "fiches/frmFiches.h"
#include "fiches/frmFichesListe.h"

namespace gastrelle {

frmFichesSupprimer::frmFichesSupprimer(frmFiches& hote)
    : frmFichesSaisie(hote, hote.description().supprimer),
      cmdSupprimer_(Bouton(QStringLiteral("cmdSupprimer"), QStringLiteral("&Supprimer"),
                           QStringLiteral("supprimer"),
                           QString::fromUtf16(hote.description().infobulleSupprimer), this)),
      cmdAideSupprimer_(BoutonAide(QStringLiteral("cmdAideSupprimer"), this)) {
  titre().RendLectureSeule();
  texte().RendLectureSeule();
  boutons().addWidget(cmdSupprimer_);
  boutons().addWidget(cmdAideSupprimer_);
  connect(cmdSupprimer_, &QPushButton::clicked, this, [this] { Supprime(); });
}

void frmFichesSupprimer::Entre() {
  Reprend();
  const ComboListe& combo = *hote().liste().combo;
  const bool permise = combo.currentIndex() >= 0 && !hote().catalogue().Protegee(combo.Donnee());
  const QString infobulle =
      permise ? QString() : QString::fromUtf16(hote().description().infobulleProtegee);
  titre().setToolTip(infobulle);
  texte().setToolTip(infobulle);
  PermetSuppression(permise);
  DonneFocus(permise ? cmdSupprimer_ : cmdAideSupprimer_);
}

void frmFichesSupprimer::PermetSuppression(bool permise) {
  switch (hote().description().boutonProtege) {
    case BoutonProtege::inactif:
      return cmdSupprimer_->setEnabled(permise);
    case BoutonProtege::cache:
      return cmdSupprimer_->setVisible(permise);
  }
}

void frmFichesSupprimer::Supprime() {
  Module1& module = hote().module();
  if (module.services.messages.Demande(hote().description().questionSupprimer) != Reponse::oui) {
    return;
  }
  module.services.pointeur.Sablier();
  Garde(module, [&] {
    frmFichesListe& liste = hote().liste();
    hote().catalogue().Supprime(liste.combo->Donnee());
    liste.Recharge();
    hote().ChoisitOnglet(FenetreOnglets::ongletListe);
    liste.combo->Choisit(0);
  });
}

}  // namespace gastrelle
