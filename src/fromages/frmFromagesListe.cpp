#include "fromages/frmFromagesListe.h"

#include "controles/Touches.h"
#include "data/ProceduresFichiers.h"
#include "fromages/frmFromages.h"

namespace gastrelle {

frmFromagesListe::frmFromagesListe(frmFromages& hote)
    : frmFromagesListe(hote, new ComboListe(QStringLiteral("ComboFromages"), Ordre::alphabetique)) {
}

frmFromagesListe::frmFromagesListe(frmFromages& hote, ComboListe* fromages)
    : frmFromagesAffichage(hote, {}, fromages), ComboFromages(fromages) {
  boutons().addWidget(BoutonAide(QStringLiteral("cmdAideListe"), this));
  ComboFromages->surChoix = [this] { AfficheFromage(); };
}

void frmFromagesListe::AfficheFromage() {
  Module1& module = hote().module();
  module.services.pointeur.Sablier();
  Garde(module, [&] { Montre(LitFromage(module, ComboFromages->Donnee())); });
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
