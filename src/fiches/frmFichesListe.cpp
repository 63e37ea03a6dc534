#include "fiches/frmFichesListe.h"

#include "controles/FeuilleTexte.h"
#include "controles/Focus.h"
#include "controles/ParcoursListe.h"
#include "controles/TitreEntier.h"
#include "data/Limites.h"
#include "data/ProceduresFichiers.h"

namespace gastrelle {

frmFichesListe::frmFichesListe(const PlaceOnglet& place, const DescriptionFiches& fiches)
    : PageOnglet(place),
      description(fiches),
      combo(new ComboListe(QLatin1String(description.liste.titre), Ordre::alphabetique, this)),
      texte(new FeuilleTexte(QLatin1String(description.liste.texte), limiteTexte, this)) {
  const DescriptionSaisie& controles = description.liste;
  texte->RendLectureSeule();
  combo->setToolTip(QString::fromUtf16(controles.infobulleTitre));
  AjouteDessous(QString::fromUtf16(controles.legendeTitre), combo);
  contenu().addWidget(new TitreEntier(*combo, this), contenu().rowCount(), 0);
  contenu().setRowStretch(AjouteDessous(QString::fromUtf16(controles.legendeTexte), texte), 1);
  boutons().Aide("cmdAideListe");
  ParcourtAuClavier(*this, *combo);
  combo->surChoix = [this] { Affiche(); };
}

void frmFichesListe::Charge() {
  Garde(module(), [&] { ExigeFiches(module(), description.fichiers); });
  Recharge();
  combo->Choisit(0);
}

void frmFichesListe::Recharge() {
  combo->Vide();
  Opere(module(), [&] { combo->Ajoute(ListeFiches(module(), description.fichiers)); });
}

void frmFichesListe::Affiche() {
  Opere(module(),
        [&] { texte->PoseTexte(LitFiche(module(), description.fichiers, combo->NumeroChoisi())); });
  DonneFocus(texte);
}

void frmFichesListe::Entre() {
  DonneFocus(texte);
}

Vue frmFichesListe::VueCourante() const {
  return description.vue(combo->Texte(), texte->Texte());
}

}  // namespace gastrelle
