#include "fiches/frmFichesListe.h"

#include "controles/Touches.h"
#include "data/ProceduresFichiers.h"
#include "fiches/frmFiches.h"

namespace gastrelle {

frmFichesListe::frmFichesListe(frmFiches& hote)
    : PageOnglet(hote),
      combo(
          new ComboListe(QLatin1String(hote.description().liste.titre), Ordre::alphabetique, this)),
      texte(new ZoneTexte(QLatin1String(hote.description().liste.texte), limiteTexteFiche, this)),
      hote_(hote) {
  const DescriptionSaisie& description = hote.description().liste;
  texte->RendLectureSeule();
  combo->setToolTip(QString::fromUtf16(description.infobulleTitre));
  Etage(QString::fromUtf16(description.legendeTitre), combo);
  contenu().setRowStretch(Etage(QString::fromUtf16(description.legendeTexte), texte), 1);
  boutons().addWidget(BoutonAide(QStringLiteral("cmdAideListe"), this));
  combo->surChoix = [this] { Affiche(); };
}

void frmFichesListe::Charge() {
  Module1& module = hote_.module();
  module.services.pointeur.Sablier();
  Garde(module, [&] { combo->Ajoute(hote_.catalogue().ListeTitres()); });
}

void frmFichesListe::Recharge() {
  combo->Vide();
  Charge();
}

void frmFichesListe::Affiche() {
  Module1& module = hote_.module();
  module.services.pointeur.Sablier();
  Garde(module, [&] { texte->PoseTexte(hote_.catalogue().LitTexte(combo->Donnee())); });
  DonneFocus(texte);
}

void frmFichesListe::Entre() {
  DonneFocus(texte);
}

Vue frmFichesListe::VueCourante() const {
  return hote_.description().vue(combo->Texte(), texte->Texte());
}

}  // namespace gastrelle
