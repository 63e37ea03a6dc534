#include "recettes/frmRecettesModifier.h"

#include "controles/ChoixImage.h"
#include "controles/Conversion.h"
#include "controles/Touches.h"
#include "data/ProceduresFichiers.h"
#include "recettes/ChangementRecettes.h"
#include "recettes/LectureRecettes.h"
#include "recettes/frmRecettes.h"
#include "recettes/frmRecettesListe.h"

namespace gastrelle {

frmRecettesModifier::frmRecettesModifier(frmRecettes& hote)
    : PageOnglet(hote),
      ComboFamillesModifier(
          new ComboListe(QStringLiteral("ComboFamillesModifier"), Ordre::alphabetique, this)),
      hote_(hote),
      optionFamille_(Option(QStringLiteral("Option2(0)"), QStringLiteral("Le nom de &la famille"))),
      optionRecette_(Option(QStringLiteral("Option2(1)"), QStringLiteral("La &recette"))),
      txtSaisieFamilleModifier_(
          new LigneTexte(QStringLiteral("txtSaisieFamilleModifier"), limiteTitre, this)),
      txtSaisieNomRecetteModifier_(
          new LigneTexte(QStringLiteral("txtSaisieNomRecetteModifier"), limiteTitre, this)),
      txtSaisieRecetteModifier_(
          new ZoneTexte(QStringLiteral("txtSaisieRecetteModifier"), limiteTexteRecette, this)),
      txtImageModifier_(new LigneTexte(QStringLiteral("txtImageModifier"), sansLimite, this)),
      cmdImageModifier_(Bouton(QStringLiteral("cmdImageModifier"), QStringLiteral("I&mage..."),
                               QStringLiteral("dossier"), QStringLiteral("Rechercher une image"),
                               this)),
      cmdValideModifier_(Bouton(QStringLiteral("cmdValideModifier"), QStringLiteral("&Valider"),
                                QStringLiteral("valider"), QStringLiteral("Valider les saisies"),
                                this)),
      cmdEffacerModifier_(Bouton(QStringLiteral("cmdEffacerModifier"),
                                 QStringLiteral("Ré&initialiser"), QStringLiteral("reinitialiser"),
                                 QStringLiteral("Réinitialiser"), this)) {
  Dispose();
  hote_.SuitFamilles(*ComboFamillesModifier);
  Branche();
}

void frmRecettesModifier::Dispose() {
  optionRecette_->setChecked(true);
  txtSaisieFamilleModifier_->setEnabled(false);
  Rang(QStringLiteral("Le nom de la famille"), txtSaisieFamilleModifier_);
  Rang(QStringLiteral("La famille de la recette"), ComboFamillesModifier);
  Rang(QStringLiteral("Le titre de la recette"), txtSaisieNomRecetteModifier_);
  contenu().setRowStretch(Rang(QStringLiteral("Le texte de la recette"), txtSaisieRecetteModifier_),
                          1);
  const int rang = contenu().rowCount();
  contenu().addWidget(Legende(QStringLiteral("L'image associée"), txtImageModifier_), rang, 0);
  contenu().addWidget(txtImageModifier_, rang, 1);
  contenu().addWidget(cmdImageModifier_, rang, 2);
  OrdonneClavier({optionFamille_, optionRecette_, txtSaisieFamilleModifier_, ComboFamillesModifier,
                  txtSaisieNomRecetteModifier_, txtSaisieRecetteModifier_, txtImageModifier_,
                  cmdImageModifier_, cmdValideModifier_});
  boutons().addWidget(cmdValideModifier_);
  boutons().addWidget(cmdEffacerModifier_);
  boutons().addWidget(BoutonAide(QStringLiteral("cmdAideModifier"), this));
}

void frmRecettesModifier::Branche() {
  connect(optionFamille_, &QRadioButton::toggled, this,
          [this](bool choisie) { choisie ? ChoisitOptionFamille() : ChoisitOptionRecette(); });
  connect(cmdImageModifier_, &QPushButton::clicked, this, [this] {
    if (const auto chemin = ChoisitImage(hote_.module(), this)) {
      txtImageModifier_->PoseTexte(*chemin);
    }
  });
  connect(cmdValideModifier_, &QPushButton::clicked, this, [this] { Valide(); });
  connect(cmdEffacerModifier_, &QPushButton::clicked, this, [this] { Reinitialise(); });
}

void frmRecettesModifier::ReprendFamille() {
  txtSaisieFamilleModifier_->PoseTexte(Rogne(hote_.liste().ComboFamilles->Texte()));
}

void frmRecettesModifier::ReprendRecette() {
  const frmRecettesListe& liste = hote_.liste();
  txtSaisieNomRecetteModifier_->PoseTexte(Rogne(liste.ComboRecettes->Texte()));
  txtSaisieRecetteModifier_->PoseTexte(liste.txtRecette->Texte());
  // In an empty family the tag is still that of the picture shown before.
  txtImageModifier_->PoseTexte(liste.ComboRecettes->entrees().empty() ? std::string()
                                                                      : liste.Image());
}

void frmRecettesModifier::PermetRecette(bool permise) {
  for (QWidget* controle : std::initializer_list<QWidget*>{
           ComboFamillesModifier, txtSaisieNomRecetteModifier_, txtSaisieRecetteModifier_,
           txtImageModifier_, cmdImageModifier_}) {
    controle->setEnabled(permise);
  }
}

void frmRecettesModifier::Entre() {
  const frmRecettesListe& liste = hote_.liste();
  ReprendFamille();
  ComboFamillesModifier->Montre(liste.ComboFamilles->currentIndex());
  ReprendRecette();
  const bool vide = liste.ComboRecettes->entrees().empty();
  optionRecette_->setEnabled(!vide);
  (vide ? optionFamille_ : optionRecette_)->setChecked(true);
  PermetRecette(!vide);
  DonneFocus(vide ? static_cast<QWidget*>(txtSaisieFamilleModifier_) : ComboFamillesModifier);
}

void frmRecettesModifier::ChoisitOptionFamille() {
  txtSaisieFamilleModifier_->setEnabled(true);
  DonneFocus(txtSaisieFamilleModifier_);
  ComboFamillesModifier->Montre(hote_.liste().ComboFamilles->currentIndex());
  ReprendRecette();
  PermetRecette(false);
}

void frmRecettesModifier::ChoisitOptionRecette() {
  ReprendFamille();
  txtSaisieFamilleModifier_->setEnabled(false);
  PermetRecette(true);
  DonneFocus(ComboFamillesModifier);
}

void frmRecettesModifier::Reinitialise() {
  ReprendFamille();
  ComboFamillesModifier->Montre(hote_.liste().ComboFamilles->currentIndex());
  ReprendRecette();
  DonneFocus(optionFamille_->isChecked() ? static_cast<QWidget*>(txtSaisieFamilleModifier_)
                                         : ComboFamillesModifier);
}

void frmRecettesModifier::Valide() {
  hote_.module().services.pointeur.Sablier();
  optionFamille_->isChecked() ? ValideFamille() : ValideRecette();
}

void frmRecettesModifier::ValideFamille() {
  Module1& module = hote_.module();
  ComboListe& familles = *hote_.liste().ComboFamilles;
  txtSaisieFamilleModifier_->RogneTexte();
  const std::string nom = txtSaisieFamilleModifier_->Texte();
  const auto refuse = [&](auto refus, std::string_view message) {
    (hote_.*refus)(message, nullptr);
    ReprendFamille();
    DonneFocus(txtSaisieFamilleModifier_);
  };
  if (nom.empty()) {
    refuse(&frmRecettes::Refuse, "Il faut saisir le nouveau nom de la famille de recettes."_1252);
    return;
  }
  // A name that differs in case only counts as unchanged.
  if (Majuscules(nom) == Majuscules(familles.Texte())) {
    module.services.pointeur.Normal();
    hote_.ChoisitOnglet(FenetreOnglets::ongletListe);
    DonneFocus(&familles);
    return;
  }
  if (familles.ContientTexte(nom)) {
    refuse(&frmRecettes::RefuseAvecBip, "Cette famille de recettes existe déjà !"_1252);
    return;
  }
  ExigeFichierOuFin(module, Donnees::GLR1);
  EnregistreFamille(nom);
}

void frmRecettesModifier::EnregistreFamille(const std::string& nom) {
  Module1& module = hote_.module();
  frmRecettesListe& liste = hote_.liste();
  Garde(module, [&] {
    const std::int32_t famille = liste.ComboFamilles->Donnee();
    const std::int32_t recette = liste.ComboRecettes->Donnee();  // a failure in an empty family
    RenommeFamille(module, famille, nom);
    hote_.RechargeFamilles();
    liste.ComboFamilles->ChoisitDonnee(famille);
    liste.ComboRecettes->ChoisitDonnee(recette);
    hote_.ChoisitOnglet(FenetreOnglets::ongletListe);
    DonneFocus(liste.ComboFamilles);
  });
}

void frmRecettesModifier::ValideRecette() {
  txtSaisieNomRecetteModifier_->RogneTexte();
  const std::string titre = txtSaisieNomRecetteModifier_->Texte();
  if (titre.empty()) {
    hote_.Refuse("Il faut donner un titre à la recette."_1252, nullptr);
    txtSaisieNomRecetteModifier_->PoseTexte(Rogne(hote_.liste().ComboRecettes->Texte()));
    DonneFocus(txtSaisieNomRecetteModifier_);
    return;
  }
  if (TitreDejaDonne(titre)) {
    return;
  }
  txtSaisieRecetteModifier_->RogneTexte();
  txtImageModifier_->RogneTexte();
  if (!EstVide(*txtImageModifier_) && ImageRefusee()) {
    txtImageModifier_->PoseTexte(hote_.liste().Image());
    DonneFocus(cmdImageModifier_);
    return;
  }
  EnregistreRecette();
}

bool frmRecettesModifier::TitreDejaDonne(const std::string& titre) {
  Module1& module = hote_.module();
  const frmRecettesListe& liste = hote_.liste();
  if (ComboFamillesModifier->currentIndex() == liste.ComboFamilles->currentIndex()) {
    if (liste.ComboRecettes->AutreContientTexte(titre)) {
      hote_.Refuse("Cette recette existe déjà"_1252, txtSaisieNomRecetteModifier_);
      return true;
    }
    return false;
  }
  bool trouve = false;
  const bool lu = Tente(module, [&] {
    trouve = TitreDansAutreFamille(module, liste.ComboFamilles->Donnee(),
                                   ComboFamillesModifier->Donnee(), titre);
  });
  if (!lu) {
    ErreurFatale(module);
  }
  if (trouve) {
    hote_.Refuse("Cette recette existe déjà dans cette famille"_1252, ComboFamillesModifier);
  }
  return trouve;
}

bool frmRecettesModifier::ImageRefusee() {
  Module1& module = hote_.module();
  const std::string chemin = txtImageModifier_->Texte();
  if (!hote_.AccepteImage(chemin)) {
    return true;
  }
  if (ImageExiste(module, chemin)) {
    return false;
  }
  hote_.RefuseAvecBip("Ce fichier n'existe pas."_1252, nullptr);
  return true;
}

void frmRecettesModifier::EnregistreRecette() {
  Module1& module = hote_.module();
  frmRecettesListe& liste = hote_.liste();
  Garde(module, [&] {
    const std::string titre = txtSaisieNomRecetteModifier_->Texte();
    const std::string texte = txtSaisieRecetteModifier_->Texte();
    const std::string image = module.chemins.FormeCourte(txtImageModifier_->Texte());
    const std::int32_t numero = liste.ComboRecettes->Donnee();
    ChangeRecette(module, numero, {ComboFamillesModifier->Donnee(), titre, texte, image});
    liste.ComboFamilles->Choisit(ComboFamillesModifier->currentIndex());
    liste.ComboRecettes->ChoisitDonnee(numero);
    hote_.ChoisitOnglet(FenetreOnglets::ongletListe);
    DonneFocus(liste.ComboFamilles);
  });
}

}  // namespace gastrelle
