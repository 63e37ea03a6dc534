#include "fiches/frmFichesSupprimer.h"

#include "controles/Focus.h"
#include "data/ProceduresFichiers.h"
#include "fiches/frmFichesListe.h"

namespace gastrelle {

frmFichesSupprimer::frmFichesSupprimer(const PlaceOnglet& place, frmFichesListe& laListe)
    : frmFichesSaisie(place, laListe, &DescriptionFiches::supprimer),
      cmdSupprimer_(boutons().Supprime("cmdSupprimer", description.infobulleSupprimer,
                                       [this] { Supprime(); })),
      cmdAideSupprimer_(boutons().Aide("cmdAideSupprimer")) {
  titre->RendLectureSeule();
  texte->RendLectureSeule();
}

void frmFichesSupprimer::Entre() {
  Reprend();
  const ComboListe& combo = *liste.combo;
  const bool permise =
      combo.currentIndex() >= 0 && !EstProtegee(description.fichiers, combo.NumeroChoisi());
  const QString infobulle = permise ? QString() : QString::fromUtf16(description.infobulleProtegee);
  titre->setToolTip(infobulle);
  texte->setToolTip(infobulle);
  PermetSuppression(permise);
  DonneFocus(permise ? cmdSupprimer_ : cmdAideSupprimer_);
}

void frmFichesSupprimer::PermetSuppression(bool permise) {
  switch (description.boutonProtege) {
    case BoutonProtege::inactif:
      return cmdSupprimer_->setEnabled(permise);
    case BoutonProtege::cache:
      return cmdSupprimer_->setVisible(permise);
  }
}

void frmFichesSupprimer::Supprime() {
  if (module().services.messages.Demande(description.questionSupprimer) != Reponse::oui) {
    return;
  }
  Opere(module(), [&] {
    SupprimeFiche(module(), description.fichiers, liste.combo->NumeroChoisi());
    liste.Recharge();
    hote().ChoisitOnglet(ongletListe);
    liste.combo->Choisit(0);
  });
}

}  // namespace gastrelle
