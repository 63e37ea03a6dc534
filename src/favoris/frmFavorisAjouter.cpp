#include "favoris/frmFavorisAjouter.h"

#include "controles/Focus.h"
#include "data/ProceduresFichiers.h"
#include "favoris/frmFavorisListe.h"

namespace gastrelle {
namespace {

constexpr DescriptionSaisieFavori description{
    .suffixe = "Ajouter",
    .options = "Option1",
    .optionFavori = u"Un favo&ri",
    .infobullesOptions = {u"Cliquez ici pour ajouter une catégorie de favoris",
                          u"Cliquez ici pour ajouter un favori"},
    .infobulleCategorie = u"Entrez le nom de la nouvelle catégorie de favoris",
    .categories = "ComboCategorieAjouter",
    .infobulles = {
        u"Choisir dans la liste une catégorie pour le nouveau favori",
        u"Entrez le nom du nouveau favori", u"Entrez l'adresse du nouveau favori",
        u"Entrez le n° de téléphone du nouveau favori", u"Entrez le n° de fax du nouveau favori",
        u"Entrez l'adresse électronique du nouveau favori", u"Entrez l'URL du nouveau favori",
        u"Entrez les notes éventuelles liées au nouveau favori"}};

}  // namespace

frmFavorisAjouter::frmFavorisAjouter(const PlaceOnglet& place, frmFavorisListe& laListe)
    : frmFavorisSaisie(place, laListe, description),
      modes_(options,
             {.controles = {nomCategorie},
              .focus = nomCategorie,
              .vides = Textuelles(),
              .surChoix = [this] { categories->Montre(0); }},
             {.controles = PourFavori(),
              .focus = categories,
              .vides = {nomCategorie},
              .surChoix = [this] { categories->Montre(0); }}) {
  AjouteACote(QStringLiteral("La no&uvelle catégorie"), nomCategorie);
  OrdonneClavier({options[0], options[1], nomCategorie, categories});
  Dispose(categories, nom);
  boutons().Valide("cmdValideAjouter", u"Valider la saisie liée au bouton d'option actif",
                   [this] { modes_.premier() ? ValideCategorie() : ValideFavori(); });
  boutons().Efface("cmdEffacerAjouter", [this] { Efface(); });
  boutons().Aide("cmdAideAjouter");
}

void frmFavorisAjouter::Entre() {
  VideBoites({{nomCategorie}});
  VideBoites(Textuelles());
  categories->Montre(0);
  modes_.RendFocus();
}

void frmFavorisAjouter::ValideCategorie() {
  Opere(module(), [this] {
    if (AccepteNomCategorie("Il faut saisir le nom de la nouvelle catégorie de favoris."_1252,
                            *categories)) {
      AjouteCategorie(module(), nomCategorie->Texte());
      liste.RechargeCategories();
      hote().ChoisitOnglet(ongletListe);
    }
  });
}

void frmFavorisAjouter::ValideFavori() {
  module().services.pointeur.Sablier();
  RogneTexte(*nom);
  if (EstVide(*nom)) {
    hote().Refuse("Il faut donner un nom au nouveau favori."_1252, nom);
    return;
  }
  liste.Montre(AjouteFavori(module(), Saisie(categories->NumeroChoisi())));
}

void frmFavorisAjouter::Efface() {
  if (hote().EffaceSaisies({nomCategorie, nom, adresse, telephone, fax, email, siteWeb, notes})) {
    categories->Montre(0);
  }
  modes_.RendFocus();
}

}  // namespace gastrelle
