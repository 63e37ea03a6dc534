#include "favoris/frmFavorisModifier.h"

#include "controles/Focus.h"
#include "data/ProceduresFichiers.h"
#include "favoris/frmFavorisListe.h"

namespace gastrelle {
namespace {

constexpr const char16_t* modification = u"Entrez  la modification à apporter";

constexpr DescriptionSaisieFavori description{
    .suffixe = "Modifier",
    .options = "Option2",
    .optionFavori = u"Le favo&ri",
    .infobullesOptions = {u"Cliquez ici pour modifier une catégorie de favoris",
                          u"Cliquez ici pour modifier le favori"},
    .infobulleCategorie = u"Entrez le nouveau nom de la catégorie ci-contre",
    .categories = "ComboCategorie1Modifier",
    .infobulles = {u"Choisir dans la liste une catégorie pour le favori", modification,
                   modification, modification, modification, modification, modification,
                   modification}};

}  // namespace

frmFavorisModifier::frmFavorisModifier(const PlaceOnglet& place, frmFavorisListe& laListe)
    : frmFavorisSaisie(place, laListe, description),
      renommee_(
          new ComboListe(QStringLiteral("ComboCategorieModifier"), Ordre::alphabetique, this)),
      modes_(options,
             {.controles = {renommee_, nomCategorie},
              .focus = nomCategorie,
              .surChoix =
                  [this] {
                    ReprendFavori();
                    renommee_->Montre(0);
                    ReprendCategorie();
                  }},
             {.controles = PourFavori(),
              .focus = categories,
              .vides = {nomCategorie},
              .surChoix = [this] {
                renommee_->Montre(0);
                ReprendFavori();
              }}) {
  liste.categories.Suit(*renommee_);
  renommee_->setToolTip(QStringLiteral("Choisir dans la liste la catégorie à modifier"));
  renommee_->surChoix = [this] {
    ReprendCategorie();
    DonneFocus(nomCategorie);
  };
  AjoutePaire(u"La &catégorie", renommee_, u"No&uveau nom", nomCategorie);
  OrdonneClavier({options[0], options[1], renommee_, nomCategorie, categories});
  Dispose(categories, nom);
  boutons().Valide("cmdValideModifier", u"Valider la saisie liée au bouton d'option actif",
                   [this] { modes_.premier() ? ValideCategorie() : ValideFavori(); });
  boutons().Reinitialise("cmdEffacerModifier", [this] { Reinitialise(); });
  boutons().Aide("cmdAideModifier");
}

void frmFavorisModifier::ReprendCategorie() {
  ReprendTexte(*nomCategorie, renommee_->Texte(), renommee_->currentData().toInt());
}

void frmFavorisModifier::ReprendFavori() {
  const std::int32_t numero = liste.ComboFavoris->currentData().toInt();
  const std::int32_t sienne = module().bufFavori.courant().idCategorie;
  categories->Montre(categories->modele().IndiceDe(sienne).value_or(-1));
  ReprendTexte(*nom, liste.ComboFavoris->Texte(), numero);
  Reprend(liste.Textes(), numero);
}

std::int32_t frmFavorisModifier::CategorieChoisie() {
  return categories->currentIndex() < 0 ? module().bufFavori.courant().idCategorie
                                        : categories->NumeroChoisi();
}

void frmFavorisModifier::Entre() {
  modes_.Applique();
}

void frmFavorisModifier::Reinitialise() {
  renommee_->Montre(0);
  nomCategorie->RemplaceTexte({});
  ReprendFavori();
  DonneFocus(modes_.premier() ? renommee_ : categories);
}

void frmFavorisModifier::ValideCategorie() {
  Opere(module(), [this] {
    if (!AccepteNomCategorie("Il faut saisir le nouveau nom de la catégorie de favoris."_1252,
                             *renommee_, renommee_->currentIndex())) {
      return;
    }
    const std::string nouveau = nomCategorie->Texte();
    const std::int32_t numero = renommee_->NumeroChoisi();
    RenommeCategorie(module(), numero, nouveau);
    liste.RechargeCategories();
    if (module().bufFavori.courant().idCategorie == numero) {
      liste.txtCategorie->PoseTexte(nouveau);
    }
    hote().ChoisitOnglet(ongletListe);
  });
}

void frmFavorisModifier::ValideFavori() {
  module().services.pointeur.Sablier();
  RogneTexte(*nom);
  if (EstVide(*nom)) {
    hote().Refuse("Il faut donner un nom au favori."_1252, nom);
    return;
  }
  const std::int32_t numero = liste.ComboFavoris->NumeroChoisi();
  ChangeFavori(module(), numero, Saisie(CategorieChoisie()));
  liste.Montre(numero);
}

}  // namespace gastrelle
