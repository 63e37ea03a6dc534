#include "fromages/frmFromagesListe.h"

#include "controles/Focus.h"
#include "data/ProceduresFichiers.h"

namespace gastrelle {

frmFromagesListe::frmFromagesListe(const PlaceOnglet& place)
    : frmFromagesListe(place,
                       new ComboListe(QStringLiteral("ComboFromages"), Ordre::alphabetique)) {}

frmFromagesListe::frmFromagesListe(const PlaceOnglet& place, ComboListe* fromages)
    : frmFromagesAffichage(place, {}, fromages), ComboFromages(fromages) {
  boutons().Aide("cmdAideListe");
  ComboFromages->surChoix = [this] { AfficheFromage(); };
}

void frmFromagesListe::Charge() {
  Garde(module(), [&] {
    ExigeFromages(module());
    Recharge();
  });
  ComboFromages->Choisit(0);
}

void frmFromagesListe::Recharge() {
  ComboFromages->Vide();
  ComboFromages->Ajoute(ListeFromages(module()));
}

void frmFromagesListe::AfficheFromage() {
  Opere(module(), [&] { Montre(LitFromage(module(), ComboFromages->Donnee())); });
  Entre();
}

void frmFromagesListe::Entre() {
  DonneFocus(EstVide(*txtRegion) ? txtLait : txtRegion);
}

std::string frmFromagesListe::Nom() const {
  return std::string(Rogne(ComboFromages->Texte()));
}

Vue frmFromagesListe::VueCourante() const {
  return VueFromage{Nom(),
                    txtRegion->Texte(),
                    txtLait->Texte(),
                    txtPremierMois->Texte(),
                    txtDernierMois->Texte(),
                    txtNotes->Texte()};
}

}  // namespace gastrelle
