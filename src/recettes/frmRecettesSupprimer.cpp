#include "recettes/frmRecettesSupprimer.h"

#include "controles/ComboListe.h"
#include "controles/Conversion.h"
#include "controles/FeuilleTexte.h"
#include "controles/LigneTexte.h"
#include "data/Limites.h"
#include "data/ProceduresFichiers.h"
#include "recettes/ChangementRecettes.h"
#include "recettes/frmRecettesListe.h"

namespace gastrelle {
namespace {

constexpr std::size_t famille = 0;
constexpr std::size_t recette = 1;

/// A label that shows a value: framed, coloured and as high as a box of one line, selectable.
QLabel* Valeur(const QString& nom, QWidget* parent) {
  auto* valeur = new Etiquette({}, parent);
  valeur->setObjectName(nom);
  valeur->setFrameStyle(QFrame::StyledPanel | QFrame::Sunken);
  valeur->setMargin(2);
  valeur->setAutoFillBackground(true);
  valeur->setBackgroundRole(QPalette::Base);
  valeur->setForegroundRole(QPalette::Text);
  valeur->setMinimumHeight(LigneTexte({}, sansLimite).sizeHint().height());
  valeur->setTextInteractionFlags(Qt::TextSelectableByMouse);
  valeur->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
  return valeur;
}

}  // namespace

frmRecettesSupprimer::frmRecettesSupprimer(const PlaceOnglet& place, frmRecettesListe& liste)
    : PageOnglet(place),
      liste_(liste),
      options_(Options("Option3", u"La famille &de recettes", u"La &recette")),
      modes_(options_, {.focus = options_[famille]}, {.focus = options_[recette]}, std::nullopt),
      lblFamilleSupprimer_(Valeur(QStringLiteral("lblFamilleSupprimer"), this)),
      lblFamilleRecetteSupprimer_(Valeur(QStringLiteral("lblFamilleRecetteSupprimer"), this)),
      lblTitreRecetteSupprimer_(Valeur(QStringLiteral("lblTitreRecetteSupprimer"), this)),
      txtTexteRecetteSupprimer_(
          new FeuilleTexte(QStringLiteral("txtTexteRecetteSupprimer"), limiteTexte, this)),
      cmdSupprimer_(boutons().Supprime("cmdSupprimer", u"", [this] { Supprime(); })) {
  boutons().Aide("cmdAideSupprimer");
  txtTexteRecetteSupprimer_->RendLectureSeule();
  AjouteACote(QStringLiteral("La famille"), lblFamilleSupprimer_);
  AjouteACote(QStringLiteral("La famille de la recette"), lblFamilleRecetteSupprimer_);
  AjouteACote(QStringLiteral("Le titre de la recette"), lblTitreRecetteSupprimer_);
  contenu().setRowStretch(
      AjouteACote(QStringLiteral("Le te&xte de la recette"), txtTexteRecetteSupprimer_), 1);
}

void frmRecettesSupprimer::MontreFamille() {
  const ComboListe& familles = *liste_.ComboFamilles;
  const bool protegee = familles.currentIndex() < 0 || familles.NumeroChoisi() == numeroProtege;
  lblFamilleSupprimer_->setText(VersQt(familles.Texte()));
  lblFamilleSupprimer_->setToolTip(
      protegee ? QStringLiteral("Cette famille de recettes ne peut être supprimée") : QString());
  modes_.Permet(famille, !protegee);
}

void frmRecettesSupprimer::MontreRecette() {
  const ComboListe& recettes = *liste_.ComboRecettes;
  const bool vide = !recettes.isEnabled() || recettes.currentIndex() < 0;
  const bool protegee = !vide && recettes.NumeroChoisi() == numeroProtege;
  lblFamilleRecetteSupprimer_->setText(vide ? QString() : VersQt(liste_.ComboFamilles->Texte()));
  lblTitreRecetteSupprimer_->setText(vide ? QString() : VersQt(recettes.Texte()));
  txtTexteRecetteSupprimer_->PoseTexte(vide ? std::string{} : liste_.txtRecette->Texte());
  modes_.Permet(recette, !vide && !protegee);
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
  const std::size_t mode = modes_.Permis(recette) ? recette : famille;
  cmdSupprimer_->setEnabled(modes_.Permis(mode));
  if (modes_.Permis(mode)) {
    modes_.Choisit(mode);
    modes_.RendFocus();
  }
}

void frmRecettesSupprimer::Supprime() {
  std::string question;
  question += "Etes-vous sûr de vouloir supprimer cette "_1252;
  question += modes_.premier() ? "'Famille de recettes' ?" : "'Recette' ?";
  if (modes_.premier()) {
    question +=
        "\r\n\r\n(Attention : toutes les recettes de cette famille seront également\r\nsupprimées.)"_1252;
  }
  if (module().services.messages.Demande(question) == Reponse::oui) {
    Opere(module(),
          [this] { modes_.premier() ? SupprimeFamilleAffichee() : SupprimeRecetteAffichee(); });
  }
}

void frmRecettesSupprimer::SupprimeFamilleAffichee() {
  SupprimeFamille(module(), liste_.ComboFamilles->NumeroChoisi(), liste_.ComboRecettes->entrees());
  liste_.RechargeFamilles();
  hote().ChoisitOnglet(ongletListe);
  liste_.ComboFamilles->Choisit(0);
}

void frmRecettesSupprimer::SupprimeRecetteAffichee() {
  SupprimeRecette(module(), liste_.ComboRecettes->NumeroChoisi());
  hote().ChoisitOnglet(ongletListe);
  liste_.ChoisitFamille();
}

}  // namespace gastrelle
