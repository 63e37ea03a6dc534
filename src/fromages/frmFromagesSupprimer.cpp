#include "fromages/frmFromagesSupprimer.h"

#include "controles/Focus.h"
#include "data/ProceduresFichiers.h"
#include "fromages/frmFromagesListe.h"

namespace gastrelle {

frmFromagesSupprimer::frmFromagesSupprimer(const PlaceOnglet& place, frmFromagesListe& liste)
    : frmFromagesAffichage(place, QStringLiteral("Supprimer")),
      liste_(liste),
      txtFromage_(new LigneTexte(QStringLiteral("txtFromageSupprimer"), sansLimite, this)),
      cmdSupprimer_(boutons().Supprime("cmdSupprimer", u"Supprimer le fromage affiché",
                                       [this] { Supprime(); })),
      cmdAideSupprimer_(boutons().Aide("cmdAideSupprimer")) {
  txtFromage_->RendLectureSeule();
  DisposeSous(txtFromage_);
}

void frmFromagesSupprimer::Entre() {
  txtFromage_->PoseTexte(liste_.fromage.nom);
  Montre(liste_.fromage);
  const ComboListe& fromages = *liste_.ComboFromages;
  Protege(fromages.currentIndex() < 0 || fromages.NumeroChoisi() <= dernierFromageProtege);
}

void frmFromagesSupprimer::Protege(bool protege) {
  const QString infobulle =
      protege ? QStringLiteral("Ce fromage ne peut être supprimé") : QString();
  for (QWidget* boite : std::initializer_list<QWidget*>{txtFromage_, txtRegion, txtLait,
                                                        txtPremierMois, txtDernierMois, txtNotes}) {
    boite->setToolTip(infobulle);
  }
  cmdSupprimer_->setEnabled(!protege);
  DonneFocus(protege ? cmdAideSupprimer_ : cmdSupprimer_);
}

void frmFromagesSupprimer::Supprime() {
  if (module().services.messages.Demande("Etes-vous sûr de vouloir supprimer ce fromage ?"_1252) !=
      Reponse::oui) {
    return;
  }
  Opere(module(), [&] {
    SupprimeFromage(module(), liste_.ComboFromages->NumeroChoisi());
    liste_.Recharge();
    hote().ChoisitOnglet(ongletListe);
    liste_.ComboFromages->Choisit(0);
  });
}

}  // namespace gastrelle
