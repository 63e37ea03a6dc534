#include "recettes/frmRecettesAjouter.h"

#include "controles/Adresses.h"
#include "controles/ChoixImage.h"
#include "controles/Conversion.h"
#include "controles/Touches.h"
#include "data/ProceduresFichiers.h"
#include "recettes/ChangementRecettes.h"
#include "recettes/ImageRecette.h"
#include "recettes/LectureRecettes.h"
#include "recettes/frmRecettes.h"
#include "recettes/frmRecettesListe.h"

namespace gastrelle {

frmRecettesAjouter::frmRecettesAjouter(frmRecettes& hote)
    : PageOnglet(hote),
      ComboFamillesAjouter(
          new ComboListe(QStringLiteral("ComboFamillesAjouter"), Ordre::alphabetique, this)),
      hote_(hote),
      optionFamille_(
          Option(QStringLiteral("Option1(0)"), QStringLiteral("&Une famille de recettes"))),
      optionRecette_(Option(QStringLiteral("Option1(1)"), QStringLiteral("Une &recette"))),
      txtSaisieFamille_(new LigneTexte(QStringLiteral("txtSaisieFamille"), limiteTitre, this)),
      txtSaisieNomRecette_(
          new LigneTexte(QStringLiteral("txtSaisieNomRecette"), limiteTitre, this)),
      txtSaisieRecetteAjouter_(
          new ZoneTexte(QStringLiteral("txtSaisieRecetteAjouter"), limiteTexteRecette, this)),
      txtImageAjouter_(new LigneTexte(QStringLiteral("txtImageAjouter"), sansLimite, this)),
      cmdImageAjouter_(Bouton(QStringLiteral("cmdImageAjouter"), QStringLiteral("I&mage..."),
                              QStringLiteral("dossier"), QStringLiteral("Rechercher une image"),
                              this)),
      cmdValideAjouter_(Bouton(QStringLiteral("cmdValideAjouter"), QStringLiteral("&Valider"),
                               QStringLiteral("valider"), QStringLiteral("Valider les saisies"),
                               this)),
      cmdEffacerAjouter_(Bouton(QStringLiteral("cmdEffacerAjouter"), QStringLiteral("Effa&cer"),
                                QStringLiteral("effacer"),
                                QStringLiteral("Effacer toutes les saisies"), this)),
      PictureWeb_(Bouton(QStringLiteral("PictureWeb"), {}, QStringLiteral("web"),
                         QStringLiteral("Cliquez ici pour rechercher de nouvelles recettes"),
                         this)) {
  Dispose();
  hote_.SuitFamilles(*ComboFamillesAjouter);
  Branche();
}

void frmRecettesAjouter::Dispose() {
  txtImageAjouter_->RendLectureSeule();
  PictureWeb_->setFlat(true);
  optionRecette_->setChecked(true);
  txtSaisieFamille_->setEnabled(false);
  Rang(QStringLiteral("La nouvelle famille"), txtSaisieFamille_);
  Rang(QStringLiteral("La famille de la recette"), ComboFamillesAjouter);
  Rang(QStringLiteral("Le titre de la recette"), txtSaisieNomRecette_);
  contenu().setRowStretch(Rang(QStringLiteral("Le texte de la recette"), txtSaisieRecetteAjouter_),
                          1);
  const int rang = contenu().rowCount();
  contenu().addWidget(Legende(QStringLiteral("L'image associée"), txtImageAjouter_), rang, 0);
  contenu().addWidget(txtImageAjouter_, rang, 1);
  contenu().addWidget(cmdImageAjouter_, rang, 2);
  OrdonneClavier({optionFamille_, optionRecette_, txtSaisieFamille_, ComboFamillesAjouter,
                  txtSaisieNomRecette_, txtSaisieRecetteAjouter_, txtImageAjouter_,
                  cmdImageAjouter_, PictureWeb_, cmdValideAjouter_});
  boutons().insertWidget(0, PictureWeb_);
  boutons().addWidget(cmdValideAjouter_);
  boutons().addWidget(cmdEffacerAjouter_);
  boutons().addWidget(BoutonAide(QStringLiteral("cmdAideAjouter"), this));
}

void frmRecettesAjouter::Branche() {
  connect(optionFamille_, &QRadioButton::toggled, this,
          [this](bool choisie) { choisie ? ChoisitOptionFamille() : ChoisitOptionRecette(); });
  connect(txtImageAjouter_, &QLineEdit::textChanged, this, [this] { ChangeImage(); });
  connect(cmdImageAjouter_, &QPushButton::clicked, this, [this] {
    if (const auto chemin = ChoisitImage(hote_.module(), this)) {
      txtImageAjouter_->PoseTexte(*chemin);
    }
  });
  connect(cmdValideAjouter_, &QPushButton::clicked, this, [this] { Valide(); });
  connect(cmdEffacerAjouter_, &QPushButton::clicked, this, [this] { Efface(); });
  connect(PictureWeb_, &QPushButton::clicked, this,
          [this] { OuvreLien(hote_.module(), Lien::recettes); });
}

void frmRecettesAjouter::Entre() {
  txtSaisieFamille_->PoseTexte({});
  txtSaisieNomRecette_->PoseTexte({});
  txtSaisieRecetteAjouter_->PoseTexte({});
  CopieIndiceFamille();
  FocusSelonOption();
}

void frmRecettesAjouter::CopieIndiceFamille() {
  ComboFamillesAjouter->Montre(hote_.liste().ComboFamilles->currentIndex());
}

void frmRecettesAjouter::FocusSelonOption() {
  DonneFocus(optionFamille_->isChecked() ? static_cast<QWidget*>(txtSaisieFamille_)
                                         : ComboFamillesAjouter);
}

void frmRecettesAjouter::ChoisitOptionFamille() {
  CopieIndiceFamille();
  txtSaisieNomRecette_->PoseTexte({});
  txtSaisieRecetteAjouter_->PoseTexte({});
  txtImageAjouter_->PoseTexte({});
  for (QWidget* controle : std::initializer_list<QWidget*>{
           ComboFamillesAjouter, txtSaisieNomRecette_, txtSaisieRecetteAjouter_, txtImageAjouter_,
           cmdImageAjouter_}) {
    controle->setEnabled(false);
  }
  txtSaisieFamille_->setEnabled(true);
  DonneFocus(txtSaisieFamille_);
}

void frmRecettesAjouter::ChoisitOptionRecette() {
  txtSaisieFamille_->PoseTexte({});
  txtSaisieFamille_->setEnabled(false);
  for (QWidget* controle :
       std::initializer_list<QWidget*>{txtSaisieNomRecette_, txtSaisieRecetteAjouter_,
                                       cmdImageAjouter_, txtImageAjouter_, ComboFamillesAjouter}) {
    controle->setEnabled(true);
  }
  DonneFocus(ComboFamillesAjouter);
}

void frmRecettesAjouter::ChangeImage() {
  const std::string chemin = txtImageAjouter_->Texte();
  if (chemin.empty() || !RefuseeAuChoix(chemin)) {
    return;
  }
  Services& services = hote_.module().services;
  services.pointeur.Normal();
  services.messages.Bip();
  services.messages.Informe("Ce fichier n'est pas un fichier image."_1252, Icone::information);
  txtImageAjouter_->PoseTexte({});
}

void frmRecettesAjouter::Valide() {
  hote_.module().services.pointeur.Sablier();
  optionFamille_->isChecked() ? ValideFamille() : ValideRecette();
}

void frmRecettesAjouter::ValideFamille() {
  Module1& module = hote_.module();
  txtSaisieFamille_->RogneTexte();
  const std::string nom = txtSaisieFamille_->Texte();
  if (nom.empty()) {
    hote_.Refuse("Il faut saisir le nom de la nouvelle famille de recettes."_1252,
                 txtSaisieFamille_);
    return;
  }
  if (ComboFamillesAjouter->ContientTexte(nom)) {
    hote_.RefuseAvecBip("Cette famille de recettes existe déjà !"_1252, txtSaisieFamille_);
    return;
  }
  ExigeFichierOuFin(module, Donnees::GLR1);
  Garde(module, [&] {
    const std::int32_t numero = AjouteFamille(module, nom);
    hote_.RechargeFamilles();
    ComboListe& familles = *hote_.liste().ComboFamilles;
    const int indice = familles.IndiceDe(numero);
    txtSaisieFamille_->PoseTexte({});
    hote_.ChoisitOnglet(FenetreOnglets::ongletListe);
    familles.Choisit(indice);
  });
}

void frmRecettesAjouter::ValideRecette() {
  Module1& module = hote_.module();
  txtSaisieNomRecette_->RogneTexte();
  if (EstVide(*txtSaisieNomRecette_)) {
    hote_.Refuse("Il faut donner un titre à la nouvelle recette."_1252, txtSaisieNomRecette_);
    return;
  }
  txtSaisieRecetteAjouter_->RogneTexte();
  ExigeFichierOuFin(module, Donnees::GLR2);
  if (!EstVide(*txtSaisieRecetteAjouter_)) {
    ExigeFichierOuFin(module, Donnees::GLR3);
  }
  if (!EstVide(*txtImageAjouter_)) {
    ExigeFichierOuFin(module, Donnees::GLR4);
    if (!hote_.AccepteImage(txtImageAjouter_->Texte())) {
      txtImageAjouter_->PoseTexte({});
      DonneFocus(cmdImageAjouter_);
      return;
    }
  }
  EnregistreRecette();
}

void frmRecettesAjouter::EnregistreRecette() {
  Module1& module = hote_.module();
  Garde(module, [&] {
    const std::string titre = txtSaisieNomRecette_->Texte();
    const std::string texte = txtSaisieRecetteAjouter_->Texte();
    const std::string image = module.chemins.FormeCourte(txtImageAjouter_->Texte());
    const std::int32_t numero =
        AjouteRecette(module, {ComboFamillesAjouter->Donnee(), titre, texte, image});
    const int famille = ComboFamillesAjouter->currentIndex();
    txtSaisieNomRecette_->PoseTexte({});
    txtSaisieRecetteAjouter_->PoseTexte({});
    txtImageAjouter_->PoseTexte({});
    hote_.ChoisitOnglet(FenetreOnglets::ongletListe);
    hote_.liste().ComboFamilles->Choisit(famille);
    hote_.liste().ComboRecettes->ChoisitDonnee(numero);
  });
}

void frmRecettesAjouter::Efface() {
  if (hote_.ConfirmeEffacement(
          {txtSaisieFamille_, txtSaisieNomRecette_, txtSaisieRecetteAjouter_, txtImageAjouter_})) {
    txtSaisieFamille_->PoseTexte({});
    txtSaisieNomRecette_->PoseTexte({});
    txtSaisieRecetteAjouter_->PoseTexte({});
    txtImageAjouter_->PoseTexte({});
    CopieIndiceFamille();
  }
  FocusSelonOption();
}

}  // namespace gastrelle
