#include "recettes/frmRecettesSupprimer.h"

#include "controles/ComboListe.h"
#include "controles/Conversion.h"
#include "controles/Touches.h"
#include "data/ProceduresFichiers.h"
#include "recettes/ChangementRecettes.h"
#include "recettes/LectureRecettes.h"
#include "recettes/frmRecettes.h"
#include "recettes/frmRecettesListe.h"

namespace gastrelle {
namespace {

/// A label that shows a value: framed like a box, selectable.
QLabel* Valeur(const QString& nom, QWidget* parent) {
  auto* valeur = new QLabel(parent);
  valeur->setObjectName(nom);
  valeur->setTextFormat(Qt::PlainText);
  valeur->setFrameStyle(QFrame::StyledPanel | QFrame::Sunken);
  valeur->setTextInteractionFlags(Qt::TextSelectableByMouse);
  valeur->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
  return valeur;
}

}  // namespace

frmRecettesSupprimer::frmRecettesSupprimer(frmRecettes& hote)
    : PageOnglet(hote),
      hote_(hote),
      optionFamille_(
          Option(QStringLiteral("Option3(0)"), QStringLiteral("La famille de recettes"))),
      optionRecette_(Option(QStringLiteral("Option3(1)"), QStringLiteral("La recette"))),
      lblFamilleSupprimer_(Valeur(QStringLiteral("lblFamilleSupprimer"), this)),
      lblFamilleRecetteSupprimer_(Valeur(QStringLiteral("lblFamilleRecetteSupprimer"), this)),
      lblTitreRecetteSupprimer_(Valeur(QStringLiteral("lblTitreRecetteSupprimer"), this)),
      txtTexteRecetteSupprimer_(
          new ZoneTexte(QStringLiteral("txtTexteRecetteSupprimer"), limiteTexteRecette, this)),
      cmdSupprimer_(Bouton(QStringLiteral("cmdSupprimer"), QStringLiteral("&Supprimer"),
                           QStringLiteral("supprimer"), {}, this)) {
  Dispose();
  connect(cmdSupprimer_, &QPushButton::clicked, this, [this] { Supprime(); });
}

void frmRecettesSupprimer::Dispose() {
  txtTexteRecetteSupprimer_->RendLectureSeule();
  optionFamille_->setText(QStringLiteral("La famille &de recettes"));
  optionRecette_->setText(QStringLiteral("La &recette"));
  Rang(QStringLiteral("La famille"), lblFamilleSupprimer_);
  Rang(QStringLiteral("La famille de la recette"), lblFamilleRecetteSupprimer_);
  Rang(QStringLiteral("Le titre de la recette"), lblTitreRecetteSupprimer_);
  contenu().setRowStretch(Rang(QStringLiteral("Le texte de la recette"), txtTexteRecetteSupprimer_),
                          1);
  boutons().addWidget(cmdSupprimer_);
  boutons().addWidget(BoutonAide(QStringLiteral("cmdAideSupprimer"), this));
}

void frmRecettesSupprimer::MontreFamille() {
  const ComboListe& familles = *hote_.liste().ComboFamilles;
  const bool protegee = familles.currentIndex() < 0 || familles.Donnee() == numeroProtege;
  lblFamilleSupprimer_->setText(VersQt(Rogne(familles.Texte())));
  lblFamilleSupprimer_->setToolTip(
      protegee ? QStringLiteral("Cette famille de recettes ne peut être supprimée") : QString());
  optionFamille_->setEnabled(!protegee);
}

void frmRecettesSupprimer::MontreRecette() {
  const frmRecettesListe& liste = hote_.liste();
  const bool vide = !liste.ComboRecettes->isEnabled() || liste.ComboRecettes->currentIndex() < 0;
  const bool protegee = !vide && liste.ComboRecettes->Donnee() == numeroProtege;
  lblFamilleRecetteSupprimer_->setText(vide ? QString()
                                            : VersQt(Rogne(liste.ComboFamilles->Texte())));
  lblTitreRecetteSupprimer_->setText(vide ? QString()
                                          : VersQt(Rogne(liste.ComboRecettes->Texte())));
  txtTexteRecetteSupprimer_->PoseTexte(vide ? std::string{} : liste.txtRecette->Texte());
  optionRecette_->setEnabled(!vide && !protegee);
  if (!vide) {
    const QString infobulle =
        protegee ? QStringLiteral("Cette recette ne peut être supprimée") : QString();
    for (QWidget* controle : std::initializer_list<QWidget*>{
             lblFamilleRecetteSupprimer_, lblTitreRecetteSupprimer_, txtTexteRecetteSupprimer_}) {
      controle->setToolTip(infobulle);
    }
  }
}

void frmRecettesSupprimer::Entre() {
  MontreFamille();
  MontreRecette();
  const bool permis = optionFamille_->isEnabled() || optionRecette_->isEnabled();
  cmdSupprimer_->setEnabled(permis);
  if (permis) {
    QRadioButton* option = optionRecette_->isEnabled() ? optionRecette_ : optionFamille_;
    option->setChecked(true);
    DonneFocus(option);
  }
}

void frmRecettesSupprimer::Supprime() {
  Module1& module = hote_.module();
  const bool famille = optionFamille_->isChecked();
  std::string question;
  question += "Etes-vous sûr de vouloir supprimer cette "_1252;
  question += famille ? "'Famille de recettes'" : "'Recette'";
  question += " ?";
  if (famille) {
    question +=
        "\r\n\r\n(Attention : toutes les recettes de cette famille seront également\r\nsupprimées.)"_1252;
  }
  if (module.services.messages.Demande(question) != Reponse::oui) {
    return;
  }
  module.services.pointeur.Sablier();
  Garde(module, [&] { famille ? SupprimeFamilleAffichee() : SupprimeRecetteAffichee(); });
}

void frmRecettesSupprimer::SupprimeFamilleAffichee() {
  Module1& module = hote_.module();
  frmRecettesListe& liste = hote_.liste();
  ExigeFichier(module, Donnees::GLR1);
  ExigeFichier(module, Donnees::GLR2);
  SupprimeFamille(module, liste.ComboFamilles->Donnee(), liste.ComboRecettes->entrees());
  hote_.RechargeFamilles();
  hote_.ChoisitOnglet(FenetreOnglets::ongletListe);
  liste.ComboFamilles->Choisit(0);
}

void frmRecettesSupprimer::SupprimeRecetteAffichee() {
  Module1& module = hote_.module();
  frmRecettesListe& liste = hote_.liste();
  ExigeFichier(module, Donnees::GLR2);
  SupprimeRecette(module, liste.ComboRecettes->Donnee());
  hote_.ChoisitOnglet(FenetreOnglets::ongletListe);
  liste.ChoisitFamille();
}

}  // namespace gastrelle
