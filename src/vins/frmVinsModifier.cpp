#include "vins/frmVinsModifier.h"

#include "controles/Focus.h"
#include "data/ProceduresFichiers.h"
#include "vins/frmVinsListe.h"

namespace gastrelle {
namespace {

constexpr DescriptionSaisieVin noms{"Option2",
                                    u"&Le vin",
                                    "txtSaisieRegionModifier",
                                    u"Son nouveau no&m",
                                    "txtSaisieNomVinModifier",
                                    "ComboRegionVinModifier(1)",
                                    "txtSaisieNoteModifier"};

}  // namespace

frmVinsModifier::frmVinsModifier(const PlaceOnglet& place, frmVinsListe& laListe)
    : frmVinsSaisie(place, laListe, noms),
      renommee_(
          new ComboListe(QStringLiteral("ComboRegionVinModifier(0)"), Ordre::alphabetique, this)),
      modes_(options,
             {.controles = {renommee_, nomRegion},
              .focus = renommee_,
              .surChoix = [this] { ReprendTout(); }},
             {.controles = PourVin(), .focus = nom, .vides = {nomRegion}, .surChoix = [this] {
                ReprendTout();
              }}) {
  liste.regions.Suit(*renommee_);
  renommee_->surChoix = [this] { ReprendRegion(); };
  AjouteACote(QStringLiteral("La ré&gion"), renommee_);
  Dispose();
  OrdonneClavier({renommee_, nomRegion, nom, regions, notes});
  boutons().Valide("cmdValideModifier", u"Valider la saisie", [this] {
    Opere(module(), [this] { modes_.premier() ? ValideRegion() : ValideVin(); });
  });
  boutons().Reinitialise("cmdEffacerModifier", [this] { Reinitialise(); });
  boutons().Aide("cmdAideModifier");
}

void frmVinsModifier::ReprendRegion() {
  ReprendTexte(*nomRegion, renommee_->Texte(), renommee_->currentData().toInt());
}

void frmVinsModifier::ReprendVin() {
  const std::int32_t numero = liste.ComboVins->currentData().toInt();
  ReprendTexte(*nom, liste.ComboVins->Texte(), numero);
  PositionneRegionVin();
  ReprendTexte(*notes, liste.txtNotes->Texte(), numero);
}

void frmVinsModifier::ReprendTout() {
  renommee_->Choisit(0);
  ReprendVin();
}

void frmVinsModifier::PositionneRegionVin() {
  Opere(module(), [this] {
    const std::int32_t sienne = LitRegionDuVin(module(), liste.ComboVins->NumeroChoisi());
    regions->Montre(regions->IndiceDe(sienne));
  });
}

void frmVinsModifier::Entre() {
  ReprendTout();
  modes_.Choisit(1);
  DonneFocus(nom);
}

void frmVinsModifier::Reinitialise() {
  ReprendTout();
  modes_.RendFocus();
}

void frmVinsModifier::ValideRegion() {
  RogneTexte(*nomRegion);
  const std::string nouveau = nomRegion->Texte();
  const auto refuse = [&](auto refus, std::string_view message) {
    (hote().*refus)(message, nullptr);
    nomRegion->RemplaceTexte(renommee_->Texte());
    DonneFocus(nomRegion);
  };
  if (nouveau.empty()) {
    refuse(&FenetreEnfant::Refuse, "Il faut saisir le nouveau nom de la région."_1252);
    return;
  }
  // A name that differs in case only counts as unchanged.
  if (Majuscules(nouveau) == Majuscules(renommee_->Texte())) {
    module().services.pointeur.Normal();
    liste.Montre();
    return;
  }
  if (renommee_->ContientTexte(nouveau)) {
    refuse(&FenetreEnfant::RefuseAvecBip, "Cette région existe déjà !"_1252);
    return;
  }
  EnregistreRegion(nouveau);
}

void frmVinsModifier::EnregistreRegion(const std::string& nouveau) {
  const std::int32_t numero = renommee_->NumeroChoisi();
  RenommeRegion(module(), numero, nouveau);
  nomRegion->RemplaceTexte({});
  liste.RechargeRegions();
  if (module().bufVin.courant().idRegion == numero) {
    // The box is empty by now: the region stays blank until another wine is selected.
    liste.txtRegion->PoseTexte(nomRegion->Texte());
  }
  liste.Montre();
}

void frmVinsModifier::ValideVin() {
  RogneTexte(*nom);
  const ComboListe& vins = *liste.ComboVins;
  if (EstVide(*nom)) {
    hote().Refuse("Il faut donner un nom au vin."_1252, nullptr);
    nom->RemplaceTexte(vins.Texte());
    DonneFocus(nom);
    return;
  }
  if (vins.ContientTexte(nom->Texte(), vins.currentIndex())) {
    hote().Refuse("Ce vin existe déjà"_1252, nom);
    return;
  }
  EnregistreVin();
}

void frmVinsModifier::EnregistreVin() {
  const std::int32_t numero = liste.ComboVins->NumeroChoisi();
  ChangeVin(module(), numero, Saisie());
  VideBoites({{nom, notes}});
  liste.RechargeVins();
  liste.ComboVins->ChoisitNumero(numero);
  liste.Montre();
}

}  // namespace gastrelle
