#include "fromages/frmFromagesListe.h"

#include "controles/Focus.h"
#include "controles/ParcoursListe.h"
#include "controles/TitreEntier.h"
#include "data/ProceduresFichiers.h"

namespace gastrelle {

frmFromagesListe::frmFromagesListe(const PlaceOnglet& place)
    : frmFromagesAffichage(place, {}),
      ComboFromages(new ComboListe(QStringLiteral("ComboFromages"), Ordre::alphabetique, this)) {
  contenu().addWidget(new TitreEntier(*ComboFromages, this), 0, 0, 1, -1);
  DisposeSous(ComboFromages);
  boutons().Aide("cmdAideListe");
  ParcourtAuClavier(*this, *ComboFromages);
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
  Opere(module(), [&] {
    fromage = LitFromage(module(), ComboFromages->NumeroChoisi());
    Montre(fromage);
  });
  Entre();
}

void frmFromagesListe::Entre() {
  DonneFocus(EstVide(*txtRegion) ? txtLait : txtRegion);
}

}  // namespace gastrelle
