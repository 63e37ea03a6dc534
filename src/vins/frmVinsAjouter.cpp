#include "vins/frmVinsAjouter.h"

#include "controles/Focus.h"
#include "data/ProceduresFichiers.h"
#include "vins/frmVinsListe.h"

namespace gastrelle {
namespace {

constexpr DescriptionSaisieVin noms{"Option1",
                                    u"&Un vin",
                                    "txtSaisieRegion",
                                    u"Le nom de la ré&gion",
                                    "txtSaisieNomVin",
                                    "ComboRegionVinAjouter",
                                    "txtSaisieNoteAjouter"};

}  // namespace

frmVinsAjouter::frmVinsAjouter(const PlaceOnglet& place, frmVinsListe& laListe)
    : frmVinsSaisie(place, laListe, noms),
      modes_(options,
             {.controles = {nomRegion},
              .focus = nomRegion,
              .vides = {nom, notes, nomRegion},
              .surChoix = [this] { regions->Montre(0); }},
             {.controles = PourVin(),
              .focus = nom,
              .vides = {nomRegion, nom, notes},
              .surChoix = [this] { regions->Montre(0); }}) {
  Dispose();
  boutons().Valide("cmdValideAjouter", u"Valider la saisie", [this] {
    Opere(module(), [this] { modes_.premier() ? ValideRegion() : ValideVin(); });
  });
  boutons().Efface("cmdEffacerAjouter", [this] { Efface(); });
  boutons().Aide("cmdAideAjouter");
}

void frmVinsAjouter::Entre() {
  VideBoites({{nomRegion, nom, notes}});
  regions->Montre(0);
  modes_.RendFocus();
}

void frmVinsAjouter::ValideRegion() {
  RogneTexte(*nomRegion);
  const std::string nouvelle = nomRegion->Texte();
  if (nouvelle.empty()) {
    module().services.pointeur.Normal();
    module().services.messages.Bip();
    DonneFocus(nomRegion);
    return;
  }
  if (regions->ContientTexte(nouvelle)) {
    hote().RefuseAvecBip("Cette région existe déjà !"_1252, nomRegion);
    return;
  }
  AjouteRegion(module(), nouvelle);
  liste.RechargeRegions();
  nomRegion->RemplaceTexte({});
  hote().ChoisitOnglet(ongletListe);
}

void frmVinsAjouter::ValideVin() {
  RogneTexte(*nom);
  if (EstVide(*nom)) {
    hote().Refuse("Il faut donner un nom au nouveau vin."_1252, nom);
    return;
  }
  EnregistreVin();
}

void frmVinsAjouter::EnregistreVin() {
  const std::int32_t numero = AjouteVin(module(), Saisie());
  VideBoites({{nom, notes}});
  hote().ChoisitOnglet(ongletListe);
  // The list isn't emptied before: from now on it holds every wine twice.
  liste.ChargeVins();
  liste.ComboVins->ChoisitNumero(numero);
}

void frmVinsAjouter::Efface() {
  if (hote().EffaceSaisies({nomRegion, nom, notes})) {
    regions->Montre(0);
  }
  modes_.RendFocus();
}

}  // namespace gastrelle
