#include "fromages/frmFromagesSupprimer.h"

#include "controles/Touches.h"
#include "data/ProceduresFichiers.h"
#include "fromages/frmFromages.h"
#include "fromages/frmFromagesListe.h"

namespace gastrelle {

frmFromagesSupprimer::frmFromagesSupprimer(frmFromages& hote)
    : frmFromagesSupprimer(hote,
                           new LigneTexte(QStringLiteral("txtFromageSupprimer"), sansLimite)) {}

frmFromagesSupprimer::frmFromagesSupprimer(frmFromages& hote, LigneTexte* fromage)
    : frmFromagesAffichage(hote, QStringLiteral("Supprimer"), fromage),
      txtFromage_(fromage),
      cmdSupprimer_(Bouton(QStringLiteral("cmdSupprimer"), QStringLiteral("&Supprimer"),
                           QStringLiteral("supprimer"),
                           QStringLiteral("Supprimer le fromage affiché"), this)),
      cmdAideSupprimer_(BoutonAide(QStringLiteral("cmdAideSupprimer"), this)) {
  txtFromage_->RendLectureSeule();
  boutons().addWidget(cmdSupprimer_);
  boutons().addWidget(cmdAideSupprimer_);
  connect(cmdSupprimer_, &QPushButton::clicked, this, [this] { Supprime(); });
}

void frmFromagesSupprimer::Entre() {
  const frmFromagesListe& liste = hote().liste();
  txtFromage_->PoseTexte(liste.Nom());
  Reprend(liste);
  const ComboListe& fromages = *liste.ComboFromages;
  Protege(fromages.currentIndex() < 0 || fromages.Donnee() <= dernierFromageProtege);
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
  Module1& module = hote().module();
  if (module.services.messages.Demande("Etes-vous sûr de vouloir supprimer ce fromage ?"_1252) !=
      Reponse::oui) {
    return;
  }
  module.services.pointeur.Sablier();
  Garde(module, [&] {
    ComboListe& fromages = *hote().liste().ComboFromages;
    SupprimeFromage(module, fromages.Donnee());
    hote().RechargeFromages();
    hote().ChoisitOnglet(FenetreOnglets::ongletListe);
    fromages.Choisit(0);
  });
}

}  // namespace gastrelle
