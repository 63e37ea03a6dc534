#include "recettes/frmRecettesAlpha.h"

#include "controles/Focus.h"
#include "data/ProceduresFichiers.h"
#include "recettes/LectureRecettes.h"
#include "recettes/frmRecettesListe.h"

namespace gastrelle {

frmRecettesAlpha::frmRecettesAlpha(const PlaceOnglet& place, frmRecettesListe& liste)
    : PageOnglet(place),
      liste_(liste),
      lstRecettesTri_(new ListeChoix(QStringLiteral("lstRecettesTri"), Ordre::alphabetique, this)),
      lblNbreRecette_(new QLabel(this)) {
  lstRecettesTri_->setToolTip(QStringLiteral("Double clic pour afficher la recette"));
  lblNbreRecette_->setObjectName(QStringLiteral("lblNbreRecette"));
  lblNbreRecette_->setBuddy(lstRecettesTri_);
  lstRecettesTri_->setAccessibleName(QStringLiteral("Toutes les recettes"));
  lstRecettesTri_->surDoubleClic = [this] { AfficheSelection(); };
  contenu().addWidget(lblNbreRecette_, 0, 0);
  contenu().addWidget(lstRecettesTri_, 1, 0);
  boutons().Affiche("cmdValideTri", u"Afficher la recette sélectionnée",
                    [this] { AfficheSelection(); });
  boutons().Aide("cmdAideClassement");
}

void frmRecettesAlpha::Entre() {
  lstRecettesTri_->Vide();
  Opere(module(), [&] { lstRecettesTri_->Ajoute(ToutesRecettes(module())); });
  lblNbreRecette_->setText(
      QStringLiteral("Les %1 recettes").arg(lstRecettesTri_->entrees().size()));
  lstRecettesTri_->Choisit(0);
  DonneFocus(lstRecettesTri_);
}

void frmRecettesAlpha::AfficheSelection() {
  if (lstRecettesTri_->indice() < 0) {
    return;
  }
  const ComboListe& affichees = *liste_.ComboRecettes;
  const std::int32_t choisie = lstRecettesTri_->NumeroChoisi();
  if (affichees.currentIndex() >= 0 && affichees.NumeroChoisi() == choisie) {
    hote().ChoisitOnglet(ongletListe);  // on display already: nothing is read again
  } else {
    Opere(module(), [&] { hote().MontreEnregistrement(choisie); });
  }
}

}  // namespace gastrelle
