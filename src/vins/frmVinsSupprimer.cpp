#include "vins/frmVinsSupprimer.h"

#include "controles/FeuilleTexte.h"
#include "data/ProceduresFichiers.h"
#include "vins/CatalogueVins.h"
#include "vins/frmVinsListe.h"

namespace gastrelle {

frmVinsSupprimer::frmVinsSupprimer(const PlaceOnglet& place, frmVinsListe& liste)
    : PageOnglet(place),
      liste_(liste),
      options_(Options("Option3", u"Une région d'&origine", u"&Le vin")),
      ComboRegionSupprimer_(
          new ComboListe(QStringLiteral("ComboRegionSupprimer"), Ordre::alphabetique, this)),
      txNomVinSupprimer_(new LigneTexte(QStringLiteral("txNomVinSupprimer"), sansLimite, this)),
      txtRegionVinSupprimer_(
          new LigneTexte(QStringLiteral("txtRegionVinSupprimer"), sansLimite, this)),
      txtNoteVinSupprimer_(
          new FeuilleTexte(QStringLiteral("txtNoteVinSupprimer"), sansLimite, this)),
      modes_(options_, {.controles = {ComboRegionSupprimer_}},
             {.controles = {txNomVinSupprimer_, txtRegionVinSupprimer_, txtNoteVinSupprimer_}}) {
  liste_.regions.Suit(*ComboRegionSupprimer_);
  txNomVinSupprimer_->RendLectureSeule();
  txtRegionVinSupprimer_->RendLectureSeule();
  txtNoteVinSupprimer_->RendLectureSeule();
  AjouteACote(QStringLiteral("La ré&gion"), ComboRegionSupprimer_);
  AjouteACote(QStringLiteral("Le nom &du vin"), txNomVinSupprimer_);
  AjouteACote(QStringLiteral("Sa &région d'origine"), txtRegionVinSupprimer_);
  contenu().setRowStretch(AjouteACote(QStringLiteral("No&tes"), txtNoteVinSupprimer_), 1);
  boutons().Supprime("cmdValideSupprimer", u"Supprimer la région ou le vin",
                     [this] { Supprime(); });
  boutons().Aide("cmdAideSupprimer");
}

void frmVinsSupprimer::Entre() {
  ComboRegionSupprimer_->Montre(0);
  txNomVinSupprimer_->PoseTexte(liste_.ComboVins->Texte());
  txtRegionVinSupprimer_->PoseTexte(liste_.txtRegion->Texte());
  txtNoteVinSupprimer_->PoseTexte(liste_.txtNotes->Texte());
  modes_.Choisit(1);
}

bool frmVinsSupprimer::EstProtege() {
  if (modes_.premier() && ComboRegionSupprimer_->currentData().toInt() <= derniereRegionProtegee) {
    hote().Refuse("Cette région d'origine ne peut être supprimée"_1252, options_[0]);
    return true;
  }
  if (!modes_.premier() && liste_.ComboVins->currentData().toInt() <= dernierVinProtege) {
    hote().Refuse("Ce vin ne peut être supprimé"_1252, options_[1]);
    return true;
  }
  return false;
}

void frmVinsSupprimer::Supprime() {
  if (EstProtege()) {
    return;
  }
  std::string question;
  question += "Etes-vous sûr de vouloir supprimer "_1252;
  question += modes_.premier()
                  ? "cette région d'origine ?\r\n(Attention : tous les vins de cette région seront "
                    "également\r\nsupprimés.)"_1252
                  : "ce vin ?";
  if (module().services.messages.Demande(question) == Reponse::oui) {
    Opere(module(), [this] { modes_.premier() ? SupprimeRegionChoisie() : SupprimeVinAffiche(); });
  }
}

void frmVinsSupprimer::SupprimeRegionChoisie() {
  SupprimeRegion(module(), ComboRegionSupprimer_->NumeroChoisi());
  liste_.RechargeRegions();
  hote().ChoisitOnglet(ongletListe);
  // The wines that went with it stay listed until the list is next filled.
  liste_.ComboVins->Choisit(0);
}

void frmVinsSupprimer::SupprimeVinAffiche() {
  SupprimeVin(module(), liste_.ComboVins->NumeroChoisi());
  liste_.RechargeVins();
  hote().ChoisitOnglet(ongletListe);
  liste_.ComboVins->Choisit(0);
}

}  // namespace gastrelle
