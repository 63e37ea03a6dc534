#include "recettes/frmRecettesListe.h"

#include "controles/Conversion.h"
#include "controles/FeuilleTexte.h"
#include "controles/Focus.h"
#include "controles/ParcoursListe.h"
#include "controles/TitreEntier.h"
#include "data/Limites.h"
#include "data/ProceduresFichiers.h"
#include "recettes/LectureRecettes.h"

namespace gastrelle {

frmRecettesListe::frmRecettesListe(const PlaceOnglet& place)
    : PageOnglet(place),
      ComboFamilles(new ComboListe(QStringLiteral("ComboFamilles"), Ordre::alphabetique, this)),
      ComboRecettes(new ComboListe(QStringLiteral("ComboRecettes"), Ordre::alphabetique, this)),
      txtRecette(new FeuilleTexte(QStringLiteral("txtRecette"), limiteTexte, this)),
      lblLaRecette(Legende(QStringLiteral("La recette"), txtRecette)),
      cmdCameraListe(
          boutons().Ajoute("cmdCameraListe", u"I&mage", "camera",
                           u"Cliquez sur ce bouton pour voir l'image associée à la recette",
                           [this] { hote().cadre().MontreImage(); })),
      imgRecette_(
          new Vignette(QStringLiteral("imgRecette"), QStringLiteral("Image de la recette"), this)) {
  Dispose();
  DisposeRecette();
  imgRecette_->surClic = [this] { cmdCameraListe->click(); };
  familles.Suit(*ComboFamilles);
  RetientImage({});
  ComboFamilles->surChoix = [this] { ChoisitFamille(); };
  ParcourtAuClavier(*this, *ComboRecettes);
  ComboRecettes->surChoix = [this] { AfficheRecette(); };
}

void frmRecettesListe::Dispose() {
  lblLaRecette->setObjectName(QStringLiteral("lblLaRecette"));
  txtRecette->RendLectureSeule();
  contenu().addWidget(Legende(QStringLiteral("Les fami&lles de recettes"), ComboFamilles), 0, 0);
  contenu().addWidget(Legende(QStringLiteral("Les &recettes de la famille"), ComboRecettes), 0, 1);
  contenu().addWidget(ComboFamilles, 1, 0);
  contenu().addWidget(ComboRecettes, 1, 1);
  constexpr int deQuoiLireUnDebut = 80;  // side by side in a narrow tile
  ComboFamilles->setMinimumWidth(deQuoiLireUnDebut);
  ComboRecettes->setMinimumWidth(deQuoiLireUnDebut);
  contenu().setColumnStretch(0, 2);
  contenu().setColumnStretch(1, 3);
  boutons().Aide("cmdAideListe");
}

void frmRecettesListe::DisposeRecette() {
  constexpr int rangTexte = 4;
  auto* recette = new QHBoxLayout;
  recette->addWidget(txtRecette, 1);
  recette->addWidget(imgRecette_);
  contenu().addWidget(lblLaRecette, 2, 0, 1, 2);
  contenu().addWidget(new TitreEntier(*ComboRecettes, this), 3, 0, 1, 2);
  contenu().addLayout(recette, rangTexte, 0, 1, 2);
  contenu().setRowStretch(rangTexte, 1);
}

void frmRecettesListe::Charge() {
  Garde(module(), [&] {
    ExigeFamilles(module());
    RechargeFamilles();
  });
  ComboFamilles->Choisit(0);
}

void frmRecettesListe::RechargeFamilles() {
  familles.Remplace(ListeFamilles(module()));
}

void frmRecettesListe::ChoisitFamille() {
  if (ComboRecettes->isEnabled()) {
    ComboRecettes->Vide();
  } else {
    ComboRecettes->setEnabled(true);
  }
  ChargeRecettes();
}

void frmRecettesListe::ChargeRecettes() {
  Opere(module(),
        [&] { ComboRecettes->Ajoute(RecettesDeFamille(module(), ComboFamilles->NumeroChoisi())); });
  const bool vide = ComboRecettes->entrees().empty();
  ComboRecettes->setEnabled(!vide);
  txtRecette->setEnabled(!vide);
  if (vide) {
    // The picture's tag and button stay as they were for the recipe shown before.
    txtRecette->PoseTexte({});
    txtRecette->setPlaceholderText(QStringLiteral("Aucune recette dans cette famille"));
    MontreImage({});
  } else {
    txtRecette->setPlaceholderText({});
    ComboRecettes->Choisit(0);
  }
}

void frmRecettesListe::AfficheRecette() {
  Opere(module(), [&] {
    const RecetteLue lue = LitRecette(module(), ComboRecettes->NumeroChoisi());
    txtRecette->PoseTexte(lue.texte);
    RetientImage(lue.image);
    MontreImage(lue.image);
    if (lue.imagePerdue) {
      AnnonceImagePerdue(*lue.imagePerdue);
    } else {
      hote().cadre().PermetImage(lue.associee);
    }
  });
  DonneFocus(txtRecette);
}

void frmRecettesListe::ChoisitRecette(std::int32_t numero) {
  const RecRecette recette = LitEnregistrementRecette(module(), numero);
  // The family's own event fills its recipes.
  ComboFamilles->ChoisitNumero(recette.idFamille);
  ComboRecettes->ChoisitNumero(numero);
  module().bufRecette.courant() = recette;
}

void frmRecettesListe::RetientImage(const std::string& chemin) {
  lblLaRecette->setProperty("Tag", VersQt(chemin));
  cmdCameraListe->setEnabled(!chemin.empty());
}

std::string frmRecettesListe::Image() const {
  return DepuisQt(lblLaRecette->property("Tag").toString());
}

void frmRecettesListe::MontreImage(const std::string& chemin) {
  imgRecette_->Montre(chemin.empty() ? QString()
                                     : QString::fromStdString(CheminSysteme(module(), chemin)));
}

Vue frmRecettesListe::VueCourante() const {
  return VueRecette{ComboFamilles->Texte(), ComboRecettes->Texte(), txtRecette->Texte(), Image()};
}

void frmRecettesListe::AnnonceImagePerdue(const std::string& chemin) {
  Services& services = module().services;
  services.pointeur.Normal();
  services.messages.Informe("Le fichier image" + std::string(CRLF) + chemin + std::string(CRLF) +
                                std::string("n'a pas été trouvé."_1252),
                            Icone::exclamation);
  services.pointeur.Sablier();
}

void frmRecettesListe::Entre() {
  hote().cadre().PermetImage(!Image().empty());
  DonneFocus(txtRecette);
}

}  // namespace gastrelle
