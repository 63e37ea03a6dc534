#include "recettes/frmRecettesAlpha.h"

#include "controles/ComboListe.h"
#include "controles/Touches.h"
#include "controles/ZoneTexte.h"
#include "data/ProceduresFichiers.h"
#include "recettes/LectureRecettes.h"
#include "recettes/frmRecettes.h"
#include "recettes/frmRecettesListe.h"

namespace gastrelle {

frmRecettesAlpha::frmRecettesAlpha(frmRecettes& hote)
    : PageOnglet(hote),
      hote_(hote),
      lstRecettesTri_(new ListeChoix(QStringLiteral("lstRecettesTri"), Ordre::alphabetique, this)),
      lblNbreRecette_(new QLabel(this)),
      cmdValideTri_(Bouton(QStringLiteral("cmdValideTri"), QStringLiteral("Affi&cher"),
                           QStringLiteral("valider"),
                           QStringLiteral("Afficher la recette sélectionnée"), this)) {
  lstRecettesTri_->setToolTip(QStringLiteral("Double clic pour afficher la recette"));
  lblNbreRecette_->setObjectName(QStringLiteral("lblNbreRecette"));
  lblNbreRecette_->setBuddy(lstRecettesTri_);
  lstRecettesTri_->setAccessibleName(QStringLiteral("Toutes les recettes"));
  contenu().addWidget(lblNbreRecette_, 0, 0);
  contenu().addWidget(lstRecettesTri_, 1, 0);
  boutons().addWidget(cmdValideTri_);
  boutons().addWidget(BoutonAide(QStringLiteral("cmdAideClassement"), this));
  lstRecettesTri_->surDoubleClic = [this] { AfficheSelection(); };
  connect(cmdValideTri_, &QPushButton::clicked, this, [this] { AfficheSelection(); });
}

void frmRecettesAlpha::Entre() {
  ChargeClassement();
}

void frmRecettesAlpha::ChargeClassement() {
  Module1& module = hote_.module();
  module.services.pointeur.Sablier();
  lstRecettesTri_->Vide();
  ListeComptee recettes;
  if (!Tente(module, [&] { recettes = ToutesRecettes(module); })) {
    ErreurFatale(module);
  }
  lstRecettesTri_->Ajoute(std::move(recettes.liste));
  module.bufRecette.RepareCompte(recettes.vus);
  lblNbreRecette_->setText(QStringLiteral("Les %1 recettes").arg(recettes.vus));
  lstRecettesTri_->Choisit(0);
  DonneFocus(lstRecettesTri_);
  module.services.pointeur.Normal();
}

void frmRecettesAlpha::AfficheSelection() {
  const ComboListe& affichees = *hote_.liste().ComboRecettes;
  if (lstRecettesTri_->indice() < 0) {
    return;
  }
  const std::int32_t choisie = lstRecettesTri_->Donnee();
  const bool dejaAffichee = affichees.currentIndex() >= 0 && affichees.Donnee() == choisie;
  if (dejaAffichee) {
    hote_.ChoisitOnglet(FenetreOnglets::ongletListe);
  } else {
    VaALaRecette(choisie);
  }
}

void frmRecettesAlpha::VaALaRecette(std::int32_t numero) {
  Module1& module = hote_.module();
  frmRecettesListe& liste = hote_.liste();
  module.services.pointeur.Sablier();
  Garde(module, [&] {
    ExigeFichier(module, Donnees::GLR2);
    ExigeFichier(module, Donnees::GLR3);
    RecRecette recette;
    module.bufRecette.Lire(numero, recette);
    // The family's own event fills its recipes.
    liste.ComboFamilles->ChoisitDonnee(recette.idFamille);
    liste.ComboRecettes->ChoisitDonnee(numero);
    module.bufRecette.courant() = recette;
  });
  hote_.ChoisitOnglet(FenetreOnglets::ongletListe);
}

}  // namespace gastrelle
