#include "recettes/frmRecettesListe.h"

#include "controles/Conversion.h"
#include "controles/Touches.h"
#include "data/ProceduresFichiers.h"
#include "recettes/LectureRecettes.h"
#include "recettes/frmRecettes.h"

namespace gastrelle {

frmRecettesListe::frmRecettesListe(frmRecettes& hote)
    : PageOnglet(hote),
      ComboFamilles(new ComboListe(QStringLiteral("ComboFamilles"), Ordre::alphabetique, this)),
      ComboRecettes(new ComboListe(QStringLiteral("ComboRecettes"), Ordre::alphabetique, this)),
      txtRecette(new ZoneTexte(QStringLiteral("txtRecette"), limiteTexteRecette, this)),
      lblLaRecette(Legende(QStringLiteral("La recette"), txtRecette)),
      cmdCameraListe(Bouton(
          QStringLiteral("cmdCameraListe"), QStringLiteral("I&mage"), QStringLiteral("camera"),
          QStringLiteral("Cliquez sur ce bouton pour voir l'image associée à la recette"), this)),
      hote_(hote) {
  Dispose();
  hote_.SuitFamilles(*ComboFamilles);
  PoseImage({});
  ComboFamilles->surChoix = [this] { ChoisitFamille(); };
  ComboRecettes->surChoix = [this] { AfficheRecette(); };
  connect(cmdCameraListe, &QPushButton::clicked, this, [this] { hote_.cadre().MontreImage(); });
}

void frmRecettesListe::Dispose() {
  lblLaRecette->setObjectName(QStringLiteral("lblLaRecette"));
  txtRecette->RendLectureSeule();
  contenu().addWidget(Legende(QStringLiteral("Les familles de recettes"), ComboFamilles), 0, 0);
  contenu().addWidget(Legende(QStringLiteral("Les recettes de la famille"), ComboRecettes), 0, 1);
  contenu().addWidget(ComboFamilles, 1, 0);
  contenu().addWidget(ComboRecettes, 1, 1);
  contenu().addWidget(lblLaRecette, 2, 0, 1, 2);
  contenu().addWidget(txtRecette, 3, 0, 1, 2);
  contenu().setColumnStretch(0, 2);
  contenu().setColumnStretch(1, 3);
  contenu().setRowStretch(3, 1);
  boutons().addWidget(cmdCameraListe);
  boutons().addWidget(BoutonAide(QStringLiteral("cmdAideListe"), this));
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
  Module1& module = hote_.module();
  module.services.pointeur.Sablier();
  std::int16_t vus = 0;
  const bool lues = Tente(module, [&] {
    ListeComptee recettes = RecettesDeFamille(module, ComboFamilles->Donnee());
    vus = recettes.vus;
    ComboRecettes->Ajoute(std::move(recettes.liste));
  });
  if (!lues) {
    ErreurFatale(module);
  }
  module.bufRecette.RepareCompte(vus);
  const bool vide = ComboRecettes->entrees().empty();
  ComboRecettes->setEnabled(!vide);
  txtRecette->setEnabled(!vide);
  if (vide) {
    // The picture's tag and button stay as they were for the recipe shown before.
    txtRecette->PoseTexte({});
  } else {
    ComboRecettes->Choisit(0);
  }
  module.services.pointeur.Normal();
}

void frmRecettesListe::AfficheRecette() {
  Module1& module = hote_.module();
  module.services.pointeur.Sablier();
  Tente(module, [&] {
    const RecetteLue lue = LitRecette(module, ComboRecettes->Donnee());
    txtRecette->PoseTexte(lue.texte);
    PoseImage(lue.image);
    if (lue.imagePerdue) {
      AnnonceImagePerdue(*lue.imagePerdue);
    } else {
      hote_.cadre().PermetImage(lue.associee);
    }
  });
  FinOperation(module);
  DonneFocus(txtRecette);
}

void frmRecettesListe::PoseImage(const std::string& chemin) {
  lblLaRecette->setProperty("Tag", VersQt(chemin));
  cmdCameraListe->setEnabled(!chemin.empty());
}

std::string frmRecettesListe::Image() const {
  return DepuisQt(lblLaRecette->property("Tag").toString());
}

Vue frmRecettesListe::VueCourante() const {
  return VueRecette{ComboFamilles->Texte(), ComboRecettes->Texte(), txtRecette->Texte(), Image()};
}

void frmRecettesListe::AnnonceImagePerdue(const std::string& chemin) {
  Services& services = hote_.module().services;
  services.pointeur.Normal();
  services.messages.Informe("Le fichier image" + std::string(CRLF) + chemin + std::string(CRLF) +
                                std::string("n'a pas été trouvé."_1252),
                            Icone::exclamation);
  services.pointeur.Sablier();
}

void frmRecettesListe::Entre() {
  hote_.cadre().PermetImage(!Image().empty());
  DonneFocus(txtRecette);
}

}  // namespace gastrelle
