#include "favoris/frmFavorisSupprimer.h"

#include "controles/Focus.h"
#include "data/Limites.h"
#include "data/ProceduresFichiers.h"
#include "favoris/frmFavorisListe.h"

namespace gastrelle {

frmFavorisSupprimer::frmFavorisSupprimer(const PlaceOnglet& place, frmFavorisListe& liste)
    : frmFavorisFiche(place, QStringLiteral("Supprimer")),
      liste_(liste),
      options_(Options("Option3", u"Une caté&gorie", u"Le favo&ri")),
      ComboCategorieSupprimer_(
          new ComboListe(QStringLiteral("ComboCategorieSupprimer"), Ordre::alphabetique, this)),
      txtCategorieFavoriSupprimer_(
          new LigneTexte(QStringLiteral("txtCategorieFavoriSupprimer"), limiteNom, this)),
      txtNomFavoriSupprimer_(
          new LigneTexte(QStringLiteral("txtNomFavoriSupprimer"), limiteNom, this)),
      modes_(options_, {.controles = {ComboCategorieSupprimer_}},
             {.controles = {txtCategorieFavoriSupprimer_, txtNomFavoriSupprimer_, adresse,
                            telephone, fax, email, siteWeb, notes}}) {
  liste_.categories.Suit(*ComboCategorieSupprimer_);
  ComboCategorieSupprimer_->setToolTip(
      QStringLiteral("Choisir dans la liste la catégorie à supprimer"));
  // These two speak of changing.
  options_[0]->setToolTip(QStringLiteral("Cliquez ici pour modifier une catégorie de favoris"));
  options_[1]->setToolTip(QStringLiteral("Cliquez ici pour modifier le favori"));
  txtCategorieFavoriSupprimer_->RendLectureSeule();
  txtNomFavoriSupprimer_->RendLectureSeule();
  RendLectureSeule();
  AjouteACote(QStringLiteral("La &catégorie"), ComboCategorieSupprimer_);
  OrdonneClavier(
      {options_[0], options_[1], ComboCategorieSupprimer_, txtCategorieFavoriSupprimer_});
  Dispose(txtCategorieFavoriSupprimer_, txtNomFavoriSupprimer_);
  boutons().Supprime("cmdValideSupprimer", u"Valider la suppression liée au bouton d'option actif",
                     [this] { Supprime(); });
  boutons().Aide("cmdAideSupprimer");
}

void frmFavorisSupprimer::Entre() {
  ComboCategorieSupprimer_->Montre(0);
  txtCategorieFavoriSupprimer_->PoseTexte(liste_.txtCategorie->Texte());
  txtNomFavoriSupprimer_->PoseTexte(liste_.ComboFavoris->Texte());
  MontreTextes(liste_.Textes());
}

bool frmFavorisSupprimer::EstProtege() {
  if (modes_.premier() &&
      ComboCategorieSupprimer_->currentData().toInt() <= derniereCategorieProtegee) {
    hote().Refuse("Cette catégorie de favoris ne peut être supprimée"_1252, options_[0]);
    return true;
  }
  if (!modes_.premier() && liste_.ComboFavoris->currentData().toInt() <= dernierFavoriProtege) {
    hote().Refuse("Ce favori ne peut être supprimé"_1252, options_[1]);
    return true;
  }
  return false;
}

void frmFavorisSupprimer::Supprime() {
  if (EstProtege()) {
    return;
  }
  std::string question;
  question += "Etes-vous sûr de vouloir supprimer "_1252;
  question += modes_.premier() ? "cette catégorie de favoris ?\r\n(Attention : tous les favoris de "
                                 "cette catégorie seront également\r\nsupprimés.)"_1252
                               : "ce favori ?";
  if (module().services.messages.Demande(question) != Reponse::oui) {
    return;
  }
  Opere(module(), [this] {
    if (modes_.premier()) {
      SupprimeCategorie(module(), ComboCategorieSupprimer_->NumeroChoisi());
      // The favourites that went with it stay listed until the list is next filled.
      liste_.RechargeCategories();
    } else {
      SupprimeFavori(module(), liste_.ComboFavoris->NumeroChoisi());
      liste_.RechargeFavoris();
    }
    hote().ChoisitOnglet(ongletListe);
    liste_.ComboFavoris->Choisit(0);
  });
}

}  // namespace gastrelle
