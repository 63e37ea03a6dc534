#include "recettes/frmRecettesModifier.h"

#include "controles/Focus.h"
#include "data/ProceduresFichiers.h"
#include "recettes/LectureRecettes.h"
#include "recettes/frmRecettesListe.h"

namespace gastrelle {
namespace {

constexpr DescriptionSaisieRecette noms{"Option2",
                                        u"Le nom de &la famille",
                                        u"La &recette",
                                        "txtSaisieFamilleModifier",
                                        u"Le n&om de la famille",
                                        "ComboFamillesModifier",
                                        "txtSaisieNomRecetteModifier",
                                        "txtSaisieRecetteModifier",
                                        "txtImageModifier",
                                        "cmdImageModifier"};

}  // namespace

frmRecettesModifier::frmRecettesModifier(const PlaceOnglet& place, frmRecettesListe& laListe)
    : frmRecettesSaisie(place, laListe, noms),
      modes_(options,
             {.controles = {famille}, .focus = famille, .surChoix = [this] { ReprendRecette(); }},
             {.controles = PourRecette(), .focus = familles, .surChoix = [this] {
                ReprendFamille();
              }}) {
  boutons().Valide("cmdValideModifier", u"Valider les saisies", [this] {
    Opere(module(), [this] { modes_.premier() ? ValideFamille() : ValideRecette(); });
  });
  boutons().Reinitialise("cmdEffacerModifier", [this] { Reinitialise(); });
  boutons().Aide("cmdAideModifier");
}

void frmRecettesModifier::ReprendFamille() {
  ReprendTexte(*famille, liste.ComboFamilles->Texte(), liste.ComboFamilles->currentData().toInt());
}

void frmRecettesModifier::ReprendRecette() {
  ReprendIndiceFamille();
  const std::int32_t numero = liste.ComboRecettes->currentData().toInt();
  ReprendTexte(*titre, liste.ComboRecettes->Texte(), numero);
  ReprendTexte(*texte, liste.txtRecette->Texte(), numero);
  // In an empty family the tag is still that of the picture shown before.
  const bool vide = liste.ComboRecettes->entrees().empty();
  ReprendTexte(*image, vide ? std::string() : liste.Image(), numero);
}

void frmRecettesModifier::Entre() {
  ReprendFamille();
  ReprendRecette();
  const bool vide = liste.ComboRecettes->entrees().empty();
  modes_.Permet(1, !vide);
  modes_.Choisit(vide ? 0 : 1);
  modes_.RendFocus();
}

void frmRecettesModifier::Reinitialise() {
  ReprendFamille();
  ReprendRecette();
  modes_.RendFocus();
}

void frmRecettesModifier::VaALaListe() {
  hote().ChoisitOnglet(ongletListe);
  DonneFocus(liste.ComboFamilles);
}

void frmRecettesModifier::ValideFamille() {
  RogneTexte(*famille);
  const std::string nom = famille->Texte();
  const ComboListe& affichees = *liste.ComboFamilles;
  const auto refuse = [&](auto refus, std::string_view message) {
    (hote().*refus)(message, nullptr);
    ReprendFamille();
    DonneFocus(famille);
  };
  if (nom.empty()) {
    refuse(&FenetreEnfant::Refuse, "Il faut saisir le nouveau nom de la famille de recettes."_1252);
    return;
  }
  // A name that differs in case only counts as unchanged.
  if (Majuscules(nom) == Majuscules(affichees.Texte())) {
    module().services.pointeur.Normal();
    VaALaListe();
    return;
  }
  if (affichees.ContientTexte(nom)) {
    refuse(&FenetreEnfant::RefuseAvecBip, "Cette famille de recettes existe déjà !"_1252);
    return;
  }
  EnregistreFamille(nom);
}

void frmRecettesModifier::EnregistreFamille(const std::string& nom) {
  ExigeFamilles(module());
  const std::int32_t numero = liste.ComboFamilles->NumeroChoisi();
  const std::int32_t recette = liste.ComboRecettes->NumeroChoisi();  // a failure in an empty family
  RenommeFamille(module(), numero, nom);
  liste.RechargeFamilles();
  liste.ComboFamilles->ChoisitNumero(numero);
  liste.ComboRecettes->ChoisitNumero(recette);
  VaALaListe();
}

void frmRecettesModifier::ValideRecette() {
  RogneTexte(*titre);
  if (EstVide(*titre)) {
    hote().Refuse("Il faut donner un titre à la recette."_1252, nullptr);
    titre->RemplaceTexte(liste.ComboRecettes->Texte());
    DonneFocus(titre);
    return;
  }
  if (TitreDejaDonne()) {
    return;
  }
  RogneTexte(*texte);
  RogneTexte(*image);
  if (!EstVide(*image) && ImageRefusee()) {
    image->RemplaceTexte(liste.Image());
    DonneFocus(cherche);
    return;
  }
  EnregistreRecette();
}

bool frmRecettesModifier::TitreDejaDonne() {
  const std::string nouveau = titre->Texte();
  const ComboListe& affichees = *liste.ComboFamilles;
  const bool memeFamille = familles->currentIndex() == affichees.currentIndex();
  const ComboListe& recettes = *liste.ComboRecettes;
  if (memeFamille && recettes.ContientTexte(nouveau, recettes.currentIndex())) {
    hote().Refuse("Cette recette existe déjà"_1252, titre);
    return true;
  }
  if (!memeFamille && TitreDansAutreFamille(module(), affichees.NumeroChoisi(),
                                            familles->NumeroChoisi(), nouveau)) {
    hote().Refuse("Cette recette existe déjà dans cette famille"_1252, familles);
    return true;
  }
  return false;
}

bool frmRecettesModifier::ImageRefusee() {
  if (!AccepteImage()) {
    return true;
  }
  if (ImageExiste(module(), image->Texte())) {
    return false;
  }
  hote().RefuseAvecBip("Ce fichier n'existe pas."_1252, nullptr);
  return true;
}

void frmRecettesModifier::EnregistreRecette() {
  const std::int32_t numero = liste.ComboRecettes->NumeroChoisi();
  ChangeRecette(module(), numero, Saisie());
  liste.ComboFamilles->Choisit(familles->currentIndex());
  liste.ComboRecettes->ChoisitNumero(numero);
  VaALaListe();
}

}  // namespace gastrelle
