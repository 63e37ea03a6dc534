#include "vins/frmVinsListe.h"

#include "controles/FeuilleTexte.h"
#include "controles/Focus.h"
#include "controles/ParcoursListe.h"
#include "controles/TitreEntier.h"
#include "data/ProceduresFichiers.h"
#include "vins/CatalogueVins.h"

namespace gastrelle {

frmVinsListe::frmVinsListe(const PlaceOnglet& place)
    : PageOnglet(place),
      ComboVins(new ComboListe(QStringLiteral("ComboVins"), Ordre::alphabetique, this)),
      txtRegion(new LigneTexte(QStringLiteral("txtRegion"), sansLimite, this)),
      txtNotes(new FeuilleTexte(QStringLiteral("txtNotes"), sansLimite, this)) {
  txtRegion->RendLectureSeule();
  txtNotes->RendLectureSeule();
  contenu().addWidget(new TitreEntier(*ComboVins, this), 0, 0, 1, -1);
  AjouteACote(QStringLiteral("Le &vin"), ComboVins);
  AjouteACote(QStringLiteral("Sa &région d'origine"), txtRegion);
  contenu().setRowStretch(AjouteACote(QStringLiteral("No&tes"), txtNotes), 1);
  boutons().Aide("cmdAideListe");
  ParcourtAuClavier(*this, *ComboVins);
  ComboVins->surChoix = [this] { AfficheVin(); };
}

void frmVinsListe::Charge() {
  Garde(module(), [&] {
    ExigeVins(module());
    RechargeRegions();
    ChargeVins();
  });
  ComboVins->Choisit(0);
}

void frmVinsListe::RechargeRegions() {
  regions.Remplace(ListeRegions(module()));
}

void frmVinsListe::ChargeVins() {
  ComboVins->Ajoute(ListeVins(module()));
}

void frmVinsListe::RechargeVins() {
  ComboVins->Vide();
  ChargeVins();
}

void frmVinsListe::AfficheVin() {
  Opere(module(), [&] {
    const VinLu lu = LitVin(module(), ComboVins->NumeroChoisi());
    txtRegion->PoseTexte(lu.region);
    txtNotes->PoseTexte(lu.notes);
    notesCave = lu.notesCave;
  });
}

void frmVinsListe::Montre() {
  hote().ChoisitOnglet(ongletListe);
  DonneFocus(ComboVins);
}

Vue frmVinsListe::VueCourante() const {
  return VueVin{ComboVins->Texte(), txtRegion->Texte(), txtNotes->Texte()};
}

void frmVinsListe::Entre() {
  DonneFocus(ComboVins);
}

}  // namespace gastrelle
